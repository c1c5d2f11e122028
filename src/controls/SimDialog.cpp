// The dialog base: template construction and the toolkit's operations, which dialogs extend.
#include "controls/SimDialog.h"

CSimDialog::CSimDialog(UINT nIDTemplate, LuGui::CLuBaseWindow*) : LuGui::CLuDialog(nIDTemplate, nullptr) {
}

CSimDialog::~CSimDialog() = default;

BOOL CSimDialog::PreInitData() {
    return LuGui::CLuDialog::PreInitData();
}

int CSimDialog::Show() {
    return LuGui::CLuDialog::Show();
}

LRESULT CSimDialog::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return LuGui::CLuDialog::WindowProc(uMsg, wParam, lParam);
}

BOOL CSimDialog::PreTranslateMessage(MSG* pMsg) {
    return LuGui::CLuDialog::PreTranslateMessage(pMsg);
}

void CSimDialog::Reset() {
    LuGui::CLuDialog::Reset();
}

BOOL CSimDialog::OnInitDialog() {
    LuGui::CLuDialog::OnInitDialog();
    return TRUE;
}

void CSimDialog::PreSetParam() {
    LuGui::CLuDialog::PreSetParam();
}

void CSimDialog::DoDataExchange(LuGui::CDataExchange* pDX) {
    LuGui::CLuDialog::DoDataExchange(pDX);
}

void CSimDialog::MessageMap() {
    LuGui::CLuDialog::MessageMap();
}

void CSimDialog::BringToTop() {
    BringWindowToTop();
}
