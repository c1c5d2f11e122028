// QR-code login: the code-scanning dialog the main login opens, which shows the host's one-time key as a QR
// code and asks for a fresh key when the code expired.
#include "login/DlgScanCodeLoginEn.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/Graphics.h"
#include "platform/Log.h"
#include "platform/MyAni.h"
#include "resources/TextScan.h"
#include "screen/LayoutNumbers.h"
#include "screen/PanelFrame.h"
#include "screen/ScreenContext.h"

namespace {
constexpr const char* CMD_REQUEST_KEY = "REQUEST_QRKey";
constexpr const char* CMD_KILL_TIMERS = "KILL_All_TIMER";

// String resource 1010113: extra width, extra height, two numbers used elsewhere, lift above the centre.
constexpr std::array<int, 5> PLACEMENT_DEFAULTS = {24, 45, 45, 2, 15};
constexpr std::size_t PLACEMENT_EXTRA_WIDTH = 0;
constexpr std::size_t PLACEMENT_EXTRA_HEIGHT = 1;
constexpr std::size_t PLACEMENT_LIFT = 4;
} // namespace

CDlgScanCodeLoginEn::CDlgScanCodeLoginEn() : CSimDialog(IDD), m_renderer(PICTURE_FILE, LOCK_FAIL_TEXT) {
    SetDrawMargin(panelframe::MARGIN);
}

CDlgScanCodeLoginEn::~CDlgScanCodeLoginEn() = default;

// ---- controls ------------------------------------------------------------------------------------

void CDlgScanCodeLoginEn::DoDataExchange(LuGui::CDataExchange* pDX) {
    CSimDialog::DoDataExchange(pDX);
    LuGui::DDX_Control(pDX, IDC_CLOSE, m_btnClose);
    LuGui::DDX_Control(pDX, IDC_TITLE, m_staTitle);
    LuGui::DDX_Control(pDX, IDC_HINT, m_staHint);
    LuGui::DDX_Control(pDX, IDC_DOWNLOAD, m_btnDownload);
    LuGui::DDX_Control(pDX, IDC_DOWNLOAD_LINE, m_staDownloadLine);
    LuGui::DDX_Control(pDX, IDC_CODE, m_btnCode);
    LuGui::DDX_Control(pDX, IDC_REFRESH, m_btnRefresh);
}

void CDlgScanCodeLoginEn::MessageMap() {
    CSimDialog::MessageMap();
    PushMsgMap(WM_COMMAND, IDC_CLOSE, &CDlgScanCodeLoginEn::OnClose);
    PushMsgMap(WM_COMMAND, IDC_REFRESH, &CDlgScanCodeLoginEn::OnRefresh);
    PushMsgMap(WM_COMMAND, IDC_CODE, &CDlgScanCodeLoginEn::OnCode);
    PushMsgMap(WM_COMMAND, IDC_DOWNLOAD, &CDlgScanCodeLoginEn::OnDownload);
}

// ---- handlers ------------------------------------------------------------------------------------

void CDlgScanCodeLoginEn::OnClose() {
    m_nQRStatus = QR_REQUESTED;
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost(CMD_KILL_TIMERS, "");
    ShowWindow(SW_HIDE);
}

void CDlgScanCodeLoginEn::OnRefresh() {
    RequestKey();
}

void CDlgScanCodeLoginEn::OnCode() {
    if (m_nQRStatus == QR_EXPIRED) RequestKey();
}

void CDlgScanCodeLoginEn::OnDownload() {
    if (IScreenContext* pContext = ScreenContext())
        pContext->OpenWebAddress(pContext->GetStr(STR_DOWNLOAD_ADDRESS));
}

void CDlgScanCodeLoginEn::RequestKey() {
    m_nQRStatus = QR_REQUESTED;
    if (IScreenContext* pContext = ScreenContext()) pContext->NotifyHost(CMD_REQUEST_KEY, "");
}

// ---- opening -------------------------------------------------------------------------------------

BOOL CDlgScanCodeLoginEn::OnInitDialog() {
    CSimDialog::OnInitDialog();
    m_nQRStatus = QR_REQUESTED;
    m_nPosX = 0;
    m_nPosY = 0;
    PlaceFromWindowRecord();
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return TRUE;
    m_staTitle.SetWindowTextA(pContext->GetStr(STR_TITLE));
    m_staHint.SetWindowTextA(pContext->GetStr(STR_HINT));
    m_btnDownload.SetWindowTextA(pContext->GetStr(STR_DOWNLOAD));
    m_staDownloadLine.SetWindowTextA(pContext->GetStr(STR_DOWNLOAD_LINE));
    ReadDrawingNumbers();
    pContext->NotifyHost(CMD_REQUEST_KEY, "");
    return TRUE;
}

void CDlgScanCodeLoginEn::PlaceFromWindowRecord() {
    RECT rcRecord{};
    if (!MyGameDataQuery()->GetWindowRecord(WINDOW_RECORD, rcRecord)) {
        // NOTE: without the record the dialog stays where the layout put it, and the background follows it
        // there (docs/DECISIONS.md).
        const RECT rcWindow = GetWindowRect();
        m_nPosX = rcWindow.left;
        m_nPosY = rcWindow.top;
        return;
    }
    std::array<int, 5> numbers = PLACEMENT_DEFAULTS;
    const char* szPlacement = RoleDataQueryEx()->GetStrRes(STRRES_PLACEMENT);
    if (!szPlacement || !*szPlacement) {
        LogLocalErrMsg("sscanf_s source NULL !!! line %d file %s", __LINE__, _log::CutFileName(__FILE__));
    } else {
        const auto read = textscan::ReadInts(szPlacement, numbers.size());
        for (std::size_t i = 0; i < read.size(); ++i) numbers[i] = read[i];
    }
    // Sums of outside numbers saturate rather than overflow.
    const auto sum = [](long long a, long long b) {
        return static_cast<int>(std::clamp<long long>(a + b, INT32_MIN, INT32_MAX));
    };
    const int nWidth =
        sum(static_cast<long long>(rcRecord.right) - rcRecord.left, numbers[PLACEMENT_EXTRA_WIDTH]);
    const int nHeight =
        sum(static_cast<long long>(rcRecord.bottom) - rcRecord.top, numbers[PLACEMENT_EXTRA_HEIGHT]);
    m_nPosX = sum(CMyBitmap::GetScreenWidth(), -static_cast<long long>(nWidth)) / 2;
    m_nPosY = sum(sum(CMyBitmap::GetScreenHeight(), -static_cast<long long>(nHeight)) / 2,
                  -static_cast<long long>(numbers[PLACEMENT_LIFT]));
    MoveWindow(m_nPosX, m_nPosY, nWidth, nHeight);
}

void CDlgScanCodeLoginEn::ReadDrawingNumbers() {
    // NOTE: read when the dialog opens rather than every frame: a missing entry is then logged once per
    // opening instead of sixty times a second (docs/DECISIONS.md).
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_PICTURE_OFFSET, offset);
    m_ptPictureOffset = POINT{offset[0], offset[1]};
    int size[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_PICTURE_SIZE, size);
    m_sizePicture = SIZE{size[0], size[1]};
    int expired[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_EXPIRED_OFFSET, expired);
    m_ptExpiredOffset = POINT{expired[0], expired[1]};
}

// ---- the key -------------------------------------------------------------------------------------

void CDlgScanCodeLoginEn::SetQRKey(const char* szKey, int nScale) {
    m_renderer.Render(szKey, nScale);
}

// ---- drawing -------------------------------------------------------------------------------------

int CDlgScanCodeLoginEn::Show() {
    const int nResult = CSimDialog::Show();
    if (!nResult) return nResult;
    panelframe::Draw(*this, m_nPosX, m_nPosY);
    // The controls again, over the background, in this order.
    for (LuGui::CLuBaseWindow* pControl :
         std::array<LuGui::CLuBaseWindow*, 7>{&m_btnClose, &m_staTitle, &m_staHint, &m_btnDownload,
                                              &m_btnCode, &m_staDownloadLine, &m_btnRefresh})
        pControl->Show();
    const RECT rcCode = m_btnCode.GetWindowRect();
    CMyBitmap* pBitmap = m_renderer.GetBitmap();
    if (pBitmap && m_nQRStatus != QR_REQUESTED)
        pBitmap->Show(rcCode.left + m_ptPictureOffset.x, rcCode.top + m_ptPictureOffset.y, 0,
                      m_sizePicture.cx, m_sizePicture.cy);
    if (m_nQRStatus == QR_EXPIRED) {
        if (CMyAni* pAni = QueryMyAniMgr()->QueryAni(CONTROL_ANI_FILE, EXPIRED_ANI)) {
            pAni->Show(0, rcCode.left + m_ptExpiredOffset.x, rcCode.top + m_ptExpiredOffset.y);
            pAni->Release();
        }
    }
    return nResult;
}
