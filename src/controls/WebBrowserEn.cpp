// The embedded web browser that the web registration dialog hosts: one off-screen page of the browser
// library, copied into a bitmap where it changed and drawn at its place each frame, with input forwarding.
#include "controls/WebBrowserEn.h"

#include <algorithm>

#include "platform/BaseLib.h"
#include "platform/GameData.h"
#include "platform/GameLogic.h"
#include "platform/Log.h"

namespace {

// The browser library's creation values for an off-screen page.
constexpr int BROWSER_CREATE_FLAGS = 14;
constexpr int BROWSER_CREATE_MODE = 1;

// Pages larger than this per side get no pixel buffer: no page of a 1024 x 768 bitmap needs one.
constexpr int MAX_PAGE_SIDE = 8192;

// Input-method messages (composition start, end, composition, set context) are the page's alone.
bool IsImeMessage(UINT uMsg) {
    return uMsg == 269 || uMsg == 270 || uMsg == 271 || uMsg == 641;
}

// Mouse messages the page sees; the widget library sees them as well. Double clicks are not forwarded.
bool IsForwardedMouseMessage(UINT uMsg) {
    switch (uMsg) {
    case 512:
    case 513:
    case 514:
    case 516:
    case 517:
    case 519:
    case 520:
    case 522:
    case 675:
        return true;
    default:
        return false;
    }
}

// Key down and up, character, system key down and up, system character; 259 (dead character) is not.
bool IsForwardedKeyMessage(UINT uMsg) {
    return uMsg >= 256 && uMsg <= 262 && uMsg != 259;
}

// Codes below 128 reach the page; of the control codes only backspace, tab, line feed and enter.
constexpr std::uint32_t DROPPED_CONTROL_CODES = 0xFFFFD8FF;
constexpr WPARAM FIRST_DROPPED_CODE = 128;

bool IsForwardedKeyCode(WPARAM wCode) {
    if (wCode >= FIRST_DROPPED_CODE) return false;
    if (wCode >= 32) return true;
    return ((DROPPED_CONTROL_CODES >> wCode) & 1u) == 0;
}

long long Clamp64(long long v, long long lo, long long hi) {
    return std::clamp(v, lo, hi);
}

} // namespace

CWebBrowserEn::CWebBrowserEn() = default;

CWebBrowserEn::~CWebBrowserEn() {
    Close();
}

void CWebBrowserEn::Init(unsigned short usLayoutId, const char* szUrl, int nOffsetX, int nOffsetY) {
    RECT rcRecord{};
    if (!MyGameDataQuery()->GetWindowRecord(usLayoutId, rcRecord)) return;
    m_nOffsetX = nOffsetX;
    m_nOffsetY = nOffsetY;
    m_usLayoutId = usLayoutId;
    m_optPlacedRect.reset();
    if (szUrl && *szUrl) {
        m_strUrl = szUrl;
        m_bHasUrl = true;
    }
}

RECT CWebBrowserEn::GetPageRect() const {
    RECT rcRecord{};
    if (!MyGameDataQuery()->GetWindowRecord(m_usLayoutId, rcRecord))
        return RECT{0, 0, BITMAP_WIDTH, BITMAP_HEIGHT};
    const long long width = static_cast<long long>(rcRecord.right) - rcRecord.left;
    const long long height = static_cast<long long>(rcRecord.bottom) - rcRecord.top;
    long long left = 0;
    long long top = 0;
    if (rcRecord.left == 0 && rcRecord.top == 0) {
        // NOTE: a record at the origin means "centred"; the offsets are not added then.
        left = (CMyBitmap::GetScreenWidth() - width) / 2;
        top = (CMyBitmap::GetScreenHeight() - height) / 2;
    } else {
        left = static_cast<long long>(m_nOffsetX) + rcRecord.left;
        top = static_cast<long long>(rcRecord.top) + m_nOffsetY;
    }
    const auto fit = [](long long v) { return static_cast<LONG>(Clamp64(v, INT32_MIN, INT32_MAX)); };
    return RECT{fit(left), fit(top), fit(left + width), fit(top + height)};
}

bool CWebBrowserEn::Open(LuGui::CLuBaseWindow* pParent) {
    if (pParent) m_pParent = pParent;
    Create();
    return m_hBrowser != nullptr;
}

bool CWebBrowserEn::Create() {
    if (m_hBrowser || !m_pParent) return false;
    HWND hWnd = m_pParent->GetSafeHwnd();
    if (!hWnd || m_strUrl.empty()) return false;
    const RECT rc = GetPageRect();
    m_optPlacedRect = rc;
    const long long width = static_cast<long long>(rc.right) - rc.left;
    const long long height = static_cast<long long>(rc.bottom) - rc.top;
    m_hBrowser =
        K7Browser_Browser_Create(hWnd, m_strUrl.c_str(), rc.left, rc.top, static_cast<int>(width),
                                 static_cast<int>(height), this, BROWSER_CREATE_FLAGS, BROWSER_CREATE_MODE);
    if (width > 0 && height > 0 && width <= MAX_PAGE_SIDE && height <= MAX_PAGE_SIDE) {
        m_pPixels.assign(static_cast<std::size_t>(width * height * 4), 0);
        m_nBufferWidth = static_cast<int>(width);
        m_nBufferHeight = static_cast<int>(height);
    } else {
        LogMsg("web browser: page of %lld x %lld has no pixel buffer", width, height);
    }
    return m_hBrowser != nullptr;
}

void CWebBrowserEn::Reload() {
    m_optPlacedRect.reset();
    if (!m_hBrowser) {
        Create();
        return;
    }
    if (m_strUrl.empty()) {
        Close();
        return;
    }
    K7Browser_Browser_ReLoad(m_hBrowser, m_strUrl.c_str());
}

void CWebBrowserEn::Close() {
    if (m_hBrowser) {
        K7Browser_Browser_Destroy(m_hBrowser);
        m_hBrowser = nullptr;
    }
    ReleaseBitmap();
    m_optPlacedRect.reset();
    m_pPixels.clear();
    m_pPixels.shrink_to_fit();
    m_nBufferWidth = m_nBufferHeight = 0;
}

void CWebBrowserEn::ReleaseBitmap() {
    if (!m_pBitmap) return;
    m_pBitmap->Release();
    m_pBitmap = nullptr;
}

// ---- drawing ---------------------------------------------------------------------------------------

void CWebBrowserEn::Draw() {
    // NOTE: the page keeps the place it was created (or last reloaded) at, as its dialog keeps the frame
    // around it; reading the layout record every frame cost more than copying a small rectangle.
    if (!m_optPlacedRect) m_optPlacedRect = GetPageRect();
    const RECT rc = *m_optPlacedRect;
    if (!m_pBitmap) m_pBitmap = MyBitmapCreateEmpty(BITMAP_WIDTH, BITMAP_HEIGHT);
    int nValue = 0;
    int nDirty = 0;
    if (!m_pPixels.empty() &&
        K7Browser_OSR_Buffer_Get_Begin(m_hBrowser, m_pPixels.data(), &nValue, &nDirty)) {
        for (int i = 0; i < nDirty; ++i) {
            int x = 0, y = 0, w = 0, h = 0;
            K7Browser_OSR_DirtyRect_Get(m_hBrowser, i, &x, &y, &w, &h);
            CopyDirtyRect(x, y, w, h, m_nBufferWidth, m_nBufferHeight);
        }
        K7Browser_OSR_Buffer_Get_End(m_hBrowser);
    }
    if (m_pBitmap) m_pBitmap->Show(rc.left, rc.top);
}

void CWebBrowserEn::CopyDirtyRect(int x, int y, int nWidth, int nHeight, int nPageWidth, int nPageHeight) {
    // NOTE: the rectangle is clipped to the page and the bitmap; the pixels are the same as a copy of the
    // whole region from the page origin, since everything outside the rectangle is unchanged.
    const long long left = std::max<long long>(x, 0);
    const long long top = std::max<long long>(y, 0);
    const long long right =
        std::min<long long>({static_cast<long long>(x) + nWidth, nPageWidth, BITMAP_WIDTH});
    const long long bottom =
        std::min<long long>({static_cast<long long>(y) + nHeight, nPageHeight, BITMAP_HEIGHT});
    if (right <= left || bottom <= top) return;
    const RECT rcRegion{static_cast<LONG>(left), static_cast<LONG>(top), static_cast<LONG>(right),
                        static_cast<LONG>(bottom)};
    m_pBitmap->UpdatePixels(m_pPixels.data(), nPageWidth, nPageHeight, rcRegion);
}

// ---- input -----------------------------------------------------------------------------------------

LRESULT CWebBrowserEn::OnWindowMessage(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (IsImeMessage(uMsg)) {
        K7Browser_IME_Event(m_hBrowser, uMsg, wParam, lParam);
        DebugMsg("K7Browser_IME_Event!");
        return 1;
    }
    if (IsForwardedMouseMessage(uMsg)) {
        K7Browser_Mouse_Event(m_hBrowser, uMsg, wParam, lParam);
        DebugMsg("message=%d, wParamX=%d, wParamY=%d", static_cast<int>(uMsg), GET_X_LPARAM(lParam),
                 GET_Y_LPARAM(lParam));
    }
    return 0;
}

BOOL CWebBrowserEn::OnPreTranslateMessage(const MSG* pMsg) {
    if (!pMsg || !IsForwardedKeyMessage(pMsg->message) || !IsForwardedKeyCode(pMsg->wParam)) return 1;
    K7Browser_Key_Event(m_hBrowser, pMsg->message, pMsg->wParam, pMsg->lParam);
    DebugMsg("\nK7Browser_Key_Event! message=%d, wParam=%d, lParam=%d", static_cast<int>(pMsg->message),
             static_cast<int>(pMsg->wParam), static_cast<int>(pMsg->lParam));
    return 1;
}

// ---- listener --------------------------------------------------------------------------------------

void CWebBrowserEn::OnRegisterAccount(int, int, const char* szAccount) {
    SetAccountName(szAccount ? szAccount : "");
}

void CWebBrowserEn::OnLoadEnd(K7BROWSER, bool bCompleted) {
    _log::Info(_log::CutFileName(__FILE__), __LINE__, "web browser load",
               {{"is_completed", bCompleted ? "1" : "0"}, {"svr_time", FormatSvrTime()}, {"__cb__", ""}});
    if (bCompleted) K7Browser_Browser_Show(m_hBrowser, true);
}
