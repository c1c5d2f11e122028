// Profession, sex and head choice of the standard creation layout.
#include "rolecreate/DlgFlashSelectPro.h"

CDlgFlashSelectPro::CDlgFlashSelectPro() : CSimDialog(IDD) {
}

CDlgFlashSelectPro::~CDlgFlashSelectPro() = default;
