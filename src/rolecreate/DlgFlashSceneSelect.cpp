// The start choice of profession 100: placement at the bottom centre, the two confirmations to the host and
// the opening-time tip over the closed high-level start.
#include "rolecreate/DlgFlashSceneSelect.h"

#include <array>

#include "platform/GameGraphic.h"
#include "platform/Input.h"
#include "platform/LuGui.h"
#include "platform/MyAni.h"
#include "rolecreate/EnglishPlacement.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_CHOICE_OFFSET = 55000001;
constexpr std::uint32_t STR_HIGH_LEVEL_OFFSET = 55000003;
constexpr std::uint32_t STR_NORMAL_OFFSET = 55000004;
constexpr const char* CHOICE_PICTURE = "HighLevel_ChoicePic";
constexpr const char* HIGH_LEVEL_PICTURE = "HighLevel_CreateHighLevel";
constexpr const char* NORMAL_PICTURE = "HighLevel_CreateNormal";
constexpr DWORD TIP_COLOUR = 0xFFFFFFFF;
constexpr std::uint32_t YEAR_DIV = 100000000, MONTH_DIV = 1000000, DAY_DIV = 10000, HOUR_DIV = 100,
                        PART = 100;

POINT OffsetOf(std::uint32_t nStrId) {
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(nStrId, offset);
    return POINT{offset[0], offset[1]};
}
} // namespace

CDlgFlashSceneSelect::CDlgFlashSceneSelect() : CSimDialog(IDD) {
}

CDlgFlashSceneSelect::~CDlgFlashSceneSelect() = default;

void CDlgFlashSceneSelect::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_HIGH_LEVEL, m_btnHighLevel);
    LuGui::DDX_Control(pDX, IDC_NORMAL, m_btnNormal);
}

void CDlgFlashSceneSelect::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_HIGH_LEVEL, &CDlgFlashSceneSelect::OnHighLevel);
    PushMsgMap(WM_COMMAND, IDC_NORMAL, &CDlgFlashSceneSelect::OnNormal);
}

BOOL CDlgFlashSceneSelect::OnInitDialog() {
    CSimDialog::OnInitDialog();
    IScreenContext* pContext = ScreenContext();
    const SIZE main = CEnglishPlacement::MainSize(pContext);
    const int nWidth = GetWidth();
    const int nHeight = GetHeight();
    MoveWindow(main.cx / 2 - nWidth / 2, main.cy - nHeight, nWidth, nHeight);
    m_btnHighLevel.EnableWindow(pContext && pContext->GetCreateRoleParam().bSceneSelect ? TRUE : FALSE);
    return TRUE;
}

void CDlgFlashSceneSelect::OnHighLevel() {
    if (IScreenContext* pContext = ScreenContext())
        pContext->NotifyHost("OpenConfirmDlgOnSwordUpLevel", pContext->GetStr(STR_CONFIRM_HIGH_LEVEL));
}

void CDlgFlashSceneSelect::OnNormal() {
    if (IScreenContext* pContext = ScreenContext())
        pContext->NotifyHost("OpenConfirmDlgOnSwordNormal", pContext->GetStr(STR_CONFIRM_NORMAL));
}

std::string CDlgFlashSceneSelect::FormatOpeningTime(const char* szFormat, std::uint32_t nTime) {
    const std::array<int, 5> parts = {
        static_cast<int>(nTime / YEAR_DIV), static_cast<int>(nTime / MONTH_DIV % PART),
        static_cast<int>(nTime / DAY_DIV % PART), static_cast<int>(nTime / HOUR_DIV % PART),
        static_cast<int>(nTime % PART)};
    char szTip[TIP_MAX + 1] = {};
    SafeSprintf(szTip, sizeof szTip, szFormat ? szFormat : "", parts[0], parts[1], parts[2], parts[3],
                parts[4]);
    return szTip;
}

void CDlgFlashSceneSelect::ShowOpeningTimeTip() {
    IScreenContext* pContext = ScreenContext();
    LuGui::ILuGuiMgr* pMgr = GetGuiMgr();
    if (!pContext || !pMgr) return;
    const auto nTime = static_cast<std::uint32_t>(pContext->GetCreateRoleParam().nExtra2);
    const std::string strTip = FormatOpeningTime(pContext->GetStr(STR_OPENING_TIME), nTime);
    POINT pt{};
    GetCursorPos(&pt);
    pMgr->ShowTip(strTip.c_str(), pt.x, pt.y, TIP_COLOUR);
}

int CDlgFlashSceneSelect::Show() {
    const RECT rc = GetWindowRect();
    const POINT choice = OffsetOf(STR_CHOICE_OFFSET);
    if (CMyAni* pAni = QueryMyAniMgr()->QueryAni(CONTROL_ANI_FILE, CHOICE_PICTURE)) {
        pAni->Show(0, rc.left + choice.x, rc.top + choice.y);
        pAni->Release();
    }
    CSimDialog::Show();
    const POINT high = OffsetOf(STR_HIGH_LEVEL_OFFSET);
    CGameGraphic::ShowAni(CONTROL_ANI_FILE, HIGH_LEVEL_PICTURE, rc.left + high.x, rc.top + high.y);
    const POINT normal = OffsetOf(STR_NORMAL_OFFSET);
    CGameGraphic::ShowAni(CONTROL_ANI_FILE, NORMAL_PICTURE, rc.left + normal.x, rc.top + normal.y);
    if (!m_btnHighLevel.IsWindowEnabled() && m_btnHighLevel.IsMouseOver()) ShowOpeningTimeTip();
    return 1;
}
