// The widget toolkit's edit box: one line of UTF-8 text with focus, caret, selection, a byte limit and
// typed characters.
#pragma once

#include "LuCtrl.h"

namespace LuGui {

class CLuEdit : public CLuCtrl {
public:
    /// The byte limit of a new edit.
    static constexpr int DEFAULT_LIMIT_TEXT = 1024;

    CLuEdit() { m_ptTextOffset = POINT{2, 0}; }
    ~CLuEdit() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::Edit; }
    bool WantsFocus() const override { return true; }

    /// Background, text (stars for a password edit), selection and, with the focus, a blinking caret.
    int Show() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    /// Hiding the edit takes the keyboard focus from it at once.
    BOOL ShowWindow(int nCmdShow) override;
    void OnLButtonDown(UINT nFlags, POINT point) override;
    /// Typed characters (UTF-16 code units; surrogate pairs are joined): 8 deletes backwards, other codes
    /// below 32 are ignored; the selection is replaced; a character that would pass the limit is refused.
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    /// Left, right, home, end and delete.
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    /// Notifications after typing changed the text, then the selection (in this order). Typing that changed
    /// the text also tells the dialog (command 273 with notification code EN_CHANGE in the high word).
    virtual void OnTextChanged() {}
    virtual void OnSelChange() {}

    /// Replaces the text (cut at the limit, never inside a character); the caret goes to its end.
    void SetWindowTextA(const char* szText) override;
    /// Copies at most nSize - 1 bytes of the text into szBuf (terminated); returns the bytes copied.
    int GetWindowText(char* szBuf, int nSize) const;
    // NOTE: <windows.h> renames GetWindowText to GetWindowTextA, which would hide the base's text getter.
    using CLuBaseWindow::GetWindowTextA;
    /// The selection in bytes: start in the low 16 bits, end in the high 16 bits.
    DWORD GetSel() const;
    /// Sets the selection (clamped to the text, ordered); the caret stands at the end.
    void SetSel(int nStart, int nEnd);
    /// Whether this edit has the keyboard focus of its manager.
    BOOL IsFocus() const;
    /// Gives this edit the keyboard focus; an edit that did not have it tells its dialog (command 273 with
    /// notification code EN_SETFOCUS in the high word).
    void SetFocus();
    /// Byte limit of the text (at least 1).
    void SetLimitText(int nLimit);
    int GetLimitText() const { return m_nLimitText; }
    /// Password edits draw one star per character.
    void SetPassword(bool bPassword) { m_bPassword = bPassword; }
    bool IsPassword() const { return m_bPassword; }
    void SetReadOnly(bool bReadOnly) { m_bReadOnly = bReadOnly; }
    /// The client's edit set-up: multi-line flag, a reserved value, text colour, read-only flag.
    void PreSetParam(bool bMultiLine, int nReserved, DWORD dwTextColor, bool bReadOnly);
    /// Input-method (Chinese) input. Switched off, the edit refuses what such an input method writes (CJK
    /// ideographs, kana, hangul, full-width forms); other characters, accented letters among them, still
    /// type.
    void EnableChinese(bool bEnable) { m_bChinese = bEnable; }
    bool IsChineseEnabled() const { return m_bChinese; }
    /// The client's font format (kept).
    void SetFontFormat(int nFormat) { m_nFontFormat = nFormat; }

protected:
    /// The text as drawn (stars for a password edit).
    std::string DisplayText() const;
    /// Replaces the selection by szInsert (nothing when the limit would pass); returns whether it did.
    bool ReplaceSelection(const std::string& strInsert);
    /// The byte index of the character before / after nIndex.
    int PrevCharIndex(int nIndex) const;
    int NextCharIndex(int nIndex) const;
    void NotifyChanged(bool bText);

    int m_nSelStart = 0;
    int m_nSelEnd = 0;
    int m_nLimitText = DEFAULT_LIMIT_TEXT;
    bool m_bPassword = false;
    bool m_bReadOnly = false;
    UINT m_nHighSurrogate = 0;
    bool m_bChinese = true;
    int m_nFontFormat = 0;
};

} // namespace LuGui
