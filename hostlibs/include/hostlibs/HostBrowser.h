// The host side of our browser library: the calls the system made, the state of its page and the engines it
// can render with.
//
// Used by the reference host (the `browser` step), the tests, the benchmarks and engine adapters, never by
// the system.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "BaseLib.h"

class IK7JSListener;

namespace host {

/// One page as an engine renders it. All operations run on the host's thread; an engine may render on its
/// own thread in between but touches the caller's buffer only inside BeginFrame.
class IBrowserEngineView {
public:
    virtual ~IBrowserEngineView() = default;
    virtual void Show(bool bShow) = 0;
    virtual void Reload(const std::string& url) = 0;
    virtual void Mouse(UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
    virtual void Key(UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
    virtual void Ime(UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
    /// When a frame is ready: writes the changed parts into pBGRA (width x height x 4), fills the changed
    /// rectangles (x, y, width, height as RECT left, top, right = width, bottom = height) and returns true.
    virtual bool BeginFrame(void* pBGRA, std::vector<RECT>& rects) = 0;
    /// The callbacks of the frame just handed over (load end, registered account), called on the listener.
    virtual void EndFrame(IK7JSListener& listener, void* hPage) = 0;
    /// `text= caret= ime=X,Y crc=` of the `browser` step, or empty when the engine keeps none of these.
    virtual std::string Describe() const = 0;
    /// The page as last rendered (BGRA, top-down, nWidth x nHeight x 4); empty when the engine keeps none.
    virtual std::vector<std::uint8_t> Pixels(int& nWidth, int& nHeight) const {
        nWidth = nHeight = 0;
        return {};
    }
};

/// The page parameters an engine gets.
struct BrowserPageParams {
    std::string url;
    int x = 0, y = 0, width = 0, height = 0;
};

/// Makes a view for a page; null declines the page.
using BrowserEngineFactory = std::function<std::unique_ptr<IBrowserEngineView>(const BrowserPageParams&)>;

/// Adds or replaces an engine by name; host data `browser.engine` picks one (default "standin", "none"
/// declines every page).
void RegisterBrowserEngine(const std::string& name, BrowserEngineFactory factory);

/// The calls the system made since the last call of this function, one `= browser.in op=...` line each.
std::vector<std::string> TakeBrowserCalls();
/// `open= shown= frames= rects= text= caret= ime=X,Y crc= account= switch= centre=X,Y` for the newest page.
std::string DescribeBrowser();
/// The newest page's pixels as the engine last rendered them (BGRA, top-down); empty without a page.
std::vector<std::uint8_t> BrowserPagePixels(int& nWidth, int& nHeight);

} // namespace host
