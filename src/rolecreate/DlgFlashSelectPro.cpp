// The profession step: buttons laid out by the server facts, the profession-80 marks, sex, head and flag.
#include "rolecreate/DlgFlashSelectPro.h"

#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/Gui3DEffect.h"
#include "platform/Role.h"
#include "rolecreate/DlgFlashCreateRole.h"
#include "rolecreate/DlgFlashSelectHead.h"
#include "rolecreate/RolePreview.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_RECT_WITH_80 = 7000000;
constexpr std::uint32_t STR_RECT_WITHOUT_80 = 7000050;
constexpr std::uint32_t STR_RECT_FORCED = 6000002;
constexpr std::uint32_t STR_OFFSET_LOCK = 5000009;
constexpr std::uint32_t STR_OFFSET_NEW = 5000010;
constexpr std::uint32_t STR_OFFSET_GLOW = 5000011;
constexpr std::uint32_t STR_TIP_NEW = 5000007;
constexpr std::uint32_t STR_TIP_LOCK = 5000008;
constexpr std::uint32_t STR_FORCED_ANI = 6000063;
constexpr std::uint32_t STR_FORCED_OFFSET = 6000053;
constexpr const char* EFFECT_GLOW = "bowman_nor";
constexpr const char* EFFECT_NEW = "newserver_light";
constexpr const char* EFFECT_LOCK = "spllock";
constexpr const char* MORE_PICTURE = "Login_MorePic";
constexpr const char* NO_NATIONALITY_PICTURE = "Nationality_UNPic";
constexpr DWORD NO_TIP_COLOUR = 0xFFFFFFFF;
constexpr int FACE_FRAME = 1;
constexpr int TITLE_BUFFER = 32;
} // namespace

CDlgFlashSelectPro::CDlgFlashSelectPro() : CSimDialog(IDD) {
}

CDlgFlashSelectPro::~CDlgFlashSelectPro() = default;

void CDlgFlashSelectPro::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    // NOTE: the eighth box (profession 100) is bound to no control in this layout.
    DDX_Control(pDX, IDC_MASK, m_staMask);
    for (int i = 0; i < CProfessionTable::STANDARD_COUNT; ++i)
        DDX_Control(pDX, static_cast<int>(PROFESSION_IDS[i]), m_chkProfessions[i]);
    DDX_Control(pDX, IDC_MALE, m_chkMale);
    DDX_Control(pDX, IDC_FEMALE, m_chkFemale);
    // The frame lies under the head picture: bound (and so drawn) first.
    DDX_Control(pDX, IDC_HEAD_FRAME, m_staHeadFrame);
    DDX_Control(pDX, IDC_HEAD, m_imgHead);
    DDX_Control(pDX, IDC_BACK, m_btnBack);
    DDX_Control(pDX, IDC_FLAG, m_imgFlag);
    DDX_Control(pDX, IDC_CHANGE_FLAG, m_btnChangeFlag);
    DDX_Control(pDX, IDC_MORE, m_imgMore);
}

void CDlgFlashSelectPro::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < CProfessionTable::STANDARD_COUNT; ++i)
        PushMsgMap(WM_COMMAND, PROFESSION_IDS[i], [this, i] { OnProfession(i); });
    PushMsgMap(WM_COMMAND, IDC_MALE, [this] { OnSex(CProfessionTable::SEX_MALE); });
    PushMsgMap(WM_COMMAND, IDC_FEMALE, [this] { OnSex(CProfessionTable::SEX_FEMALE); });
    PushMsgMap(WM_COMMAND, IDC_HEAD, &CDlgFlashSelectPro::OnHead);
    PushMsgMap(WM_COMMAND, IDC_MORE, &CDlgFlashSelectPro::OnHead);
    PushMsgMap(WM_COMMAND, IDC_BACK, &CDlgFlashSelectPro::OnBack);
    PushMsgMap(WM_COMMAND, IDC_CHANGE_FLAG, &CDlgFlashSelectPro::OnChangeFlag);
}

void CDlgFlashSelectPro::PreSetParam() {
    CSimDialog::PreSetParam();
    m_imgHead.InitImage(nullptr, IMAGE_PLAYER_FACE, nullptr);
    m_imgHead.SetClickable(true);
    m_imgMore.InitImage(MORE_PICTURE, IMAGE_CONTROL, nullptr);
    m_imgMore.SetCurFrame(FACE_FRAME);
    m_imgMore.SetClickable(true);
    UpdateFlag(true);
}

int CDlgFlashSelectPro::ForcedIndex() const {
    const IScreenContext* pContext = ScreenContext();
    return pContext ? CProfessionTable::ForcedIndexOf(pContext->GetCreateRoleParam().nForcedType) : -1;
}

void CDlgFlashSelectPro::SetBoxEffect(int nIndex, bool bOn) {
    CSimCheck& box = m_chkProfessions[static_cast<std::size_t>(nIndex)];
    const char* szEffect = CProfessionTable::SelectEffectOf(nIndex);
    if (!*szEffect) return;
    CGui3DEffect* pEffect = box.GetFgEffect();
    if (!bOn) {
        if (pEffect) pEffect->Delete(szEffect);
        return;
    }
    if (!pEffect) {
        pEffect = GameCreateGui3DEffect();
        box.SetFgEffect(pEffect);
    }
    pEffect->SetShowRect(box.GetWindowRect());
    pEffect->Add(szEffect, 1, 1);
    pEffect->EverPlay(CGui3DEffect::PLAY_FOREVER);
}

void CDlgFlashSelectPro::MarkSelection() {
    for (int i = 0; i < CProfessionTable::COUNT; ++i) {
        m_chkProfessions[static_cast<std::size_t>(i)].SetChecked(false);
        SetBoxEffect(i, false);
    }
    m_chkProfessions[static_cast<std::size_t>(m_nSel)].SetChecked(true);
    SetBoxEffect(m_nSel, true);
}

void CDlgFlashSelectPro::Select(int nIndex) {
    if (nIndex < 0 || nIndex >= CProfessionTable::COUNT) return;
    m_nSel = nIndex;
    MarkSelection();
    if (m_pCreateRole) m_pCreateRole->SetProfession(GetProfession());
    RefreshHead();
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost("SendNewwerAction", "10101");
}

void CDlgFlashSelectPro::RefreshHead() {
    if (!m_pSelectHead) return;
    char szTitle[TITLE_BUFFER] = {};
    CDlgFlashSelectHead::FormatFaceTitle(m_pSelectHead->FaceOf(m_pSelectHead->GetHead()), szTitle,
                                         TITLE_BUFFER);
    m_imgHead.SetAniTitle(szTitle, true);
    m_imgHead.SetCurFrame(FACE_FRAME);
}

void CDlgFlashSelectPro::ResetChoice() {
    for (CSimCheck& box : m_chkProfessions) box.ShowWindow(SW_SHOW);
    const int nForced = ForcedIndex();
    if (nForced < 0) {
        Select(0);
    } else {
        m_nSel = nForced;
        for (int i = 0; i < CProfessionTable::COUNT; ++i)
            if (i != nForced) m_chkProfessions[static_cast<std::size_t>(i)].ShowWindow(SW_HIDE);
        Select(nForced);
    }
    Layout();
}

void CDlgFlashSelectPro::Layout() {
    const int nForced = ForcedIndex();
    if (nForced >= 0) {
        int rc[4] = {0, 0, 0, 0};
        READ_LAYOUT_NUMBERS(STR_RECT_FORCED, rc);
        m_chkProfessions[static_cast<std::size_t>(nForced)].MoveWindow(rc[0], rc[1], rc[2], rc[3]);
        return;
    }
    CSimCheck& archer = m_chkProfessions[CProfessionTable::INDEX_ARCHER];
    archer.EnableWindow(m_bShow80 ? TRUE : FALSE);
    archer.ShowWindow(m_bShow80 ? SW_SHOW : SW_HIDE);
    if (m_bShow80) {
        archer.SetChecked(false);
        SetBoxEffect(CProfessionTable::INDEX_ARCHER, false);
    }
    const int nBoxes = m_bShow80 ? CProfessionTable::STANDARD_COUNT + 1 : CProfessionTable::STANDARD_COUNT;
    const std::uint32_t nBase = m_bShow80 ? STR_RECT_WITH_80 : STR_RECT_WITHOUT_80;
    for (int i = 0; i < nBoxes; ++i) {
        int rc[4] = {0, 0, 0, 0};
        READ_LAYOUT_NUMBERS(nBase + static_cast<std::uint32_t>(i), rc);
        m_chkProfessions[static_cast<std::size_t>(i)].MoveWindow(rc[0], rc[1], rc[2], rc[3]);
    }
}

void CDlgFlashSelectPro::SetServerInfo(std::int32_t nFirst, bool bSecondOpen, bool bThirdOpen, bool bShow80) {
    m_bShow80 = bShow80;
    if (!IsWindowVisible()) return;
    // NOTE: while the dialog initialises (it is shown again, e.g. back from the head grid) the choice must
    // stay: only the marks are renewed, Reset runs only for the host's new facts.
    if (!m_bInitialising) {
        ResetChoice();
        Layout();
    }
    ApplyEffects(nFirst, bSecondOpen, bThirdOpen);
}

void CDlgFlashSelectPro::ApplyEffects(std::int32_t nFirst, bool bSecondOpen, bool bThirdOpen) {
    m_effectA.Clear();
    m_chkProfessions[CProfessionTable::INDEX_ARCHER].SetTipShow("", NO_TIP_COLOUR);
    m_effectB.Clear();
    if (!m_bShow80) return;
    IScreenContext* pContext = ScreenContext();
    m_effectB.Add(EFFECT_GLOW);
    SetOffsetFrom(m_effectB, STR_OFFSET_GLOW);
    if (nFirst == 1) {
        m_effectA.Add(EFFECT_NEW);
        SetOffsetFrom(m_effectA, STR_OFFSET_NEW);
        if (pContext)
            m_chkProfessions[CProfessionTable::INDEX_ARCHER].SetTipText(pContext->GetStr(STR_TIP_NEW));
    } else if (!bSecondOpen && !bThirdOpen) {
        m_effectA.Add(EFFECT_LOCK);
        SetOffsetFrom(m_effectA, STR_OFFSET_LOCK);
        if (pContext)
            m_chkProfessions[CProfessionTable::INDEX_ARCHER].SetTipText(pContext->GetStr(STR_TIP_LOCK));
    } else {
        m_dwEffectDue = GetTickCount() + EFFECT_DELAY_MS;
    }
}

void CDlgFlashSelectPro::SetOffsetFrom(CMyGame3DEffectEx& effect, std::uint32_t nStrId) {
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(nStrId, offset);
    effect.SetOffset(offset[0], offset[1], 0, -1);
}

void CDlgFlashSelectPro::ClearEffects() {
    m_effectA.Clear();
    m_effectB.Clear();
}

BOOL CDlgFlashSelectPro::OnInitDialog() {
    CSimDialog::OnInitDialog();
    RefreshHead();
    MarkSelection();
    m_chkMale.SetChecked(m_nSex == CProfessionTable::SEX_MALE);
    m_chkFemale.SetChecked(m_nSex == CProfessionTable::SEX_FEMALE);
    if (IsOpenInactive()) {
        m_btnBack.EnableWindow(FALSE);
        m_bHeadClickable = false;
    }
    m_effectA.Clear();
    m_effectA.SetOblique(false);
    m_effectB.Clear();
    m_effectB.SetOblique(false);
    const IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    const SCreateRoleParam& param = pContext->GetCreateRoleParam();
    m_bInitialising = true;
    SetServerInfo(param.nNewServer, param.nSwitchA > 0 && pContext->IsSelectedServerAchTips(),
                  param.nSwitchB > 0, m_bShow80);
    m_bInitialising = false;
    return TRUE;
}

LRESULT CDlgFlashSelectPro::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == LuGui::LU_MSG_ACTIVATE) {
        m_btnBack.EnableWindow(TRUE);
        m_bHeadClickable = true;
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

BOOL CDlgFlashSelectPro::PreTranslateMessage(MSG* pMsg) {
    if (pMsg && pMsg->message == WM_LBUTTONDOWN && m_bHeadClickable &&
        (m_imgHead.HitTest(pMsg->pt) || m_imgMore.HitTest(pMsg->pt))) {
        OnHead();
        return TRUE;
    }
    return CSimDialog::PreTranslateMessage(pMsg);
}

void CDlgFlashSelectPro::OnProfession(int nIndex) {
    Select(nIndex);
}

void CDlgFlashSelectPro::OnSex(std::int32_t nSex) {
    m_chkMale.SetChecked(nSex == CProfessionTable::SEX_MALE);
    m_chkFemale.SetChecked(nSex == CProfessionTable::SEX_FEMALE);
    if (m_nSex == nSex) return;
    m_nSex = nSex;
    RefreshHead();
    if (m_pCreateRole) m_pCreateRole->SetSex(nSex);
}

void CDlgFlashSelectPro::OnHead() {
    ShowWindow(SW_HIDE);
    if (m_pSelectHead) m_pSelectHead->ShowWindow(SW_SHOW);
}

void CDlgFlashSelectPro::OnBack() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    pContext->NotifyHost("SendNewwerAction", "10102");
    pContext->NotifyHost("RoleReturn", "");
}

void CDlgFlashSelectPro::OnChangeFlag() {
    NotifyMyShell(SHELL_NATIONALITY, 1, nullptr, 0);
}

void CDlgFlashSelectPro::UpdateFlag(bool bFallback) {
    IMyGameDataEn* pData = MyGameDataEnQuery();
    CZrString strPicture;
    if (pData && pData->GetNationalityPicture(strPicture))
        m_imgFlag.InitImage(strPicture.c_str(), IMAGE_CONTROL, nullptr);
    else if (bFallback)
        m_imgFlag.InitImage(NO_NATIONALITY_PICTURE, IMAGE_CONTROL, nullptr);
}

int CDlgFlashSelectPro::Show() {
    CRolePreview::ResetCamera();
    CSimDialog::Show();
    if (m_pCreateRole) m_pCreateRole->DrawCreationControls();
    if (m_btnBack.IsWindowVisible()) m_btnBack.Show();
    if (m_btnChangeFlag.IsWindowVisible()) m_btnChangeFlag.Show();
    if (m_bShow80 && static_cast<std::int32_t>(GetTickCount() - m_dwEffectDue) > 0 && IsWindowVisible()) {
        m_effectA.Show(0, 0, nullptr);
        m_effectB.Show(0, 0, nullptr);
    }
    const IScreenContext* pContext = ScreenContext();
    const std::int32_t nForced = pContext ? pContext->GetCreateRoleParam().nForcedType : 0;
    if (ForcedIndex() >= 0 && pContext) {
        int offset[2] = {0, 0};
        READ_LAYOUT_NUMBERS(STR_FORCED_OFFSET + static_cast<std::uint32_t>(nForced), offset);
        const RECT rc = GetWindowRect();
        CGameGraphic::ShowCtrlAni(
            ScreenContext()->GetStr(STR_FORCED_ANI + static_cast<std::uint32_t>(nForced)),
            rc.left + offset[0], rc.top + offset[1]);
    }
    IMyGameDataEn* pData = MyGameDataEnQuery();
    if (pData && pData->IsNationalityUsed()) UpdateFlag(false);
    return 1;
}
