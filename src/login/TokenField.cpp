// The security-code field of the WeChat and security-token dialogs.
#include "login/TokenField.h"

#include "platform/Log.h"

namespace {
constexpr DWORD TOKEN_TEXT_COLOR = 0xFFFFFF;
} // namespace

CTokenField::~CTokenField() = default;

void CTokenField::PreSetTokenParam() {
    PreSetParam(false, 0, TOKEN_TEXT_COLOR, false);
}

void CTokenField::ResetEmpty() {
    SetLimitText(TOKEN_LIMIT);
    SetWindowTextA("");
}

void CTokenField::SetHostText(const char* szText, int nField) {
    if (!szText || nField < 0) return;
    if (nField != m_nField) {
        LogMsg("ASSERT(false) in %d line of %s", __LINE__, __FILE__);
        return;
    }
    SetWindowTextA(szText);
}

void CTokenField::SetSelectionEdge(bool bEnd, int nValue) {
    if (!bEnd) {
        m_nSelStart = nValue;
        DebugMsg("Get Setting Start = %d", nValue);
        return;
    }
    m_nSelEnd = nValue;
    DebugMsg("Get Setting End = %d", nValue);
    SetSel(m_nSelStart, m_nSelEnd);
}

int CTokenField::GetSelectionEdge(bool bEnd) {
    if (bEnd) return m_nSelEnd;
    const DWORD dwSel = GetSel();
    m_nSelStart = LOWORD(dwSel);
    m_nSelEnd = HIWORD(dwSel);
    return m_nSelStart;
}
