// The English introduction panel: the name exchange with the host, registration, sex, suggested names and the
// reward notice of profession 100.
#include "rolecreate/DlgFlashProIntro.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/GameGraphic.h"
#include "platform/GameLogic.h"
#include "platform/Graphics.h"
#include "platform/RoleLib.h"
#include "rolecreate/CreationGates.h"
#include "rolecreate/DlgFlashAction.h"
#include "rolecreate/DlgFlashBaseInfo.h"
#include "rolecreate/DlgFlashSceneSelect.h"
#include "rolecreate/ProfessionTable.h"
#include "rolecreate/RolePreview.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_SUMMARY_BASE = 8000030;
constexpr std::uint32_t STR_DESCRIPTION_BASE = 8000040;
/// Profession ids from 100 on take their texts 100 entries further.
constexpr std::int32_t TEXT_HIGH_PROFESSION = 100;
constexpr std::int32_t TEXT_HIGH_SHIFT = 100;
constexpr std::int32_t PROFESSION_MIN = 10;
constexpr std::int32_t PROFESSION_MAX = 100;
constexpr std::uint32_t STR_NAME_TEXT_OFFSET = 9000013;
constexpr std::uint32_t STR_NAME_TIP_OFFSET = 9000014;
constexpr std::uint32_t STR_NAME_FRAME_OFFSET = 9000018;
constexpr std::uint32_t STR_BACKDROP_OFFSET = 9000019;
constexpr std::uint32_t STR_DESCRIPTION_WIDEN = 9000020;
constexpr DWORD SUMMARY_COLOUR = 0x27F6FE;
constexpr DWORD DESCRIPTION_COLOUR = 0xD0D0D0;
constexpr int TEXT_FONT_WIDTH = 7;
constexpr int TEXT_FONT_HEIGHT = 14;
constexpr int NAME_FONT_FORMAT = 3;
constexpr const char* BACKDROP_PICTURE = "encrerole_rightdb";
constexpr const char* MALE_PICTURE = "encrerole_n1";
constexpr const char* FEMALE_PICTURE = "encrerole_n";
constexpr const char* DICE_PICTURE = "encrerole_tz";
constexpr const char* CREATE_PICTURE = "encrerole_ks";
constexpr std::int32_t SWORD = CProfessionTable::PROFESSION_SWORD;

/// The reward notice of profession 100: an animation at each offset string, and a text beside three of them.
struct SRewardPiece {
    std::uint32_t nOffsetStr;
    const char* szAni;
    std::uint32_t nTextStr; ///< 0: no text
};
constexpr SRewardPiece REWARD_PIECES[] = {
    {55000005, "HighLevel_RewardWord", 0},
    {55000006, "HighLevel_LSJ", 55000011},
    {55000007, "HighLevel_LSS", 55000012},
    {55000008, "HighLevel_JXZSGXLS", 55000013},
};
constexpr int REWARD_TEXT_LIMIT = 200;
constexpr int REWARD_FONT_SIZE = 14;
constexpr DWORD REWARD_TEXT_COLOUR = 0xFFFFFFFF;

/// The first female press of the process is reported once.
bool g_bOnceEvent415 = true;

std::uint32_t TextOffsetOf(std::int32_t nProfession) {
    const std::int32_t k = nProfession / 10 + (nProfession >= TEXT_HIGH_PROFESSION ? TEXT_HIGH_SHIFT : 0);
    return static_cast<std::uint32_t>(k);
}
} // namespace

CDlgFlashProIntro::CDlgFlashProIntro() : CSimDialog(IDD) {
}

CDlgFlashProIntro::~CDlgFlashProIntro() = default;

void CDlgFlashProIntro::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    // The backdrop lies under everything else: bound (and so drawn) first.
    DDX_Control(pDX, IDC_BACKDROP, m_staBackdrop);
    DDX_Control(pDX, IDC_PRO_ICON, m_staIcon);
    DDX_Control(pDX, IDC_ATTRIBUTE, m_staAttribute);
    DDX_Control(pDX, IDC_SUMMARY, m_staSummary);
    DDX_Control(pDX, IDC_DESCRIPTION, m_staDescription);
    DDX_Control(pDX, IDC_MALE, m_chkMale);
    DDX_Control(pDX, IDC_FEMALE, m_chkFemale);
    DDX_Control(pDX, IDC_NAME, m_edtName);
    DDX_Control(pDX, IDC_DICE, m_btnDice);
    DDX_Control(pDX, IDC_CREATE, m_btnCreate);
}

void CDlgFlashProIntro::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_MALE, &CDlgFlashProIntro::OnMale);
    PushMsgMap(WM_COMMAND, IDC_FEMALE, &CDlgFlashProIntro::OnFemale);
    PushMsgMap(WM_COMMAND, IDC_DICE, &CDlgFlashProIntro::OnDice);
    PushMsgMap(WM_COMMAND, IDC_CREATE, &CDlgFlashProIntro::OnCreate);
}

LRESULT CDlgFlashProIntro::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_COMMAND && LOWORD(wParam) == IDC_NAME) {
        // NOTE: the name box's own notifications (focus, change) must not reach a handler of its id.
        if (HIWORD(wParam) == EN_CHANGE) OnNameChanged();
        return 1;
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

void CDlgFlashProIntro::SetupNameBox(IScreenContext& context) {
    m_edtName.PreSetParam(false, 0, 0xFFFFFF, false);
    m_edtName.SetFontFormat(NAME_FONT_FORMAT);
    m_edtName.SetLimitChars(NAME_LIMIT_CHARS);
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_NAME_TEXT_OFFSET, offset);
    // NOTE: the entry holds the offset as (y, x): its first number is the toolkit's second argument.
    m_edtName.SetTextOffset(offset[1], offset[0]);
    m_edtName.SetLostFocusTip(context.GetStr(STR_NAME_TIP));
    int tip[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_NAME_TIP_OFFSET, tip);
    m_edtName.SetLostFocusTipOffset(tip[0], tip[1]);
    int frame[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_NAME_FRAME_OFFSET, frame);
    m_edtName.SetBackGroundOffset(frame[0], frame[1]);
}

BOOL CDlgFlashProIntro::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    int backdrop[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_BACKDROP_OFFSET, backdrop);
    m_staBackdrop.SetBackGroundOffset(backdrop[0], backdrop[1]);
    m_staBackdrop.SetBackGroundAni(BACKDROP_PICTURE);
    m_staSummary.SetFontColor(SUMMARY_COLOUR);
    m_staSummary.SetFontSize(TEXT_FONT_WIDTH, TEXT_FONT_HEIGHT);
    // The description is widened from its recorded width, so that repeated openings do not add up.
    const RECT rcDescription = m_staDescription.GetWindowRect();
    if (m_nDescriptionWidth < 0) m_nDescriptionWidth = rcDescription.right - rcDescription.left;
    const RECT rcDialog = GetWindowRect();
    m_staDescription.MoveWindow(rcDescription.left - rcDialog.left, rcDescription.top - rcDialog.top,
                                m_nDescriptionWidth + pContext->GetStrInt(STR_DESCRIPTION_WIDEN),
                                rcDescription.bottom - rcDescription.top);
    m_staDescription.SetFontColor(DESCRIPTION_COLOUR);
    m_staDescription.SetFontSize(TEXT_FONT_WIDTH, TEXT_FONT_HEIGHT);
    if (m_pAction) m_nProfession = m_pAction->GetProfession();
    ApplyProfession();
    HideSceneChoice();
    m_bRecheck = true;
    // NOTE: the preview starts male at every opening; the panel and the column follow it, so that the sex
    // registered is the one the figure shows.
    m_nSex = m_pAction ? m_pAction->GetSex() : CProfessionTable::SEX_MALE;
    if (m_pBaseInfo) m_pBaseInfo->SetSex(m_nSex);
    m_chkMale.SetChecked(m_nSex == CProfessionTable::SEX_MALE);
    m_chkMale.SetBackGroundAni(MALE_PICTURE);
    m_chkFemale.SetChecked(m_nSex == CProfessionTable::SEX_FEMALE);
    m_chkFemale.SetBackGroundAni(FEMALE_PICTURE);
    m_btnDice.SetBackGroundAni(DICE_PICTURE);
    m_btnCreate.SetBackGroundAni(CREATE_PICTURE);
    SetupNameBox(*pContext);
    return TRUE;
}

// ---- profession and sex --------------------------------------------------------------------------

void CDlgFlashProIntro::SetProfession(std::int32_t nProfession) {
    m_nProfession = nProfession;
    ApplyProfession();
    HideSceneChoice();
    m_bRecheck = true;
}

void CDlgFlashProIntro::ApplyProfession() {
    const bool bKnown = m_nProfession >= PROFESSION_MIN && m_nProfession <= PROFESSION_MAX;
    m_staIcon.SetBackGroundAni(bKnown ? CProfessionTable::IntroIconOf(m_nProfession) : "");
    m_staAttribute.SetBackGroundAni(bKnown ? CProfessionTable::IntroPictureOf(m_nProfession) : "");
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    const std::uint32_t k = TextOffsetOf(m_nProfession);
    m_staSummary.SetWindowTextA(pContext->GetStr(STR_SUMMARY_BASE + k));
    m_staDescription.SetWindowTextA(pContext->GetStr(STR_DESCRIPTION_BASE + k));
}

void CDlgFlashProIntro::ApplySex(std::int32_t nSex) {
    m_nSex = nSex;
    m_chkMale.SetChecked(nSex == CProfessionTable::SEX_MALE);
    m_chkFemale.SetChecked(nSex == CProfessionTable::SEX_FEMALE);
    if (m_pAction) m_pAction->SetSex(nSex);
    if (m_pBaseInfo) m_pBaseInfo->SetSex(nSex);
}

void CDlgFlashProIntro::OnMale() {
    ApplySex(CProfessionTable::SEX_MALE);
}

void CDlgFlashProIntro::OnFemale() {
    IScreenContext* pContext = ScreenContext();
    if (g_bOnceEvent415 && pContext) {
        g_bOnceEvent415 = false;
        pContext->NotifyHost("BURYING_POINT", "415");
    }
    ApplySex(CProfessionTable::SEX_FEMALE);
}

void CDlgFlashProIntro::OnDice() {
    CMsgRegisterNameRandomReq request;
    request.CreateHead(m_nSex == CProfessionTable::SEX_MALE, 0);
    request.Send();
}

// ---- scene choice --------------------------------------------------------------------------------

bool CDlgFlashProIntro::IsSceneChoiceVisible() const {
    return m_pSceneSelect && m_pSceneSelect->IsWindowVisible();
}

void CDlgFlashProIntro::HideSceneChoice() {
    if (IsSceneChoiceVisible()) m_pSceneSelect->ShowWindow(SW_HIDE);
}

void CDlgFlashProIntro::OnNameChanged() {
    HideSceneChoice();
}

void CDlgFlashProIntro::OnCreate() {
    if (m_nProfession != SWORD) return Register(true);
    if (!IsSceneChoiceVisible()) return Register(false);
    if (IScreenContext* pContext = ScreenContext())
        pContext->NotifyHost("OpenConfirmDlg", pContext->GetStr(STR_CONFIRM_SCENE));
}

// ---- the name exchange and registration ----------------------------------------------------------

void CDlgFlashProIntro::Register(bool bSend) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    pContext->SetProfession(m_nProfession);
    char szName[NAME_BYTES_READ] = {};
    m_edtName.GetWindowText(szName, NAME_BYTES_READ);
    if (szName[0] == '\0') {
        pContext->ShowMessageBox(MSGBOX_INPUT, pContext->GetStr(STR_NAME_EMPTY));
        return;
    }
    char16_t szUnits[NAME_UNITS_READ] = {};
    const int nUnits = m_edtName.GetWindowTextW(szUnits, NAME_UNITS_READ);
    const std::string strName = WStringToUTF8(szUnits, NAME_UTF8_MAX);
    if (SendNameForCheck(*pContext, strName, nUnits == 0)) return;
    if (!bSend) return;
    pContext->NotifyHost("SendNewwerAction", "10200");
    if (const std::uint32_t nRefusal = CCreationGates::RefusalOf(*pContext, m_nProfession)) {
        pContext->ShowMessageBox(MSGBOX_ERROR, pContext->GetStr(nRefusal));
        return;
    }
    SendRegistration(*pContext);
}

bool CDlgFlashProIntro::SendNameForCheck(IScreenContext& context, const std::string& strName,
                                         bool bEmptyUnits) {
    const bool bChanged = strName != m_strLastName;
    if (bChanged) context.SetNameCheck(false, false, false);
    if (!bChanged && !m_bRecheck) return false;
    m_bRecheck = false;
    if (context.IsNameChecked()) return false;
    if (bEmptyUnits) return true;
    if (strName.size() >= NAME_REFUSED_BYTES) {
        context.ShowMessageBox(MSGBOX_ERROR, context.GetStr(STR_NAME_TOO_LONG));
        return true;
    }
    m_strLastName = strName;
    context.NotifyHost("SetName", m_strLastName.c_str());
    return true;
}

void CDlgFlashProIntro::SendRegistration(IScreenContext& context) {
    if (m_nProfession != SWORD) HideSceneChoice();
    const int nHead = m_pBaseInfo ? m_pBaseInfo->GetHead() : 0;
    const std::int32_t nLook = m_pBaseInfo ? m_pBaseInfo->GetLook(nHead) : 0;
    context.NotifyHostInt("RoleProfession", m_nProfession);
    context.NotifyHostInt("ModelFace", m_pBaseInfo ? m_pBaseInfo->GetModelFace() : 0);
    context.SetModelFace(m_pBaseInfo ? m_pBaseInfo->GetModel() : 0);
    context.NotifyHostInt("SetLook", nLook);
    context.SetBaseInfoIndex(nHead);
    context.SetLookParity(nLook);
    context.NotifyHostInt("RoleRigister", m_nSex);
    m_bRecheck = true;
}

void CDlgFlashProIntro::ResetName() {
    m_strLastName.clear();
    m_edtName.SetWindowTextA("");
    if (IScreenContext* pContext = ScreenContext()) m_edtName.SetLostFocusTip(pContext->GetStr(STR_NAME_TIP));
}

void CDlgFlashProIntro::SetSuggestedName(const char* szName, std::int32_t nLength) {
    if (!IsWindowVisible()) return;
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    // NOTE: the host's length is trusted only up to the text's own end: a longer one never reads past it.
    const std::size_t nText = szName ? std::strlen(szName) : 0;
    const std::size_t nTake = nLength < 0 ? nText : std::min(nText, static_cast<std::size_t>(nLength));
    const std::string_view name(szName ? szName : "", nTake);
    if (name.empty()) {
        pContext->ShowMessageBox(MSGBOX_ERROR, pContext->GetStr(STR_NO_SUGGESTION));
        m_strSuggestedName.clear();
        return;
    }
    if (!m_edtName.IsWindowVisible()) return;
    m_edtName.SetWindowTextA(std::string(name).c_str());
    // What the box holds after its limits is what the player sees and what counts as suggested.
    m_strSuggestedName = m_edtName.GetWindowTextA();
}

bool CDlgFlashProIntro::IsNameUnchanged() const {
    if (m_strSuggestedName.empty()) return false;
    char szName[NAME_BYTES_READ] = {};
    m_edtName.GetWindowText(szName, NAME_BYTES_READ);
    return m_strSuggestedName == szName;
}

void CDlgFlashProIntro::EnableChineseInput() {
    if (!IsChineseInputAllowed() && IsWindowVisible()) m_edtName.EnableChinese(false);
}

void CDlgFlashProIntro::QueryChineseInput() {
    CMsgDataArray message;
    if (message.Create(DATA_CHINESE_SWITCH)) message.Send();
}

// ---- drawing -------------------------------------------------------------------------------------

int CDlgFlashProIntro::Show() {
    CRolePreview::ResetCamera();
    CSimDialog::Show();
    ShowRewardNotice();
    return 1;
}

void CDlgFlashProIntro::ShowRewardNotice() {
    IScreenContext* pContext = ScreenContext();
    if (m_nProfession != SWORD || !pContext || pContext->GetCreateRoleParam().nExtra1 == 0) return;
    const RECT rc = GetWindowRect();
    const char* szFont = CMyBitmap::GetDefaultFontName();
    for (const SRewardPiece& piece : REWARD_PIECES) {
        int offset[2] = {0, 0};
        READ_LAYOUT_NUMBERS(piece.nOffsetStr, offset);
        const int x = rc.left + offset[0];
        const int y = rc.top + offset[1];
        CGameGraphic::ShowAni(CONTROL_ANI_FILE, piece.szAni, x, y);
        if (piece.nTextStr == 0) continue;
        CGameGraphic::ShowStrRes(x, y, pContext->GetStr(piece.nTextStr), 0, szFont, REWARD_FONT_SIZE,
                                 REWARD_TEXT_COLOUR, 0, REWARD_TEXT_LIMIT);
    }
}
