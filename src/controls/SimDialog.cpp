// The dialog base: template construction and the operations every dialog shares.
#include "controls/SimDialog.h"

CSimDialog::CSimDialog(UINT nIDTemplate, LuGui::CLuBaseWindow*) : LuGui::CLuDialog(nIDTemplate, nullptr) {
}

CSimDialog::~CSimDialog() = default;

BOOL CSimDialog::PreInitData() {
    return LuGui::CLuDialog::PreInitData();
}

void CSimDialog::BringToTop() {
}
