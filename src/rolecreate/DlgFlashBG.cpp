// The full-screen backdrop of the login and creation scenes; its picture comes from its layout record.
#include "rolecreate/DlgFlashBG.h"

CDlgFlashBG::CDlgFlashBG() : CSimDialog(IDD) {}

CDlgFlashBG::~CDlgFlashBG() = default;
