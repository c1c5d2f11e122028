// The head (face picture) grid of the standard creation layout.
#include "rolecreate/DlgFlashSelectHead.h"

CDlgFlashSelectHead::CDlgFlashSelectHead() : CSimDialog(IDD) {
}

CDlgFlashSelectHead::~CDlgFlashSelectHead() = default;
