// The message box every screen uses: its kind decides its text, its buttons and what they send.
#include "rolecreate/DlgFlashConfirm.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "platform/GameData.h"
#include "platform/Input.h"
#include "rolecreate/DlgFlashProIntro.h"
#include "rolecreate/EnglishPlacement.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {

// The two server answers that send the standard creation layout back to its start.
constexpr const char* NAME_REFUSED_TEXTS[] = {"This name already exists. Please enter a new one.",
                                              "Error: Illegal Name!"};
constexpr const char* ENGLISH_LANGUAGE = "English";

bool IsNameRefusal(const char* szText) {
    for (const char* text : NAME_REFUSED_TEXTS)
        if (std::strcmp(szText, text) == 0) return true;
    return false;
}

// Where a span of nInner starts when centred on nOuter; any host size fits, the sum is taken in 64 bits.
int CentredStart(int nOuter, int nInner) {
    const std::int64_t start = (static_cast<std::int64_t>(nOuter) - nInner) / 2;
    return static_cast<int>(
        std::clamp<std::int64_t>(start, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

bool IsStandardCreationLayout() {
    return std::strcmp(RoleDataQueryEx()->GetLanguageName(), ENGLISH_LANGUAGE) != 0;
}

} // namespace

CDlgFlashConfirm::CDlgFlashConfirm() : CSimDialog(IDD) {
}

CDlgFlashConfirm::~CDlgFlashConfirm() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgFlashConfirm::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_BACKGROUND, m_staticBackground);
    LuGui::DDX_Control(pDX, IDC_EXCLAMATION, m_staticExclamation);
    LuGui::DDX_Control(pDX, IDC_MESSAGE, m_staticMessage);
    LuGui::DDX_Control(pDX, IDC_OK, m_btnOk);
    LuGui::DDX_Control(pDX, IDC_CANCEL, m_btnCancel);
}

void CDlgFlashConfirm::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_OK, &CDlgFlashConfirm::OnOk);
    PushMsgMap(WM_COMMAND, IDC_CANCEL, &CDlgFlashConfirm::OnCancel);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgFlashConfirm::OnOk() {
    IScreenContext* pContext = ScreenContext();
    switch (m_nType) {
    case TYPE_EXIT:
        if (pContext) pContext->NotifyHost("CMD_EXITOK", "");
        break;
    case TYPE_CLEAR_ACCOUNT:
        if (pContext) pContext->NotifyHost("CMD_CLEARACCOUNT", "");
        break;
    case TYPE_NAME_REFUSED:
        ReopenCreation();
        break;
    case TYPE_ERROR:
    case TYPE_INPUT:
        // NOTE: every notice of these kinds empties the English name box: the name refusals use them, and a
        // host error after a registration means the name must be chosen again.
        if (m_pProIntro) m_pProIntro->ResetName();
        break;
    default:
        break;
    }
    ShowWindow(SW_HIDE);
}

void CDlgFlashConfirm::OnCancel() {
    if (m_nType == TYPE_NAME_REFUSED) ReopenCreation();
    ShowWindow(SW_HIDE);
}

// ---- opening -------------------------------------------------------------------------------------

void CDlgFlashConfirm::Show(int nType, const char* szText) {
    ShowWindow(SW_SHOW);
    m_nType = nType;
    IScreenContext* pContext = ScreenContext();
    if (nType != TYPE_INPUT && pContext && pContext->GetMainPathWidth() != 0 &&
        pContext->GetMainPathHeight() != 0)
        PlaceByMainWindow();
    if (nType == TYPE_EXIT && pContext)
        m_staticMessage.SetWindowTextA(pContext->GetStr(STR_EXIT_QUESTION));
    else if (nType == TYPE_CLEAR_ACCOUNT && pContext)
        m_staticMessage.SetWindowTextA(pContext->GetStr(STR_CLEAR_ACCOUNT_QUESTION));
    else if ((nType == TYPE_ERROR || nType == TYPE_INPUT) && szText)
        m_staticMessage.SetWindowTextA(szText);
    if (nType == TYPE_INPUT) PlaceByMainWindow();
    if (szText && IsNameRefusal(szText) && IsStandardCreationLayout()) m_nType = TYPE_NAME_REFUSED;
    ArrangeButtons();
}

void CDlgFlashConfirm::PlaceByMainWindow() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    // NOTE: the client's formula (left - 1024 + W - w / 2, bottom + H - 768) lands where the toolkit's
    // coordinate conversion puts it; ours has none that makes it centre, so the box is centred directly.
    // A stored size that is no window size is taken as the design size, as the English creation screen does.
    const SIZE main = CEnglishPlacement::MainSize(pContext);
    const int nWidth = GetWidth();
    const int nHeight = GetHeight();
    MoveWindow(CentredStart(main.cx, nWidth), CentredStart(main.cy, nHeight), nWidth, nHeight, TRUE);
}

void CDlgFlashConfirm::ArrangeButtons() {
    const bool bTwoButtons = m_nType == TYPE_EXIT || m_nType == TYPE_CLEAR_ACCOUNT;
    int pos[2] = {0, 0};
    READ_LAYOUT_NUMBERS(bTwoButtons ? STR_OK_POS_TWO_BUTTONS : STR_OK_POS_ONE_BUTTON, pos);
    m_btnOk.MoveWindow(pos[0], pos[1], m_btnOk.GetWidth(), m_btnOk.GetHeight(), TRUE);
    m_btnCancel.EnableWindow(bTwoButtons ? TRUE : FALSE);
    m_btnCancel.ShowWindow(bTwoButtons ? SW_SHOW : SW_HIDE);
}

void CDlgFlashConfirm::ReopenCreation() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    char szSize[32];
    SafeSprintf(szSize, sizeof szSize, "%d-%d-1", GetSystemMetrics(SM_CXSCREEN),
                GetSystemMetrics(SM_CYSCREEN));
    pContext->SetVariable("SetMainPath", szSize);
    pContext->NotifyHost("CLOSE_BACK", "");
}

// ---- drawing -------------------------------------------------------------------------------------

int CDlgFlashConfirm::Show() {
    // The library draws the background, the sign, the message and the buttons, in binding order.
    return CSimDialog::Show();
}
