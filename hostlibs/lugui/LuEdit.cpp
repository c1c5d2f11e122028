// Edit boxes: UTF-8 text with a byte limit, selection and caret in bytes, typing and the focus.
#include "LuEdit.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "Graphics.h"
#include "LuGui.h"
#include "text/Utf8.h"

namespace LuGui {
namespace {

constexpr DWORD CARET_BLINK_MS = 500;
constexpr DWORD SELECTION_COLOUR = 0x803399FF;
constexpr UINT CHAR_BACKSPACE = 8;

// What a Chinese, Japanese or Korean input method writes: ideographs, kana, hangul, their radicals and
// punctuation, and the full-width forms.
bool IsEastAsianInput(UINT cp) {
    return (cp >= 0x2E80 && cp <= 0xA4CF) || (cp >= 0xAC00 && cp <= 0xD7AF) ||
           (cp >= 0xF900 && cp <= 0xFAFF) || (cp >= 0xFF00 && cp <= 0xFFEF) ||
           (cp >= 0x20000 && cp <= 0x3FFFF);
}

// One star per character.
std::string Stars(std::string_view text) {
    std::string stars;
    for (std::size_t pos = 0; pos < text.size(); pos = txt::Utf8::NextBoundary(text, pos)) stars += '*';
    return stars;
}

} // namespace

// ---- drawing -------------------------------------------------------------------------------------

std::string CLuEdit::DisplayText() const {
    return m_bPassword ? Stars(m_strText) : m_strText;
}

int CLuEdit::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    ProcessMouseMove();
    ShowBackGround();
    const RECT rc = GetWindowRect();
    const int nFont = m_sizeFont.cy > 0 ? m_sizeFont.cy : CMyBitmap::GetFontSize();
    const int x = rc.left + m_ptTextOffset.x;
    const int y = rc.top + m_ptTextOffset.y + std::max(0, (GetHeight() - nFont) / 2);
    const std::string shown = DisplayText();
    // Byte offsets map to the shown text one to one except for passwords, where each character is a star.
    auto widthTo = [&](int nByte) {
        const std::string_view raw = std::string_view(m_strText).substr(0, static_cast<std::size_t>(nByte));
        const std::string prefix = m_bPassword ? Stars(raw) : std::string(raw);
        return CMyBitmap::GetStringWidth(prefix.c_str(), nFont);
    };
    if (IsFocus() && m_nSelStart != m_nSelEnd) {
        const RECT rcSel{x + widthTo(m_nSelStart), y, x + widthTo(m_nSelEnd), y + nFont};
        CMyBitmap::ShowBlock(rcSel, SELECTION_COLOUR);
    }
    if (!shown.empty())
        CMyBitmap::ShowString(x, y, m_dwFontColor, shown.c_str(), CMyBitmap::GetDefaultFontName(), nFont);
    if (IsFocus() && (TimeGet() / CARET_BLINK_MS) % 2 == 0) {
        const int nCaretX = x + widthTo(m_nSelEnd);
        CMyBitmap::ShowLine(nCaretX, y, nCaretX, y + nFont - 1, m_dwFontColor);
    }
    return 1;
}

// ---- messages ------------------------------------------------------------------------------------

LRESULT CLuEdit::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return CLuCtrl::WindowProc(uMsg, wParam, lParam);
}

BOOL CLuEdit::ShowWindow(int nCmdShow) {
    // NOTE: a hidden edit that kept the focus would take the next typed key; the manager only noticed when
    // that key came.
    if (nCmdShow == SW_HIDE && IsFocus()) m_pGuiMgr->SetFocusEdit(nullptr);
    return CLuCtrl::ShowWindow(nCmdShow);
}

void CLuEdit::OnLButtonDown(UINT, POINT) {
    // NOTE: the press only takes the focus; where the caret goes is the business of the class that knows
    // the font's character width.
    if (m_bEnabled) SetFocus();
}

void CLuEdit::OnChar(UINT nChar, UINT, UINT) {
    if (m_bReadOnly || !m_bEnabled) return;
    if (nChar == CHAR_BACKSPACE) {
        if (m_nSelStart == m_nSelEnd) {
            if (m_nSelStart == 0) return;
            m_nSelStart = PrevCharIndex(m_nSelStart);
        }
        ReplaceSelection({});
        return;
    }
    if (nChar >= 0xD800 && nChar <= 0xDBFF) {
        m_nHighSurrogate = nChar;
        return;
    }
    UINT cp = nChar;
    if (nChar >= 0xDC00 && nChar <= 0xDFFF) {
        if (!m_nHighSurrogate) return;
        cp = 0x10000 + ((m_nHighSurrogate - 0xD800) << 10) + (nChar - 0xDC00);
    }
    m_nHighSurrogate = 0;
    if (cp < 0x20 || cp == 0x7F) return;
    if (!m_bChinese && IsEastAsianInput(cp)) return;
    std::string typed;
    txt::Utf8::Append(typed, cp);
    ReplaceSelection(typed);
}

void CLuEdit::OnKeyDown(UINT nChar, UINT, UINT) {
    const int nLength = static_cast<int>(m_strText.size());
    switch (static_cast<int>(nChar)) {
    case VK_LEFT:
        SetSel(PrevCharIndex(m_nSelEnd), PrevCharIndex(m_nSelEnd));
        break;
    case VK_RIGHT:
        SetSel(NextCharIndex(m_nSelEnd), NextCharIndex(m_nSelEnd));
        break;
    case VK_HOME:
        SetSel(0, 0);
        break;
    case VK_END:
        SetSel(nLength, nLength);
        break;
    case VK_DELETE:
        if (m_bReadOnly || !m_bEnabled) return;
        if (m_nSelStart == m_nSelEnd) {
            if (m_nSelEnd == nLength) return; // nothing after the caret: no change to report
            m_nSelEnd = NextCharIndex(m_nSelEnd);
        }
        ReplaceSelection({});
        return;
    default:
        return;
    }
    OnSelChange();
}

// ---- text and selection --------------------------------------------------------------------------

bool CLuEdit::ReplaceSelection(const std::string& strInsert) {
    const std::size_t nStart = static_cast<std::size_t>(m_nSelStart);
    const std::size_t nEnd = static_cast<std::size_t>(m_nSelEnd);
    if (m_strText.size() - (nEnd - nStart) + strInsert.size() > static_cast<std::size_t>(m_nLimitText))
        return false;
    m_strText.replace(nStart, nEnd - nStart, strInsert);
    m_nSelStart = m_nSelEnd = static_cast<int>(nStart + strInsert.size());
    NotifyChanged(true);
    return true;
}

void CLuEdit::NotifyChanged(bool bText) {
    if (bText) {
        OnTextChanged();
        NotifyParent(WM_COMMAND, 0, EN_CHANGE);
    }
    OnSelChange();
}

int CLuEdit::PrevCharIndex(int nIndex) const {
    const int n = std::clamp(nIndex, 0, static_cast<int>(m_strText.size()));
    return static_cast<int>(txt::Utf8::PreviousBoundary(m_strText, static_cast<std::size_t>(n)));
}

int CLuEdit::NextCharIndex(int nIndex) const {
    const int n = std::clamp(nIndex, 0, static_cast<int>(m_strText.size()));
    return static_cast<int>(txt::Utf8::NextBoundary(m_strText, static_cast<std::size_t>(n)));
}

void CLuEdit::SetWindowTextA(const char* szText) {
    std::string text = szText ? szText : "";
    text.resize(txt::Utf8::CutAtBoundary(text, static_cast<std::size_t>(m_nLimitText)));
    m_strText = std::move(text);
    m_nSelStart = m_nSelEnd = static_cast<int>(m_strText.size());
}

int CLuEdit::GetWindowText(char* szBuf, int nSize) const {
    if (!szBuf || nSize <= 0) return 0;
    const std::size_t n = std::min(m_strText.size(), static_cast<std::size_t>(nSize - 1));
    std::memcpy(szBuf, m_strText.data(), n);
    szBuf[n] = '\0';
    return static_cast<int>(n);
}

DWORD CLuEdit::GetSel() const {
    return (static_cast<DWORD>(m_nSelEnd & 0xFFFF) << 16) | static_cast<DWORD>(m_nSelStart & 0xFFFF);
}

void CLuEdit::SetSel(int nStart, int nEnd) {
    const int nLength = static_cast<int>(m_strText.size());
    nStart = std::clamp(nStart, 0, nLength);
    nEnd = std::clamp(nEnd, 0, nLength);
    m_nSelStart = std::min(nStart, nEnd);
    m_nSelEnd = std::max(nStart, nEnd);
}

BOOL CLuEdit::IsFocus() const {
    return m_pGuiMgr && m_pGuiMgr->GetFocusEdit() == this ? TRUE : FALSE;
}

void CLuEdit::SetFocus() {
    if (!m_pGuiMgr) return;
    const bool bHad = m_pGuiMgr->GetFocusEdit() == this;
    m_pGuiMgr->SetFocusEdit(this);
    if (!bHad) NotifyParent(WM_COMMAND, 0, EN_SETFOCUS);
}

void CLuEdit::PreSetParam(bool bMultiLine, int, DWORD dwTextColor, bool bReadOnly) {
    m_nMultiLine = bMultiLine ? 1 : 0;
    m_dwFontColor = dwTextColor;
    m_bReadOnly = bReadOnly;
}

void CLuEdit::SetLimitText(int nLimit) {
    m_nLimitText = std::max(1, nLimit);
    if (m_strText.size() > static_cast<std::size_t>(m_nLimitText))
        SetWindowTextA(std::string(m_strText).c_str());
}

} // namespace LuGui
