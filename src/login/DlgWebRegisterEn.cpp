// The account registration web page hosted in the client: a framed dialog, centred on the screen, around the
// simulator's embedded browser and a close button.
#include "login/DlgWebRegisterEn.h"

#include <algorithm>

#include "controls/WebBrowserEn.h"
#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/GameLogic.h"
#include "platform/Graphics.h"
#include "platform/Log.h"
#include "platform/MyAni.h"
#include "resources/TextScan.h"
#include "screen/PanelFrame.h"
#include "screen/ScreenContext.h"

namespace {

constexpr const char* CMD_CLEAR_KEY_INPUT = "CLEAR_KEY_INPUT";
constexpr UINT MSG_SHOW_WINDOW = 24;

// Order of the frame numbers in the role data's text.
constexpr std::size_t FRAME_EXTRA_WIDTH = 0;
constexpr std::size_t FRAME_EXTRA_HEIGHT = 1;
constexpr std::size_t FRAME_CLOSE_DISTANCE = 2;
constexpr std::size_t FRAME_CLOSE_TOP = 3;
constexpr std::size_t FRAME_LIFT = 4;

int Saturate(long long v) {
    return static_cast<int>(std::clamp<long long>(v, INT32_MIN, INT32_MAX));
}

} // namespace

CDlgWebRegisterEn::CDlgWebRegisterEn() : CSimDialog(IDD) {
    SetDrawMargin(panelframe::MARGIN);
}

CDlgWebRegisterEn::~CDlgWebRegisterEn() = default;

void CDlgWebRegisterEn::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_CLOSE, m_btnClose);
}

void CDlgWebRegisterEn::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_CLOSE, &CDlgWebRegisterEn::OnClose);
}

BOOL CDlgWebRegisterEn::OnInitDialog() {
    CSimDialog::OnInitDialog();
    BringToTop();
    return TRUE;
}

// ---- opening ---------------------------------------------------------------------------------------

void CDlgWebRegisterEn::OpenPage(int nKind, int nLayoutId, const char* szUrl) {
    m_ptPos = POINT{0, 0};
    PlaceAroundPage(nLayoutId);
    if (nKind == PAGE_KIND_BROWSER && m_pBrowser) {
        // NOTE: layout ids are 16-bit in the game data; others cannot name a record.
        const auto usLayout = static_cast<unsigned short>(std::clamp(nLayoutId, 0, 0xFFFF));
        m_pBrowser->Init(nLayoutId == usLayout ? usLayout : 0, szUrl, 0, 0);
        m_pBrowser->Open(this);
    }
    GameLogicEnGet()->OnRegisterPageOpen();
}

bool CDlgWebRegisterEn::PlaceAroundPage(int nLayoutId) {
    RECT rcRecord{};
    if (!MyGameDataQuery()->GetWindowRecord(nLayoutId, rcRecord)) return false;
    std::array<int, 5> numbers = FRAME_DEFAULTS;
    const char* szFrame = RoleDataQueryEx()->GetRoleText(ROLETEXT_FRAME);
    if (!szFrame || !*szFrame) {
        LogLocalErrMsg("sscanf_s source NULL !!! line %d file %s", __LINE__, _log::CutFileName(__FILE__));
    } else {
        const auto read = textscan::ReadInts(szFrame, numbers.size());
        std::copy(read.begin(), read.end(), numbers.begin());
        if (read.empty())
            LogMsg("web register: text %u holds no numbers, the frame keeps its defaults", ROLETEXT_FRAME);
    }
    const long long width =
        static_cast<long long>(rcRecord.right) - rcRecord.left + numbers[FRAME_EXTRA_WIDTH];
    const long long height =
        static_cast<long long>(rcRecord.bottom) - rcRecord.top + numbers[FRAME_EXTRA_HEIGHT];
    const int x = Saturate((CMyBitmap::GetScreenWidth() - width) / 2);
    const int y = Saturate((CMyBitmap::GetScreenHeight() - height) / 2 - numbers[FRAME_LIFT]);
    m_ptPos = POINT{x, y};
    MoveWindow(x, y, Saturate(width), Saturate(height), FALSE);
    const RECT rcClose = m_btnClose.GetWindowRect();
    m_btnClose.MoveWindow(Saturate(width - numbers[FRAME_CLOSE_DISTANCE]), numbers[FRAME_CLOSE_TOP],
                          Saturate(static_cast<long long>(rcClose.right) - rcClose.left),
                          Saturate(static_cast<long long>(rcClose.bottom) - rcClose.top), FALSE);
    return true;
}

// ---- drawing ---------------------------------------------------------------------------------------

int CDlgWebRegisterEn::Show() {
    const int nResult = CSimDialog::Show();
    panelframe::Draw(*this, m_ptPos.x, m_ptPos.y);
    GameLogicEnGet()->SetRegisterPageCentre(m_ptPos.x + GetWidth() / 2, m_ptPos.y + GetHeight() / 2);
    if (m_pBrowser) m_pBrowser->Draw();
    m_btnClose.Show(); // over the page
    return nResult;
}

// ---- messages --------------------------------------------------------------------------------------

LRESULT CDlgWebRegisterEn::WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == MSG_SHOW_WINDOW) OnShownOrHidden(wParam != 0);
    if (m_pBrowser && m_pBrowser->OnWindowMessage(uMsg, wParam, lParam)) return 1;
    return CSimDialog::WindowProc(uMsg, wParam, lParam);
}

void CDlgWebRegisterEn::OnShownOrHidden(bool bShown) {
    if (IScreenContext* pContext = ScreenContext())
        pContext->NotifyHost(CMD_CLEAR_KEY_INPUT, bShown ? "0" : "1");
    RoleDataQueryEn()->SetWebPageSwitch(bShown ? 1 : 0);
    if (!bShown && m_pBrowser) m_pBrowser->Close();
}

BOOL CDlgWebRegisterEn::PreTranslateHostMessage(MSG* pMsg) {
    if (m_pBrowser) m_pBrowser->OnPreTranslateMessage(pMsg);
    return CSimDialog::PreTranslateMessage(pMsg);
}

void CDlgWebRegisterEn::OnClose() {
    if (IScreenContext* pContext = ScreenContext()) pContext->SetVariable("SetRegisterOpen", "1");
    ShowWindow(SW_HIDE);
}
