// The back button of the English creation layout.
#include "rolecreate/DlgFlashBack.h"

CDlgFlashBack::CDlgFlashBack() : CSimDialog(IDD) {
}

CDlgFlashBack::~CDlgFlashBack() = default;
