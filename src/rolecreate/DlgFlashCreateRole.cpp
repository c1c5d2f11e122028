// The creation screen of the standard layout: name, create button, preview.
#include "rolecreate/DlgFlashCreateRole.h"

CDlgFlashCreateRole::CDlgFlashCreateRole() : CSimDialog(IDD) {
}

CDlgFlashCreateRole::~CDlgFlashCreateRole() = default;
