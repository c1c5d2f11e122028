// Static texts: default font, origin in the dialog, and the multi-line path through the auto text.
#include "controls/SimStatic.h"

#include <algorithm>
#include <cstring>

#include "platform/Graphics.h"
#include "platform/LuDialog.h"

namespace {

constexpr int MULTI_LINE = 1;

// The toolkit numbers alignments left, centre, right; the auto text left, right, centre.
int AutoTextAlign(int nCtrlAlign) {
    switch (nCtrlAlign) {
    case LuGui::LU_ALIGN_CENTER:
        return 2;
    case LuGui::LU_ALIGN_RIGHT:
        return 1;
    default:
        return 0;
    }
}

} // namespace

CSimStatic::~CSimStatic() = default;

void CSimStatic::InitData() {
    const SIZE font = GetFontSize();
    if (font.cx == 0 || font.cy == 0) {
        const int nHeight = CMyBitmap::GetFontSize();
        SetFontSize(nHeight / 2, nHeight);
    }
    POINT pt{GetWindowRect().left, GetWindowRect().top};
    if (LuGui::CLuDialog* pDialog = GetParentDialog()) pDialog->ScreenToClient(&pt);
    m_ptOrigin = pt;
    LuGui::CLuStatic::InitData();
}

void CSimStatic::ShowWindowText() {
    const char* szText = GetWindowTextA();
    if (!szText || !*szText) return;
    if (GetMultiLine() != MULTI_LINE) {
        LuGui::CLuStatic::ShowWindowText();
        return;
    }
    const SIZE font = GetFontSize();
    m_autoText.SetFontSize(font.cy);
    m_autoText.SetWidth(std::max(GetWidth(), static_cast<int>(font.cy)));
    m_autoText.SetColor(GetFontColor());
    m_autoText.SetAlign(AutoTextAlign(GetAlign()));
    m_autoText.SetText(szText, IsWrap(), true);
    const RECT rc = GetWindowRect();
    m_autoText.ShowAt(rc.left, rc.top);
}

const char* CSimStatic::GetWindowText(char* szBuf, int nSize) const {
    const char* szText = GetWindowTextA();
    if (szBuf && nSize > 0) {
        const std::size_t n = std::min(std::strlen(szText), static_cast<std::size_t>(nSize - 1));
        std::memcpy(szBuf, szText, n);
        szBuf[n] = '\0';
    }
    return szText;
}

void CSimStatic::GetWindowText(CZrString& strText) const {
    strText = GetWindowTextA();
}

void CSimStatic::MoveByOffset(int dx, int dy) {
    MoveWindow(m_ptOrigin.x + dx, m_ptOrigin.y + dy, GetWidth(), GetHeight(), FALSE);
}

void CSimStatic::SetStrResMode(unsigned int nMode) {
    m_autoText.SetStrResMode(nMode);
}
