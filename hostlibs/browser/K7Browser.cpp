// Our browser library: pages of the engine the host picks, every call the system makes recorded for the host.
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "K7Browser.h"
#include "StandInPage.h"
#include "hostlibs/HostBrowser.h"
#include "hostlibs/HostEnv.h"

struct SK7BrowserPage {
    int nNumber = 0;
    std::unique_ptr<host::IBrowserEngineView> view;
    IK7JSListener* pListener = nullptr;
    std::vector<RECT> rects; ///< of the frame begun last
    bool bInFrame = false;
    bool bShown = false;
    int nFrames = 0;
    long long nRects = 0;
};

namespace {

constexpr const char* DEFAULT_ENGINE = "standin";
constexpr const char* NO_ENGINE = "none";
// Pages beyond these sides are declined: their buffer could not be allocated by any caller.
constexpr int MAX_PAGE_SIDE = 8192;

struct SLibrary {
    std::mutex mutex;
    std::map<std::string, host::BrowserEngineFactory> engines;
    std::vector<std::string> calls;
    std::vector<SK7BrowserPage*> pages;
    SK7BrowserPage* pNewest = nullptr;
    int nLastNumber = 0;
};

// Bumped by every destroy (under the library's lock): a page known live at some count is live while the
// count stays. Outside the library object, so that reading it needs no initialisation check.
constinit std::atomic<std::uint64_t> g_nDestroyCount{0};

SLibrary& Library() {
    static SLibrary library;
    return library;
}

// The page this thread began a frame of last, with the destroy count it was live at: while no page is
// destroyed, that page's frame calls (one begin, the rectangles, the end, every frame) need no look-up under
// the lock.
struct SFramePage {
    K7BROWSER hPage = nullptr;
    std::uint64_t nDestroyCount = 0;
};
// NOTE: the library is always loaded with the program, so the fixed-offset model (no look-up call) holds.
[[gnu::tls_model("initial-exec")]] thread_local SFramePage t_framePage;

int PageNumber(K7BROWSER hPage) {
    return hPage ? hPage->nNumber : 0;
}

void Record(const std::string& op, K7BROWSER hPage, const std::string& rest = {}) {
    SLibrary& lib = Library();
    std::lock_guard lock(lib.mutex);
    lib.calls.push_back("= browser.in op=" + op + " page=" + std::to_string(PageNumber(hPage)) +
                        (rest.empty() ? "" : " " + rest));
}

std::string MessageFields(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return "msg=" + std::to_string(uMsg) +
           " wparam=" + std::to_string(static_cast<unsigned long long>(wParam)) +
           " lparam=" + std::to_string(static_cast<long long>(lParam));
}

// NOTE: the system may hand over any value; only handles this library gave out and has not destroyed are
// pages, anything else is ignored as a null handle is.
bool IsLive(K7BROWSER hPage) {
    if (!hPage) return false;
    SLibrary& lib = Library();
    std::lock_guard lock(lib.mutex);
    return std::find(lib.pages.begin(), lib.pages.end(), hPage) != lib.pages.end();
}

// Whether the handle is the page of this thread's last begun frame and no page was destroyed since: then it
// is live without a look-up.
bool IsStillFramePage(K7BROWSER hPage) {
    return hPage && hPage == t_framePage.hPage &&
           t_framePage.nDestroyCount == g_nDestroyCount.load(std::memory_order_acquire);
}

bool IsLiveFramePage(K7BROWSER hPage) {
    return IsStillFramePage(hPage) || IsLive(hPage);
}

host::BrowserEngineFactory EngineFactory(const std::string& name) {
    SLibrary& lib = Library();
    std::lock_guard lock(lib.mutex);
    if (lib.engines.empty())
        lib.engines[DEFAULT_ENGINE] = [](const host::BrowserPageParams& params) {
            return std::unique_ptr<host::IBrowserEngineView>(std::make_unique<CStandInPage>(params));
        };
    const auto it = lib.engines.find(name);
    return it == lib.engines.end() ? host::BrowserEngineFactory{} : it->second;
}

} // namespace

K7BROWSER K7Browser_Browser_Create(HWND, const char* szUrl, int x, int y, int nWidth, int nHeight,
                                   IK7JSListener* pListener, int nFlags, int nMode) {
    const std::string url = szUrl ? szUrl : "";
    std::string engine = host::GetData("browser.engine");
    if (engine.empty()) engine = DEFAULT_ENGINE;
    K7BROWSER hPage = nullptr;
    const bool bSizeOk = nWidth > 0 && nHeight > 0 && nWidth <= MAX_PAGE_SIDE && nHeight <= MAX_PAGE_SIDE;
    if (engine != NO_ENGINE && bSizeOk && !url.empty() && pListener) {
        if (const host::BrowserEngineFactory factory = EngineFactory(engine)) {
            auto view = factory(host::BrowserPageParams{url, x, y, nWidth, nHeight});
            if (view) {
                hPage = new SK7BrowserPage;
                hPage->view = std::move(view);
                hPage->pListener = pListener;
                SLibrary& lib = Library();
                std::lock_guard lock(lib.mutex);
                hPage->nNumber = ++lib.nLastNumber;
                lib.pages.push_back(hPage);
                lib.pNewest = hPage;
            }
        }
    }
    Record("create", hPage,
           "x=" + std::to_string(x) + " y=" + std::to_string(y) + " w=" + std::to_string(nWidth) +
               " h=" + std::to_string(nHeight) + " url=\"" + host::EscapeTranscriptText(url) +
               "\" a=" + std::to_string(nFlags) + " b=" + std::to_string(nMode));
    return hPage;
}

void K7Browser_Browser_Destroy(K7BROWSER hPage) {
    Record("destroy", hPage);
    if (!IsLive(hPage)) return;
    {
        SLibrary& lib = Library();
        std::lock_guard lock(lib.mutex);
        std::erase(lib.pages, hPage);
        if (lib.pNewest == hPage) lib.pNewest = nullptr;
        g_nDestroyCount.fetch_add(1, std::memory_order_acq_rel);
    }
    delete hPage;
}

void K7Browser_Browser_Show(K7BROWSER hPage, bool bShow) {
    Record("show", hPage, std::string("on=") + (bShow ? "1" : "0"));
    if (!IsLive(hPage)) return;
    hPage->bShown = bShow;
    hPage->view->Show(bShow);
}

void K7Browser_Browser_ReLoad(K7BROWSER hPage, const char* szUrl) {
    const std::string url = szUrl ? szUrl : "";
    Record("reload", hPage, "url=\"" + host::EscapeTranscriptText(url) + "\"");
    if (IsLive(hPage)) hPage->view->Reload(url);
}

void K7Browser_Mouse_Event(K7BROWSER hPage, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    Record("mouse", hPage,
           "x=" + std::to_string(GET_X_LPARAM(lParam)) + " y=" + std::to_string(GET_Y_LPARAM(lParam)) + " " +
               MessageFields(uMsg, wParam, lParam));
    if (IsLive(hPage)) hPage->view->Mouse(uMsg, wParam, lParam);
}

void K7Browser_Key_Event(K7BROWSER hPage, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    Record("key", hPage, MessageFields(uMsg, wParam, lParam));
    if (IsLive(hPage)) hPage->view->Key(uMsg, wParam, lParam);
}

void K7Browser_IME_Event(K7BROWSER hPage, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    Record("ime", hPage, MessageFields(uMsg, wParam, lParam));
    if (IsLive(hPage)) hPage->view->Ime(uMsg, wParam, lParam);
}

bool K7Browser_OSR_Buffer_Get_Begin(K7BROWSER hPage, void* pPixels, int* pValue, int* pDirtyCount) {
    if (pValue) *pValue = 0;
    if (pDirtyCount) *pDirtyCount = 0;
    if (!pPixels) return false;
    if (!IsStillFramePage(hPage)) {
        const std::uint64_t nDestroyCount = g_nDestroyCount.load(std::memory_order_acquire);
        if (!IsLive(hPage)) return false;
        t_framePage = SFramePage{hPage, nDestroyCount};
    }
    if (hPage->bInFrame) return false;
    hPage->rects.clear();
    if (!hPage->view->BeginFrame(pPixels, hPage->rects)) return false;
    hPage->bInFrame = true;
    ++hPage->nFrames;
    hPage->nRects += static_cast<long long>(hPage->rects.size());
    if (pDirtyCount) *pDirtyCount = static_cast<int>(std::min<std::size_t>(hPage->rects.size(), INT32_MAX));
    return true;
}

void K7Browser_OSR_DirtyRect_Get(K7BROWSER hPage, int nIndex, int* pX, int* pY, int* pWidth, int* pHeight) {
    RECT rc{0, 0, 0, 0};
    if (IsLiveFramePage(hPage) && hPage->bInFrame && nIndex >= 0 &&
        static_cast<std::size_t>(nIndex) < hPage->rects.size())
        rc = hPage->rects[static_cast<std::size_t>(nIndex)];
    if (pX) *pX = rc.left;
    if (pY) *pY = rc.top;
    if (pWidth) *pWidth = rc.right;
    if (pHeight) *pHeight = rc.bottom;
}

void K7Browser_OSR_Buffer_Get_End(K7BROWSER hPage) {
    if (!IsLiveFramePage(hPage) || !hPage->bInFrame) return;
    hPage->bInFrame = false;
    hPage->view->EndFrame(*hPage->pListener, hPage);
}

namespace host {

void RegisterBrowserEngine(const std::string& name, BrowserEngineFactory factory) {
    EngineFactory(name); // the default engine first, so that a replacement of it sticks
    SLibrary& lib = Library();
    std::lock_guard lock(lib.mutex);
    lib.engines[name] = std::move(factory);
}

std::vector<std::string> TakeBrowserCalls() {
    SLibrary& lib = Library();
    std::lock_guard lock(lib.mutex);
    return std::exchange(lib.calls, {});
}

std::string DescribeBrowser() {
    SLibrary& lib = Library();
    std::unique_lock lock(lib.mutex);
    const SK7BrowserPage* pPage = lib.pNewest;
    std::string line = "= browser open=" + std::to_string(lib.pages.size()) +
                       " shown=" + (pPage && pPage->bShown ? "1" : "0") +
                       " frames=" + std::to_string(pPage ? pPage->nFrames : 0) +
                       " rects=" + std::to_string(pPage ? pPage->nRects : 0);
    const std::string engine = pPage ? pPage->view->Describe() : std::string();
    lock.unlock();
    line += engine.empty() ? " text=\"\" caret=0 ime=0,0 crc=0" : " " + engine;
    line += " account=\"" + EscapeTranscriptText(GetData("gamebase.account")) +
            "\" switch=" + GetData("gamedata.webswitch", "0") +
            " centre=" + GetData("gamelogic.centre", "0,0");
    return line;
}

std::vector<std::uint8_t> BrowserPagePixels(int& nWidth, int& nHeight) {
    SLibrary& lib = Library();
    std::lock_guard lock(lib.mutex);
    nWidth = nHeight = 0;
    if (!lib.pNewest) return {};
    return lib.pNewest->view->Pixels(nWidth, nHeight);
}

} // namespace host
