// The security-token code dialog.
#include "login/DlgWardSafeToken.h"

CDlgWardSafeToken::CDlgWardSafeToken() : CSimDialog(IDD) {
}

CDlgWardSafeToken::~CDlgWardSafeToken() = default;
