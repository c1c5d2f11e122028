// The English profession column: selection with its usage events, and the marking of profession 80.
#include "rolecreate/DlgFlashBaseInfo.h"

#include <string>

#include "resources/SelectHeadMgr.h"
#include "rolecreate/CreationGates.h"
#include "rolecreate/DlgFlashAction.h"
#include "rolecreate/DlgFlashProIntro.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_BOX_OFFSET = 8000028;
constexpr std::uint32_t STR_TIP_NEW = 5000007;
constexpr std::uint32_t STR_TIP_LOCK = 5000008;
constexpr const char* LOCK_PICTURE = "encrerole_s";
constexpr const char* NEW_PICTURE = "login_newicodb";
constexpr DWORD NO_TIP_COLOUR = 0xFFFFFFFF;
/// "BURYING_POINT" of the first change of profession: this plus the profession left.
constexpr int EVENT_FIRST_SWITCH_BASE = 4000;
} // namespace

CDlgFlashBaseInfo::CDlgFlashBaseInfo() : CSimDialog(IDD) {
}

CDlgFlashBaseInfo::~CDlgFlashBaseInfo() = default;

void CDlgFlashBaseInfo::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    for (int i = 0; i < CProfessionTable::COUNT; ++i)
        DDX_Control(pDX, static_cast<int>(PROFESSION_IDS[i]), Box(i));
    DDX_Control(pDX, IDC_LOCK, m_btnLock);
    DDX_Control(pDX, IDC_NEW, m_imgNew);
}

void CDlgFlashBaseInfo::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < CProfessionTable::COUNT; ++i)
        PushMsgMap(WM_COMMAND, PROFESSION_IDS[i], [this, i] { Select(i); });
    PushMsgMap(WM_COMMAND, IDC_LOCK, [this] { Select(CProfessionTable::INDEX_ARCHER); });
}

void CDlgFlashBaseInfo::MarkSelection() {
    for (int i = 0; i < CProfessionTable::COUNT; ++i) Box(i).SetChecked(i == m_nSel);
    if (m_nSel >= 0) Box(m_nSel).SetBackGroundAni(CProfessionTable::EnglishButtonOf(m_nSel));
}

void CDlgFlashBaseInfo::Select(int nIndex) {
    if (nIndex < 0 || nIndex >= CProfessionTable::COUNT) return;
    IScreenContext* pContext = ScreenContext();
    if (m_bFirstSwitch && nIndex != m_nSel) {
        m_bFirstSwitch = false;
        if (pContext)
            pContext->NotifyHostInt("BURYING_POINT",
                                    EVENT_FIRST_SWITCH_BASE + CProfessionTable::IdOf(m_nSel));
    }
    m_nSel = nIndex;
    MarkSelection();
    const std::int32_t nProfession = CProfessionTable::IdOf(nIndex);
    if (m_pAction) m_pAction->SetProfession(nProfession);
    if (m_pProIntro) m_pProIntro->SetProfession(nProfession);
    if (pContext) pContext->NotifyHost("SendNewwerAction", "10101");
}

BOOL CDlgFlashBaseInfo::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    pContext->NotifyHost("BURYING_POINT", "400");
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_BOX_OFFSET, offset);
    const std::int32_t nProfession =
        m_pAction ? m_pAction->GetProfession() : CProfessionTable::PROFESSION_SWORD;
    for (int i = 0; i < CProfessionTable::COUNT; ++i) {
        Box(i).SetBackGroundOffset(offset[0], offset[1]);
        Box(i).SetBackGroundAni(CProfessionTable::EnglishButtonOf(i));
        if (CProfessionTable::IdOf(i) == nProfession) m_nSel = i;
    }
    MarkSelection();
    m_btnLock.SetBackGroundAni(LOCK_PICTURE);
    m_imgNew.InitImage(NEW_PICTURE, IMAGE_CONTROL, nullptr);
    if (IsWindowVisible()) {
        CSimCheck& archer = Box(CProfessionTable::INDEX_ARCHER);
        archer.EnableWindow(TRUE);
        archer.ShowWindow(SW_SHOW);
        const SCreateRoleParam& param = pContext->GetCreateRoleParam();
        // NOTE: the column's own marking is asked with profession 80 shown, whatever the archer value: the
        // English column always offers it (a closed server shows it locked).
        SetServerInfo(param.nNewServer, param.nSwitchA > 0 && pContext->IsSelectedServerAchTips(),
                      param.nSwitchB > 0, true);
    }
    return TRUE;
}

void CDlgFlashBaseInfo::SetServerInfo(std::int32_t nFirst, bool bSecondOpen, bool bThirdOpen, bool bShow80) {
    if (!IsWindowVisible()) return;
    m_bLocked = false;
    CSimCheck& archer = Box(CProfessionTable::INDEX_ARCHER);
    archer.EnableWindow(bShow80 ? TRUE : FALSE);
    archer.ShowWindow(bShow80 ? SW_SHOW : SW_HIDE);
    archer.SetChecked(false);
    m_btnLock.ShowWindow(SW_HIDE);
    archer.SetTipShow("", NO_TIP_COLOUR);
    m_btnLock.SetTipShow("", NO_TIP_COLOUR);
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    if (nFirst == 1) {
        archer.SetTipText(pContext->GetStr(STR_TIP_NEW));
    } else if (!bSecondOpen && !bThirdOpen) {
        m_bLocked = true;
        m_btnLock.ShowWindow(SW_SHOW);
        archer.SetTipText(pContext->GetStr(STR_TIP_LOCK));
        m_btnLock.SetTipText(pContext->GetStr(STR_TIP_LOCK));
    }
}

std::int32_t CDlgFlashBaseInfo::GetLook(int nHead) const {
    const std::int32_t nProfession = CProfessionTable::IdOf(m_nSel);
    const CSelectHeadMgr& heads = CSelectHeadMgr::GetInstance();
    std::int32_t nFace = 0;
    if (nHead <= 0)
        nFace = heads.GetProHeadAni(nProfession + m_nSex);
    else if (m_nSex == CProfessionTable::SEX_FEMALE)
        nFace = heads.GetFemaleHead(nHead - 1);
    else
        nFace = heads.GetMaleHead(nHead - 1);
    return CCreationGates::LookOfFace(nFace);
}

int CDlgFlashBaseInfo::Show() {
    // NOTE: the toolkit's drawing draws the eight boxes, then the lock and the "new" picture (binding order),
    // so the lock lies over box 1058; drawing them a second time would only double the frame's work.
    return CSimDialog::Show();
}
