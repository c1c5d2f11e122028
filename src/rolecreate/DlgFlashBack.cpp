// The back button of the English creation layout.
#include "rolecreate/DlgFlashBack.h"

#include "screen/ScreenContext.h"

CDlgFlashBack::CDlgFlashBack() : CSimDialog(IDD) {
}

CDlgFlashBack::~CDlgFlashBack() = default;

void CDlgFlashBack::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_BACK, m_btnBack);
}

void CDlgFlashBack::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_BACK, &CDlgFlashBack::OnBack);
}

void CDlgFlashBack::OnBack() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    pContext->NotifyHost("BURYING_POINT", "416");
    pContext->NotifyHost("SendNewwerAction", "10102");
    pContext->NotifyHost("RoleReturn", "");
}
