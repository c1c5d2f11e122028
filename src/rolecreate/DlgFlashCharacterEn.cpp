// The roles an account already has on the chosen international server.
#include "rolecreate/DlgFlashCharacterEn.h"

CDlgFlashCharacterEn::CDlgFlashCharacterEn() : CSimDialog(IDD) {
}

CDlgFlashCharacterEn::~CDlgFlashCharacterEn() = default;
