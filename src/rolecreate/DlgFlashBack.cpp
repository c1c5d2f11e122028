// The back button of the English creation layout.
#include "rolecreate/DlgFlashBack.h"

#include "simulator/FlashSimulator.h"

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
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return;
    pSim->NotifyHost("BURYING_POINT", "416");
    pSim->NotifyHost("SendNewwerAction", "10102");
    pSim->NotifyHost("RoleReturn", "");
}
