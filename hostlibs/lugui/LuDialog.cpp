// Windows and dialogs of the widget library (minimal: visibility, enabled state, the creation hooks).
#include "LuDialog.h"

namespace LuGui {

BOOL CLuBaseWindow::ShowWindow(int nCmdShow) {
    const bool was = m_bVisible;
    m_bVisible = nCmdShow != SW_HIDE;
    return was ? TRUE : FALSE;
}

CLuDialog::CLuDialog(UINT nIDTemplate, CLuBaseWindow*) : m_nIDTemplate(nIDTemplate) {
}

BOOL CLuDialog::ShowWindow(int nCmdShow) {
    const BOOL was = CLuBaseWindow::ShowWindow(nCmdShow);
    if (nCmdShow == SW_SHOW) OnInitDialog();
    return was;
}

BOOL CLuDialog::PreInitData() {
    return TRUE;
}
int CLuDialog::Show() {
    return 1;
}
LRESULT CLuDialog::WindowProc(UINT, WPARAM, LPARAM) {
    return 0;
}
BOOL CLuDialog::PreTranslateMessage(MSG*) {
    return FALSE;
}
void CLuDialog::Reset() {
}
BOOL CLuDialog::OnInitDialog() {
    return TRUE;
}
void CLuDialog::PreSetParam() {
}
void CLuDialog::DoDataExchange(CDataExchange*) {
}
void CLuDialog::MessageMap() {
}

} // namespace LuGui
