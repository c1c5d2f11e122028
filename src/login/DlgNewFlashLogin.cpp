// The main login screen.
#include "login/DlgNewFlashLogin.h"

CDlgNewFlashLogin::CDlgNewFlashLogin() : CSimDialog(IDD) {}

CDlgNewFlashLogin::~CDlgNewFlashLogin() = default;
