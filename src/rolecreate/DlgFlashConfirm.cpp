// The message box every screen uses.
#include "rolecreate/DlgFlashConfirm.h"

CDlgFlashConfirm::CDlgFlashConfirm() : CSimDialog(IDD) {}

CDlgFlashConfirm::~CDlgFlashConfirm() = default;
