// The international server and character picker.
#include "login/DlgFlashLoginEn.h"

CDlgFlashLoginEn::CDlgFlashLoginEn() : CSimDialog(IDD) {
}

CDlgFlashLoginEn::~CDlgFlashLoginEn() = default;
