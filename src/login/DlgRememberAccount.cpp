// The dialog that offers to remember or bind the account.
#include "login/DlgRememberAccount.h"

CDlgRememberAccount::CDlgRememberAccount() : CSimDialog(IDD) {
}

CDlgRememberAccount::~CDlgRememberAccount() = default;
