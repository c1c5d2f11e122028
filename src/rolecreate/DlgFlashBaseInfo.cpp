// The profession column of the English creation layout.
#include "rolecreate/DlgFlashBaseInfo.h"

CDlgFlashBaseInfo::CDlgFlashBaseInfo() : CSimDialog(IDD) {
}

CDlgFlashBaseInfo::~CDlgFlashBaseInfo() = default;
