// The server-group screen: up to 80 group buttons of the chosen edition.
#include "servers/DlgSelectGroup.h"

CDlgSelectGroup::CDlgSelectGroup() : CSimDialog(IDD) {
}

CDlgSelectGroup::~CDlgSelectGroup() = default;

void CDlgSelectGroup::RefillGroups() {
    // NOTE: the group buttons come with the group screen (docs/STATUS.md).
}
