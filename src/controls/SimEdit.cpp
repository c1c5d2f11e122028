// Edit boxes: mouse selection by character width, and the placeholder text.
#include "controls/SimEdit.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

#include "platform/GameData.h"
#include "platform/Graphics.h"
#include "platform/Input.h"
#include "platform/LuLayoutRecord.h"

namespace {
constexpr int MAX_TEXT_READ = 1024; // bytes of the text read for the selection
constexpr int MAX_SHOWN_TEXT = 260; // bytes of the text read to decide on the placeholder
constexpr int MAX_TIP_TEXT = 1024;  // bytes of the placeholder drawn
constexpr UINT CODE_PAGE_UTF8 = 65001;
constexpr short KEY_DOWN_BIT = static_cast<short>(0x8000);
} // namespace

CSimEdit::~CSimEdit() = default;

BOOL CSimEdit::PreInitData() {
    if (!LuGui::CLuEdit::PreInitData()) return FALSE;
    const LuGui::CLuLayoutRecord* pLayout = GetLayoutRecord();
    if (!pLayout) return FALSE;
    if (const char* sz = pLayout->GetValue("LostFocusTipFontSize")) m_nTipFontSize = SafeAtoi(sz);
    if (const char* sz = pLayout->GetValue("LostFocusTipFontColor"))
        m_dwTipFontColor = static_cast<DWORD>(SafeStrtoul(sz, 16));
    return TRUE;
}

// ---- mouse selection -----------------------------------------------------------------------------

int CSimEdit::TextLength() const {
    char buf[MAX_TEXT_READ];
    return GetWindowText(buf, sizeof buf);
}

void CSimEdit::OnLButtonDown(UINT nFlags, POINT point) {
    const int nCharWidth = GetFontSize().cx;
    // NOTE: a font without width has no character positions; the press only reaches the toolkit.
    if (nCharWidth > 0) {
        const int nIndex =
            std::clamp(static_cast<int>(point.x - GetWindowRect().left) / nCharWidth, 0, TextLength());
        m_nSelAnchor = m_nSelCaret = nIndex;
        SetSel(nIndex, nIndex);
    }
    LuGui::CLuEdit::OnLButtonDown(nFlags, point);
}

void CSimEdit::OnMouseMove(UINT nFlags, POINT point) {
    if (!(GetKeyState(VK_LBUTTON) & KEY_DOWN_BIT)) return;
    const int nCharWidth = GetFontSize().cx;
    if (nCharWidth <= 0) return;
    const float fCaret = static_cast<float>(point.x) / static_cast<float>(nCharWidth);
    const int nCaret = static_cast<int>(fCaret < 0 ? fCaret - 0.5f : fCaret + 0.5f);
    m_nSelCaret = std::clamp(nCaret, 0, TextLength());
    SetSel(std::min(m_nSelAnchor, m_nSelCaret), std::max(m_nSelAnchor, m_nSelCaret));
}

void CSimEdit::OnSelChange() {
    m_nSelAnchor = m_nSelCaret = static_cast<int>(LOWORD(GetSel()));
}

LRESULT CSimEdit::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return LuGui::CLuEdit::WindowProc(uMsg, wParam, lParam);
}

// ---- placeholder ---------------------------------------------------------------------------------

int CSimEdit::Show() {
    LuGui::CLuEdit::Show();
    char szText[MAX_SHOWN_TEXT];
    GetWindowText(szText, sizeof szText);
    if (IsFocus() || szText[0] != '\0' || m_strLostFocusTip.IsEmpty()) return 1;
    char szTip[MAX_TIP_TEXT];
    const std::size_t nTip = std::min(std::strlen(m_strLostFocusTip.c_str()), sizeof szTip - 1);
    std::memcpy(szTip, m_strLostFocusTip.c_str(), nTip);
    szTip[nTip] = '\0';
    if (RoleDataQueryEx()->IsEnglishOnly()) ConverCodeToOnlyEnglish(szTip, sizeof szTip);
    const std::u16string tip = StringToWString(szTip, CODE_PAGE_UTF8);
    const RECT rc = GetWindowRect();
    const char* szFont = RoleDataQueryEx()->MapFontName(CMyBitmap::GetDefaultFontName());
    CMyBitmap::ShowStringW(rc.left + m_nTipOffsetX, rc.top + m_nTipOffsetY, m_dwTipFontColor, tip.c_str(),
                           szFont, m_nTipFontSize, false, 0, 0xFF000000, nullptr, nullptr);
    return 1;
}

// ---- text ----------------------------------------------------------------------------------------

int CSimEdit::GetWindowText(char* szBuf, int nSize) const {
    return LuGui::CLuEdit::GetWindowText(szBuf, nSize);
}

void CSimEdit::GetWindowText(CZrString& strText) const {
    strText = GetWindowTextA();
}

int CSimEdit::GetWindowTextW(char16_t* szBuf, int nSize) const {
    if (!szBuf || nSize <= 0) return 0;
    const std::u16string text = StringToWString(GetWindowTextA(), CODE_PAGE_UTF8);
    const std::size_t n = std::min(text.size(), static_cast<std::size_t>(nSize - 1));
    std::copy_n(text.begin(), n, szBuf);
    szBuf[n] = u'\0';
    return static_cast<int>(n);
}

void CSimEdit::SetLostFocusTip(const char* szTip) {
    m_strLostFocusTip = szTip ? szTip : "";
}

void CSimEdit::SetLostFocusTipOffset(int x, int y) {
    m_nTipOffsetX = x;
    m_nTipOffsetY = y;
}

namespace {
constexpr int MAX_UTF8_BYTES = 4;

int CountCharacters(std::string_view text) {
    int nCount = 0;
    for (const char c : text) nCount += (static_cast<unsigned char>(c) & 0xC0) != 0x80 ? 1 : 0;
    return nCount;
}
} // namespace

void CSimEdit::SetLimitChars(int nChars) {
    m_nLimitChars = std::max(0, nChars);
    if (m_nLimitChars > 0) SetLimitText(m_nLimitChars * MAX_UTF8_BYTES);
}

void CSimEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const bool bPrintable = nChar >= 0x20 && nChar != 0x7F && !(nChar >= 0xDC00 && nChar <= 0xDFFF);
    if (m_nLimitChars > 0 && bPrintable) {
        const DWORD dwSel = GetSel();
        const std::string_view text = GetWindowTextA();
        const auto nStart = std::min<std::size_t>(LOWORD(dwSel), text.size());
        const auto nEnd = std::min<std::size_t>(std::max<std::size_t>(HIWORD(dwSel), nStart), text.size());
        const int nKept = CountCharacters(text.substr(0, nStart)) + CountCharacters(text.substr(nEnd));
        if (nKept >= m_nLimitChars) return;
    }
    LuGui::CLuEdit::OnChar(nChar, nRepCnt, nFlags);
}

void CSimEdit::SetWindowTextA(const char* szText) {
    const std::string_view text(szText ? szText : "");
    if (m_nLimitChars <= 0) return LuGui::CLuEdit::SetWindowTextA(szText);
    std::size_t nCut = 0;
    int nChars = 0;
    for (; nCut < text.size(); ++nCut) {
        const bool bStartsCharacter = (static_cast<unsigned char>(text[nCut]) & 0xC0) != 0x80;
        if (bStartsCharacter && ++nChars > m_nLimitChars) break;
    }
    LuGui::CLuEdit::SetWindowTextA(std::string(text.substr(0, nCut)).c_str());
}
