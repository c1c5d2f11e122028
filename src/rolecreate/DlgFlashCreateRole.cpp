// The standard creation dialog: its start, the explanation panel, registration and the volume while shown.
#include "rolecreate/DlgFlashCreateRole.h"

#include <array>
#include <string>

#include "platform/GameBase.h"
#include "platform/GameData.h"
#include "platform/Graphics.h"
#include "rolecreate/CreationGates.h"
#include "rolecreate/DlgFlashSelectHead.h"
#include "rolecreate/DlgFlashSelectPro.h"
#include "screen/ScreenContext.h"

namespace {
constexpr const char* EXPLAIN_TITLE = "Login_CreateRoleExplainTitle";
constexpr const char* EXPLAIN_PICTURE = "Login_CreateRoleExplainPic";
constexpr int TITLE_BUFFER = 64;
// NOTE: 64 characters of at most 4 UTF-8 bytes each, and room to see that a name reaches the refusal.
constexpr int NAME_BUFFER_BYTES = CDlgFlashCreateRole::NAME_LIMIT_CHARS * 4 + 1;
} // namespace

CDlgFlashCreateRole::CDlgFlashCreateRole() : CSimDialog(IDD) {
}

CDlgFlashCreateRole::~CDlgFlashCreateRole() = default;

void CDlgFlashCreateRole::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_EXPLAIN_BACK, m_staExplainBack);
    DDX_Control(pDX, IDC_EXPLAIN, m_staExplain);
    DDX_Control(pDX, IDC_UPPER_1, m_staUpper1);
    DDX_Control(pDX, IDC_UPPER_2, m_staUpper2);
    DDX_Control(pDX, IDC_LOWER_1, m_staLower1);
    DDX_Control(pDX, IDC_LOWER_2, m_staLower2);
    DDX_Control(pDX, IDC_PROFESSION_NAME, m_staProfessionName);
    DDX_Control(pDX, IDC_NAME_LABEL, m_staNameLabel);
    DDX_Control(pDX, IDC_NAME, m_edtName);
    DDX_Control(pDX, IDC_CREATE, m_btnCreate);
}

void CDlgFlashCreateRole::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_CREATE, &CDlgFlashCreateRole::OnCreate);
}

void CDlgFlashCreateRole::PreSetParam() {
    CSimDialog::PreSetParam();
    m_edtName.PreSetParam(false, 0, 0xFFFFFF, false);
}

void CDlgFlashCreateRole::ResetChoice() {
    m_preview.Reset();
    if (m_pSelectPro) m_pSelectPro->ResetChoice();
    if (m_pSelectHead) m_pSelectHead->ResetChoice();
}

BOOL CDlgFlashCreateRole::OnInitDialog() {
    CSimDialog::OnInitDialog();
    m_edtName.SetLimitChars(NAME_LIMIT_CHARS);
    m_edtName.SetWindowTextA("");
    if (IScreenContext* pContext = ScreenContext()) m_edtName.SetLostFocusTip(pContext->GetStr(STR_NAME_TIP));
    ResetChoice();
    if (m_pSelectPro) m_pSelectPro->RefreshHead();
    if (m_pSelectHead) m_pSelectHead->ShowWindow(SW_HIDE);
    if (m_pSelectPro) m_pSelectPro->ShowWindow(SW_SHOW);
    m_preview.InitGround();
    if (m_pSelectPro) SetProfessionAndSex(m_pSelectPro->GetProfession(), m_pSelectPro->GetSex(), true);
    return TRUE;
}

void CDlgFlashCreateRole::SetProfession(std::int32_t nProfession) {
    SetProfessionAndSex(nProfession, m_preview.GetSex(), false);
}

void CDlgFlashCreateRole::SetSex(std::int32_t nSex) {
    SetProfessionAndSex(m_preview.GetProfession(), nSex, false);
}

void CDlgFlashCreateRole::UpdateExplanation(std::int32_t nProfession, std::int32_t nSex) {
    SRoleCreateRecord record;
    IRoleData* pData = RoleDataQuery();
    if (!pData || !pData->GetCreateRecord(nProfession + nSex, record)) return;
    char szTitle[TITLE_BUFFER] = {};
    SafeSprintf(szTitle, sizeof szTitle, "%s_%d", EXPLAIN_TITLE, nProfession);
    m_staProfessionName.SetBackGroundAni(szTitle);
    SafeSprintf(szTitle, sizeof szTitle, "%s_%d", EXPLAIN_PICTURE, nProfession);
    m_staExplain.SetBackGroundAni(szTitle);
    m_staExplain.SetWindowTextA(record.strDescription.c_str());
}

void CDlgFlashCreateRole::SetProfessionAndSex(std::int32_t nProfession, std::int32_t nSex, bool bForced) {
    UpdateExplanation(nProfession, nSex);
    m_preview.SetProfessionAndSex(nProfession, nSex, bForced);
}

void CDlgFlashCreateRole::ShowCreationControls(bool bVisible) {
    const int nShow = bVisible ? SW_SHOW : SW_HIDE;
    for (LuGui::CLuCtrl* pCtrl : CreationControls()) pCtrl->ShowWindow(nShow);
    m_staProfessionName.ShowWindow(nShow);
    m_staExplain.ShowWindow(nShow);
}

std::array<LuGui::CLuCtrl*, 5> CDlgFlashCreateRole::CreationControls() {
    return {&m_staLower1, &m_staLower2, &m_staNameLabel, &m_edtName, &m_btnCreate};
}

void CDlgFlashCreateRole::DrawCreationControls() {
    for (LuGui::CLuCtrl* pCtrl : CreationControls())
        if (pCtrl->IsWindowVisible()) pCtrl->Show();
}

int CDlgFlashCreateRole::Show() {
    m_preview.Show();
    return CSimDialog::Show();
}

void CDlgFlashCreateRole::OnCreate() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    pContext->NotifyHost("SendNewwerAction", "10200");
    const std::int32_t nProfession = m_preview.GetProfession();
    if (const std::uint32_t nRefusal = CCreationGates::RefusalOf(*pContext, nProfession)) {
        pContext->ShowMessageBox(MSGBOX_ERROR, pContext->GetStr(nRefusal));
        return;
    }
    pContext->NotifyHostInt("RoleProfession", nProfession);
    pContext->NotifyHostInt("SetLook", m_pSelectHead ? m_pSelectHead->GetLook(m_pSelectHead->GetHead()) : 0);
    // NOTE: the whole box is read so that the name sent is the one shown (the box holds at most 64
    // characters, so the refusal below is reachable with multi-byte names).
    char szName[NAME_BUFFER_BYTES] = {};
    m_edtName.GetWindowText(szName, NAME_BUFFER_BYTES);
    if (static_cast<int>(std::char_traits<char>::length(szName)) >= NAME_REFUSED_BYTES) {
        pContext->ShowMessageBox(MSGBOX_ERROR, pContext->GetStr(STR_NAME_TOO_LONG));
        return;
    }
    pContext->NotifyHost("SetName", szName);
    pContext->NotifyHostInt("RoleRigister", m_preview.GetSex());
}

void CDlgFlashCreateRole::OnShown() {
    m_volume.OnShown();
}

void CDlgFlashCreateRole::OnHidden() {
    if (m_pSelectPro) m_pSelectPro->ShowWindow(SW_HIDE);
    if (m_pSelectHead) m_pSelectHead->ShowWindow(SW_HIDE);
    m_volume.OnHidden();
}

LRESULT CDlgFlashCreateRole::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_SHOWWINDOW) {
        if (wParam != 0)
            OnShown();
        else
            OnHidden();
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}
