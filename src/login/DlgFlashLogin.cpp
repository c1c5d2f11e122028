// The classic login dialog shown after a server choice.
#include "login/DlgFlashLogin.h"

CDlgFlashLogin::CDlgFlashLogin() : CSimDialog(IDD) {
}

CDlgFlashLogin::~CDlgFlashLogin() = default;
