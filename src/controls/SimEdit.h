// An edit box with mouse selection and a grey placeholder text while it is empty and unfocused.
#pragma once

#include <string>

#include "platform/LuEdit.h"
#include "platform/ZrString.h"

class CSimEdit : public LuGui::CLuEdit {
public:
    CSimEdit() = default;
    ~CSimEdit() override;

    /// Reads "LostFocusTipFontSize" and "LostFocusTipFontColor"; fails without a layout record.
    BOOL PreInitData() override;
    /// Starts a mouse selection at the character under the press.
    void OnLButtonDown(UINT nFlags, POINT point) override;
    /// Extends the mouse selection while the left button is down.
    void OnMouseMove(UINT nFlags, POINT point) override;
    /// The edit, then the placeholder when the edit is empty and unfocused.
    int Show() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    /// Typing moved the selection: both ends of the mouse selection follow its start.
    void OnSelChange() override;

    // NOTE: <windows.h> renames GetWindowText to GetWindowTextA, which would hide the base's text getter.
    using LuGui::CLuEdit::GetWindowTextA;
    int GetWindowText(char* szBuf, int nSize) const;
    void GetWindowText(CZrString& strText) const;
    /// The text as UTF-16, at most nSize - 1 units, terminated; returns the units copied.
    int GetWindowTextW(char16_t* szBuf, int nSize) const;
    void SetLostFocusTip(const char* szTip);
    /// Limits the text to nChars characters (the toolkit's SetLimitText counts bytes); 0 lifts it.
    void SetLimitChars(int nChars);
    /// A text set by the program keeps at most the character limit's characters (cut between characters).
    void SetWindowTextA(const char* szText) override;
    /// Typing past the character limit is dropped.
    void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) override;
    void SetLostFocusTipOffset(int x, int y);

    int GetSelAnchor() const { return m_nSelAnchor; }
    int GetSelCaret() const { return m_nSelCaret; }

private:
    /// Byte length of the text as the selection reads it (at most 1023 bytes).
    int TextLength() const;

    int m_nLimitChars = 0;
    int m_nSelAnchor = 0;
    int m_nSelCaret = 0;
    CZrString m_strLostFocusTip;
    int m_nTipFontSize = 14;
    DWORD m_dwTipFontColor = 0xFFCCCCCC;
    int m_nTipOffsetX = 2;
    int m_nTipOffsetY = 4;
};
