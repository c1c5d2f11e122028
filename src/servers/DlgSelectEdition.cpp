// The edition screen: five editions and up to three quick-entry records.
#include "servers/DlgSelectEdition.h"

CDlgSelectEdition::CDlgSelectEdition() : CSimDialog(IDD) {
}

CDlgSelectEdition::~CDlgSelectEdition() = default;
