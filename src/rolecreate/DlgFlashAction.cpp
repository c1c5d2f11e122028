// The English preview frame: the figure and its action buttons, the placement of the screen's other dialogs
// and the sound volume while it is shown.
#include "rolecreate/DlgFlashAction.h"

#include "platform/GameBase.h"
#include "platform/Graphics.h"
#include "platform/Role.h"
#include "rolecreate/DlgFlashBack.h"
#include "rolecreate/DlgFlashBaseInfo.h"
#include "rolecreate/DlgFlashProIntro.h"
#include "rolecreate/EnglishPlacement.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::uint32_t STR_LABEL_BASE = 3000197;
constexpr std::uint32_t STR_FRAME_OFFSET = 6660003;
constexpr DWORD LABEL_COLOUR = 0x4FA7D3;
constexpr DWORD LABEL_PRESSED_COLOUR = 0xFFFFFF;
constexpr int LABEL_FONT_WIDTH = 7;
constexpr int LABEL_FONT_HEIGHT = 14;
constexpr const char* LEFT_PICTURE = "CreRole_HWZPic";
constexpr const char* RIGHT_PICTURE = "CreRole_HWYPic";
constexpr const char* FRAME_PICTURE = "CreRole_rwzsbk";
/// The action each button plays: stand and attack show the figure, run plays its leave action.
constexpr int BUTTON_ACTIONS[CDlgFlashAction::ACTION_BUTTONS] = {ROLE_ACTION_SHOW, ROLE_ACTION_LEAVE,
                                                                 ROLE_ACTION_SHOW};
} // namespace

CDlgFlashAction::CDlgFlashAction() : CSimDialog(IDD) {
}

CDlgFlashAction::~CDlgFlashAction() = default;

void CDlgFlashAction::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    using LuGui::DDX_Control;
    DDX_Control(pDX, IDC_MODEL_AREA, m_btnModelArea);
    DDX_Control(pDX, IDC_LEFT_PICTURE, m_imgLeft);
    DDX_Control(pDX, IDC_RIGHT_PICTURE, m_imgRight);
    DDX_Control(pDX, IDC_FRAME, m_imgFrame);
    for (int i = 0; i < ACTION_BUTTONS; ++i) {
        DDX_Control(pDX, static_cast<int>(ACTION_IDS[i]), m_chkActions[static_cast<std::size_t>(i)]);
        DDX_Control(pDX, static_cast<int>(LABEL_IDS[i]), m_staLabels[static_cast<std::size_t>(i)]);
    }
}

void CDlgFlashAction::MessageMap() {
    CSimDialog::MessageMap();
    for (int i = 0; i < ACTION_BUTTONS; ++i)
        PushMsgMap(WM_COMMAND, ACTION_IDS[i], [this, i] { OnAction(i); });
}

void CDlgFlashAction::PreSetParam() {
    CSimDialog::PreSetParam();
    m_imgLeft.InitImage(LEFT_PICTURE, IMAGE_CONTROL, nullptr);
    m_imgRight.InitImage(RIGHT_PICTURE, IMAGE_CONTROL, nullptr);
    m_imgFrame.InitImage(FRAME_PICTURE, IMAGE_CONTROL, nullptr);
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_FRAME_OFFSET, offset);
    m_imgFrame.SetBackGroundOffset(offset[0], offset[1]);
    m_imgFrame.ShowWindow(SW_HIDE);
}

void CDlgFlashAction::ResetChoice() {
    m_preview.Reset();
}

void CDlgFlashAction::Open() {
    CEnglishPlacement::PlaceFrame(*this, CEnglishPlacement::MainSize(ScreenContext()));
    ShowWindow(SW_SHOW);
}

BOOL CDlgFlashAction::OnInitDialog() {
    CSimDialog::OnInitDialog();
    ResetChoice();
    for (CSimStatic& label : m_staLabels) label.SetFontSize(LABEL_FONT_WIDTH, LABEL_FONT_HEIGHT);
    // At the start the stand button is checked with its label in the common colour.
    MarkAction(0, LABEL_COLOUR);
    m_preview.InitGround();
    m_preview.BuildAndShow();
    PlaceSides();
    if (m_pBack) {
        CEnglishPlacement::PlaceBottomLeft(*m_pBack, CEnglishPlacement::MainSize(ScreenContext()));
        m_pBack->ShowWindow(SW_SHOW);
    }
    m_imgFrame.ShowWindow(SW_HIDE);
    return TRUE;
}

void CDlgFlashAction::PlaceSides() {
    const SIZE main = CEnglishPlacement::MainSize(ScreenContext());
    if (m_pProIntro) {
        CEnglishPlacement::PlaceSide(*m_pProIntro, STR_PANEL_PLACE, main, true);
        m_pProIntro->ShowWindow(SW_SHOW);
    }
    if (m_pBaseInfo) {
        CEnglishPlacement::PlaceSide(*m_pBaseInfo, STR_COLUMN_PLACE, main, false);
        m_pBaseInfo->ShowWindow(SW_SHOW);
    }
}

void CDlgFlashAction::MarkAction(int nButton, DWORD dwPressedColour) {
    IScreenContext* pContext = ScreenContext();
    for (int i = 0; i < ACTION_BUTTONS; ++i) {
        const auto k = static_cast<std::size_t>(i);
        m_chkActions[k].SetChecked(i == nButton);
        m_staLabels[k].SetFontColor(i == nButton ? dwPressedColour : LABEL_COLOUR);
        if (pContext)
            m_staLabels[k].SetWindowTextA(pContext->GetStr(STR_LABEL_BASE + static_cast<std::uint32_t>(i)));
    }
}

void CDlgFlashAction::OnAction(int nButton) {
    m_preview.PlayAction(BUTTON_ACTIONS[nButton]);
    MarkAction(nButton, LABEL_PRESSED_COLOUR);
}

int CDlgFlashAction::Show() {
    m_preview.Show();
    // NOTE: only the left picture is drawn; the action buttons and the other pictures stay undrawn (they
    // still take clicks, see docs/STATUS.md).
    if (m_imgLeft.IsWindowVisible()) m_imgLeft.Show();
    return 1;
}

LRESULT CDlgFlashAction::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_SHOWWINDOW) {
        if (wParam != 0)
            m_volume.OnShown();
        else
            m_volume.OnHidden();
    }
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}
