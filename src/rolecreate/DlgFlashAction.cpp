// The 3D preview and frame of the English creation layout.
#include "rolecreate/DlgFlashAction.h"

CDlgFlashAction::CDlgFlashAction() : CSimDialog(IDD) {
}

CDlgFlashAction::~CDlgFlashAction() = default;
