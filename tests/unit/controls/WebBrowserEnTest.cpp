// The embedded browser wrapper against our browser library's stand-in page: forwarding of every message, the
// page rectangle, guards and lifecycle, and the copied pixels after frames with arbitrary dirty rectangles.
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "SimulatorFixture.h"
#include "controls/WebBrowserEn.h"
#include "hostlibs/HostBrowser.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"

namespace {

constexpr const char* PAGE_URL = "https://example.com/register";
constexpr std::uint64_t HOST_WINDOW = 1;

std::tuple<LONG, LONG, LONG, LONG> Edges(const RECT& rc) {
    return {rc.left, rc.top, rc.right, rc.bottom};
}

// The op of each recorded call ("op=key"), in order.
std::vector<std::string> TakeOps() {
    std::vector<std::string> ops;
    for (const std::string& line : host::TakeBrowserCalls()) {
        const std::size_t at = line.find("op=");
        ops.push_back(line.substr(at + 3, line.find(' ', at) - at - 3));
    }
    return ops;
}

class WebBrowserEnTest : public SimulatorFixture {
protected:
    void SetUp() override {
        for (const char* key : {"browser.engine", "browser.dirty", "browser.noframe", "browser.loadfail"})
            host::SetData(key, "");
        host::SetData("layout.1000", "0 0 800 600");
        Create(0, "8000102=x\n", "", HOST_WINDOW);
        host::TakeBrowserCalls();
    }
    void TearDown() override {
        Browser().Close();
        host::SetData("layout.1000", "");
        SimulatorFixture::TearDown();
    }
    CWebBrowserEn& Browser() { return m_sim->Dialogs().m_webBrowser; }
    LuGui::CLuBaseWindow* Parent() { return &m_sim->Dialogs().m_dlgWebRegister; }
    bool OpenPage(const char* szUrl = PAGE_URL) {
        Browser().Init(1000, szUrl, 0, 0);
        return Browser().Open(Parent());
    }
    BOOL PreTranslate(UINT uMsg, WPARAM wParam) {
        const MSG msg{nullptr, uMsg, wParam, 0, 0, POINT{0, 0}};
        return Browser().OnPreTranslateMessage(&msg);
    }
    void Draw() {
        host::BeginFrame();
        Browser().Draw();
    }
    // Whether the raster's page area shows exactly the stand-in page's pixels.
    ::testing::AssertionResult ScreenShowsPage() {
        int pageWidth = 0, pageHeight = 0, screenWidth = 0, screenHeight = 0;
        const auto page = host::BrowserPagePixels(pageWidth, pageHeight);
        const auto screen = host::GetRasterPixels(screenWidth, screenHeight);
        const RECT rc = Browser().GetPageRect();
        for (int y = 0; y < pageHeight; ++y)
            for (int x = 0; x < pageWidth; ++x) {
                const std::size_t p = (static_cast<std::size_t>(y) * pageWidth + x) * 4;
                const std::size_t s =
                    (static_cast<std::size_t>(y + rc.top) * screenWidth + x + rc.left) * 4; // RGBA
                if (screen[s] != page[p + 2] || screen[s + 1] != page[p + 1] || screen[s + 2] != page[p])
                    return ::testing::AssertionFailure() << "differs at " << x << "," << y;
            }
        return ::testing::AssertionSuccess();
    }
};

// ---- forwarding ------------------------------------------------------------------------------------

TEST_F(WebBrowserEnTest, EveryWindowMessageIsForwardedByItsKindAloneAndOnlyImeIsConsumed) {
    ASSERT_TRUE(OpenPage());
    const std::set<UINT> ime{269, 270, 271, 641};
    const std::set<UINT> mouse{512, 513, 514, 516, 517, 519, 520, 522, 675};
    const std::set<UINT> keys{256, 257, 258, 260, 261, 262};
    host::TakeBrowserCalls();
    for (UINT uMsg = 0; uMsg < 1024; ++uMsg) {
        SCOPED_TRACE(uMsg);
        const LRESULT consumed = Browser().OnWindowMessage(uMsg, 0, MAKELPARAM(3, 4));
        EXPECT_EQ(consumed, ime.count(uMsg) ? 1 : 0);
        const std::vector<std::string> expected = ime.count(uMsg)     ? std::vector<std::string>{"ime"}
                                                  : mouse.count(uMsg) ? std::vector<std::string>{"mouse"}
                                                                      : std::vector<std::string>{};
        EXPECT_EQ(TakeOps(), expected);
        EXPECT_EQ(PreTranslate(uMsg, 'A'), TRUE);
        EXPECT_EQ(TakeOps(), keys.count(uMsg) ? std::vector<std::string>{"key"} : std::vector<std::string>{});
    }
}

TEST_F(WebBrowserEnTest, OnlyPrintableCodesAndBackspaceTabLineFeedEnterReachThePage) {
    ASSERT_TRUE(OpenPage());
    host::TakeBrowserCalls();
    for (WPARAM code = 0; code < 300; ++code) {
        SCOPED_TRACE(code);
        PreTranslate(258, code);
        const bool bForwarded =
            code == 8 || code == 9 || code == 10 || code == 13 || (code >= 32 && code < 128);
        EXPECT_EQ(TakeOps().size(), bForwarded ? 1u : 0u);
    }
}

TEST_F(WebBrowserEnTest, TypedTextReachesTheFieldAndEnterRegistersIt) {
    ASSERT_TRUE(OpenPage());
    Draw();
    for (int code : {97, 98, 8, 9, 10, 99, 27, 200, 13}) PreTranslate(258, static_cast<WPARAM>(code));
    Draw();
    EXPECT_NE(host::DescribeBrowser().find("text=\"ac\" caret=2"), std::string::npos)
        << host::DescribeBrowser();
    EXPECT_NE(host::DescribeBrowser().find("account=\"ac\""), std::string::npos);
}

// ---- rectangles --------------------------------------------------------------------------------------

TEST_F(WebBrowserEnTest, PageRectangleIsCentredAtTheOriginRecordAndOffsetElsewhere) {
    Browser().Init(1000, PAGE_URL, 30, 40);
    EXPECT_EQ(Edges(Browser().GetPageRect()), Edges(RECT{112, 84, 912, 684})); // offsets ignored when centred
    host::SetData("layout.1000", "10 20 300 200");
    EXPECT_EQ(Edges(Browser().GetPageRect()), Edges(RECT{40, 60, 340, 260}));
    host::SetData("layout.1000", "");
    EXPECT_EQ(Edges(Browser().GetPageRect()), Edges(RECT{0, 0, 1024, 768}));
}

TEST_F(WebBrowserEnTest, InitWithoutLayoutRecordChangesNothing) {
    Browser().Init(1000, PAGE_URL, 0, 0);
    Browser().Init(4242, "https://other.example", 5, 5);
    EXPECT_EQ(Browser().GetUrl(), PAGE_URL);
    EXPECT_EQ(Edges(Browser().GetPageRect()), Edges(RECT{112, 84, 912, 684}));
}

TEST_F(WebBrowserEnTest, CopiedPixelsEqualThePageAfterRandomDirtyFrames) {
    host::UseCanvas(host::CanvasKind::Raster);
    ASSERT_TRUE(OpenPage());
    Draw();
    ASSERT_TRUE(ScreenShowsPage());
    std::mt19937 random(20261123);
    std::uniform_int_distribution<int> coord(-2000, 2000);
    for (int frame = 0; frame < 12; ++frame) {
        SCOPED_TRACE(frame);
        std::string dirty;
        for (int i = 0; i < 3; ++i)
            dirty += std::to_string(coord(random)) + "," + std::to_string(coord(random)) + "," +
                     std::to_string(coord(random)) + "," + std::to_string(coord(random)) + ";";
        dirty += "2147483647,-2147483648,2147483647,2147483647;0,0,0,0;bad";
        host::SetData("browser.dirty", dirty);
        PreTranslate(258, frame % 3 == 2 ? 8 : 'a' + frame);
        Draw();
        ASSERT_TRUE(ScreenShowsPage());
    }
    host::UseCanvas(host::CanvasKind::Recording);
}

// ---- guards and lifecycle ------------------------------------------------------------------------------

TEST_F(WebBrowserEnTest, IdleFramesCopyNothingAndAFrameWithoutRectanglesStillDraws) {
    ASSERT_TRUE(OpenPage());
    Draw();
    const std::string afterFirst = host::DescribeBrowser();
    Draw();
    Draw();
    EXPECT_EQ(host::DescribeBrowser(), afterFirst); // no frame handed over while idle
    EXPECT_NE(afterFirst.find("frames=1 rects=1"), std::string::npos) << afterFirst;
    host::SetData("browser.noframe", "1");
    PreTranslate(258, 'x');
    Draw();
    EXPECT_NE(host::DescribeBrowser().find("frames=1 "), std::string::npos);
    host::SetData("browser.noframe", "");
    Draw();
    EXPECT_NE(host::DescribeBrowser().find("frames=2 rects=2"), std::string::npos);
}

TEST_F(WebBrowserEnTest, WithoutEngineNoPageIsMadeButTheBufferLivesUntilClose) {
    host::SetData("browser.engine", "none");
    EXPECT_FALSE(OpenPage());
    EXPECT_TRUE(Browser().HasPixelBuffer());
    host::TakeBrowserCalls();
    Browser().OnWindowMessage(513, 0, 0);
    PreTranslate(258, 'a');
    Draw(); // the empty bitmap
    for (const std::string& line : host::TakeBrowserCalls())
        EXPECT_NE(line.find("page=0"), std::string::npos);
    Browser().Close();
    EXPECT_FALSE(Browser().HasPixelBuffer());
}

TEST_F(WebBrowserEnTest, NoPageWithoutParentAddressOrSaneSize) {
    Browser().Init(1000, PAGE_URL, 0, 0);
    EXPECT_FALSE(Browser().Create()); // no parent yet
    EXPECT_FALSE(Browser().Open(nullptr));
    Browser().Init(1000, "", 0, 0); // an empty address keeps the last one: open it, then test an empty one
    EXPECT_TRUE(Browser().Open(Parent()));
    Browser().Close();
    for (const char* size : {"5 5 0 0", "5 5 -10 20", "5 5 100000 100000"}) {
        SCOPED_TRACE(size);
        host::SetData("layout.1000", size);
        EXPECT_FALSE(Browser().Create());
        EXPECT_FALSE(Browser().HasPixelBuffer());
        Draw();
    }
}

// The library skips its page look-up for the frame calls of the page a thread began last, as long as no page
// was destroyed since; a page destroyed inside its frame must still be refused by the frame's later calls.
TEST_F(WebBrowserEnTest, PageDestroyedInsideItsFrameIsRefusedByTheFramesLaterCalls) {
    const HWND hWnd = Parent()->GetSafeHwnd();
    std::vector<std::uint8_t> pixels(100 * 80 * 4);
    K7BROWSER hOther = K7Browser_Browser_Create(hWnd, PAGE_URL, 0, 0, 100, 80, &Browser(), 14, 1);
    K7BROWSER hPage = K7Browser_Browser_Create(hWnd, PAGE_URL, 0, 0, 100, 80, &Browser(), 14, 1);
    ASSERT_TRUE(hOther && hPage);
    int nValue = 0, nDirty = 0;
    ASSERT_TRUE(K7Browser_OSR_Buffer_Get_Begin(hPage, pixels.data(), &nValue, &nDirty)); // the first paint
    ASSERT_EQ(nDirty, 1);
    int x = -1, y = -1, w = -1, h = -1;
    K7Browser_OSR_DirtyRect_Get(hPage, 0, &x, &y, &w, &h);
    EXPECT_EQ(std::make_tuple(x, y, w, h), std::make_tuple(0, 0, 100, 80));
    K7Browser_Browser_Destroy(hPage);
    K7Browser_OSR_DirtyRect_Get(hPage, 0, &x, &y, &w, &h);
    EXPECT_EQ(std::make_tuple(x, y, w, h), std::make_tuple(0, 0, 0, 0));
    K7Browser_OSR_Buffer_Get_End(hPage);
    EXPECT_FALSE(K7Browser_OSR_Buffer_Get_Begin(hPage, pixels.data(), &nValue, &nDirty));
    // The other page's frames go on.
    ASSERT_TRUE(K7Browser_OSR_Buffer_Get_Begin(hOther, pixels.data(), &nValue, &nDirty));
    K7Browser_OSR_DirtyRect_Get(hOther, 0, &x, &y, &w, &h);
    EXPECT_EQ(std::make_tuple(x, y, w, h), std::make_tuple(0, 0, 100, 80));
    K7Browser_OSR_Buffer_Get_End(hOther);
    EXPECT_FALSE(K7Browser_OSR_Buffer_Get_Begin(hOther, pixels.data(), &nValue, &nDirty)); // idle now
    K7Browser_Browser_Destroy(hOther);
}

TEST_F(WebBrowserEnTest, ReloadGoesBackWithoutClosingAndLoadEndShowsThePageOnlyWhenComplete) {
    ASSERT_TRUE(OpenPage());
    Draw();
    EXPECT_EQ(TakeOps(), (std::vector<std::string>{"create", "show"}));
    Browser().Reload();
    EXPECT_EQ(TakeOps(), std::vector<std::string>{"reload"});
    EXPECT_TRUE(Browser().IsOpen());
    host::SetData("browser.loadfail", "1");
    Draw(); // the reload's first frame ends loading, failed: not shown again
    EXPECT_TRUE(TakeOps().empty());
    Browser().Close();
    EXPECT_EQ(TakeOps(), std::vector<std::string>{"destroy"});
    Browser().Reload(); // without a page: created again
    EXPECT_EQ(TakeOps(), std::vector<std::string>{"create"});
}

} // namespace
