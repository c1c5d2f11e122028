// WeChat login: the QR page and the security-code pages.
#include "login/DlgWeiXinLogin.h"

CDlgWeiXinLogin::CDlgWeiXinLogin() : CSimDialog(IDD) {
}

CDlgWeiXinLogin::~CDlgWeiXinLogin() = default;
