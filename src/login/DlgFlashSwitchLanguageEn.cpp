// The curtain shown while the client switches its language.
#include "login/DlgFlashSwitchLanguageEn.h"

CDlgFlashSwitchLanguageEn::CDlgFlashSwitchLanguageEn() : CSimDialog(IDD) {
}

CDlgFlashSwitchLanguageEn::~CDlgFlashSwitchLanguageEn() = default;
