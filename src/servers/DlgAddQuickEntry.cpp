// The quick-entry editor: which record a new quick entry replaces.
#include "servers/DlgAddQuickEntry.h"

CDlgAddQuickEntry::CDlgAddQuickEntry() : CSimDialog(IDD) {
}

CDlgAddQuickEntry::~CDlgAddQuickEntry() = default;
