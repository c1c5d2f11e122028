// The main login screen.
#include "login/DlgNewFlashLogin.h"

CDlgNewFlashLogin::CDlgNewFlashLogin() : CSimDialog(IDD) {
}

CDlgNewFlashLogin::~CDlgNewFlashLogin() = default;

void CDlgNewFlashLogin::RestoreLastServer(int&, int&, int&) {
    // NOTE: the game-setup record, its fallbacks and the server label come with the screen (docs/STATUS.md).
}

void CDlgNewFlashLogin::UpdateServerLabel() {
}

void CDlgNewFlashLogin::SetAccountText(const char* szText) {
    m_strAccount = szText ? szText : "";
    m_bRememberChecked = true; // the host only fills a remembered account
}

void CDlgNewFlashLogin::SetSafeTokenText(const char* szText) {
    m_strSafeToken = szText ? szText : "";
}
void CDlgNewFlashLogin::SetSelStart(int nStart) {
    m_nSelStart = nStart;
}
void CDlgNewFlashLogin::SetSelEnd(int nEnd) {
    m_nSelEnd = nEnd;
}
void CDlgNewFlashLogin::OnReturnFromGame(bool) {
}
void CDlgNewFlashLogin::ShowTokenRow(bool bShow) {
    m_bTokenRowShown = bShow;
}
