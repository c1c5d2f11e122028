// QR-code login.
#include "login/DlgScanCodeLoginEn.h"

CDlgScanCodeLoginEn::CDlgScanCodeLoginEn() : CSimDialog(IDD) {
}

CDlgScanCodeLoginEn::~CDlgScanCodeLoginEn() = default;
