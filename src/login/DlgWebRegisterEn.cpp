// The account registration web page hosted in the client.
#include "login/DlgWebRegisterEn.h"

CDlgWebRegisterEn::CDlgWebRegisterEn() : CSimDialog(IDD) {
}

CDlgWebRegisterEn::~CDlgWebRegisterEn() = default;

void CDlgWebRegisterEn::OpenPage(const char* szUrl, int, int) {
    m_strUrl = szUrl ? szUrl : "";
    ShowWindow(SW_SHOW);
}
