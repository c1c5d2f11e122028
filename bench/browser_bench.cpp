// The embedded browser and the international screens: Draw's copy of a dirty rectangle against memcpy of the
// same rows, an idle frame, a frame of the picker and of the role list (recording canvas), and a server click
// while the account has 100 to 100 000 roles on that server.
#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstring>
#include <string>
#include <vector>

#include "TempClientDir.h"
#include "controls/WebBrowserEn.h"
#include "hostlibs/HostBrowser.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {

constexpr int PAGE_WIDTH = 1024;
constexpr int PAGE_HEIGHT = 768;

// NOTE: once a mapped block is freed, glibc raises its threshold and serves the next page-sized buffers from
// the heap, at whatever offset within a memory page the heap has reached. Where each benchmark's buffers
// landed then (rows straddling pages, source and target rows sharing cache sets) moved single figures by up
// to a factor of two either way, for the wrapper and for memcpy independently. A fixed threshold maps every
// page-sized buffer, the wrapper's and memcpy's alike, as a fresh process does: 16 bytes past a page start.
constexpr int MAPPED_BUFFER_THRESHOLD = 128 * 1024;
[[maybe_unused]] const int g_mappedBuffers = mallopt(M_MMAP_THRESHOLD, MAPPED_BUFFER_THRESHOLD);

// An engine that reports the same rectangle with every frame and renders nothing: what is measured is the
// wrapper's copy.
class CFixedDirtyView final : public host::IBrowserEngineView {
public:
    explicit CFixedDirtyView(RECT rc) : m_rc(rc) {}
    void Show(bool) override {}
    void Reload(const std::string&) override {}
    void Mouse(UINT, WPARAM, LPARAM) override {}
    void Key(UINT, WPARAM, LPARAM) override {}
    void Ime(UINT, WPARAM, LPARAM) override {}
    bool BeginFrame(void*, std::vector<RECT>& rects) override {
        rects.assign(1, m_rc);
        return true;
    }
    void EndFrame(IK7JSListener&, void*) override {}
    std::string Describe() const override { return {}; }

private:
    RECT m_rc;
};

class Fixture {
public:
    explicit Fixture(const std::string& engine = "standin") {
        host::UseCanvas(host::CanvasKind::Recording);
        host::SetData("browser.engine", engine);
        host::SetData("layout.1000", "0 0 " + std::to_string(PAGE_WIDTH) + " " + std::to_string(PAGE_HEIGHT));
        m_dir.Write("ini/FlashString.ini", "1=x\n");
        m_sim = FlashSimQuery();
        m_sim->Create(1, 0, 0, true);
    }
    ~Fixture() {
        FlashSimDestroy();
        host::SetData("browser.engine", "");
        host::SetData("layout.1000", "");
    }
    CFlashSimulator* Sim() { return m_sim; }
    CWebBrowserEn& Browser() { return m_sim->Dialogs().m_webBrowser; }
    void OpenPage() {
        Browser().Init(1000, "https://example.com", 0, 0);
        Browser().Open(&m_sim->Dialogs().m_dlgWebRegister);
    }

private:
    TempClientDir m_dir;
    CFlashSimulator* m_sim;
};

// Args: side of the square, 0 at the origin / 1 at the far corner.
RECT DirtyOf(const benchmark::State& state) {
    const int side = static_cast<int>(state.range(0));
    const bool far = state.range(1) != 0;
    return RECT{far ? PAGE_WIDTH - side : 0, far ? PAGE_HEIGHT - side : 0, side, side};
}

void BM_DrawDirtyRect(benchmark::State& state) {
    const RECT rc = DirtyOf(state);
    host::RegisterBrowserEngine("fixed", [rc](const host::BrowserPageParams&) {
        return std::unique_ptr<host::IBrowserEngineView>(std::make_unique<CFixedDirtyView>(rc));
    });
    Fixture f("fixed");
    f.OpenPage();
    for (auto _ : state) {
        host::BeginFrame();
        f.Browser().Draw();
    }
    const long long width =
        std::min<long long>(rc.left + rc.right, PAGE_WIDTH) - std::max<long long>(rc.left, 0);
    const long long height =
        std::min<long long>(rc.top + rc.bottom, PAGE_HEIGHT) - std::max<long long>(rc.top, 0);
    state.SetBytesProcessed(state.iterations() * width * height * 4);
}
BENCHMARK(BM_DrawDirtyRect)->ArgsProduct({{16, 256, 1024}, {0, 1}});

// The same rows copied with memcpy between two buffers of the page's size: the pitches of the page (its width)
// and of the bitmap (1024 pixels), both 4096 bytes here, placed as the wrapper's are.
void BM_MemcpyRows(benchmark::State& state) {
    const RECT rc = DirtyOf(state);
    std::vector<std::uint8_t> from(PAGE_WIDTH * PAGE_HEIGHT * 4, 1), to(PAGE_WIDTH * PAGE_HEIGHT * 4);
    // The part of the rectangle on the page, as Draw clips it.
    const int left = std::max<int>(rc.left, 0), top = std::max<int>(rc.top, 0);
    const int width = std::min<int>(rc.left + rc.right, PAGE_WIDTH) - left;
    const int height = std::min<int>(rc.top + rc.bottom, PAGE_HEIGHT) - top;
    for (auto _ : state) {
        for (int y = top; y < top + height; ++y) {
            const std::size_t offset = (static_cast<std::size_t>(y) * PAGE_WIDTH + left) * 4;
            std::memcpy(to.data() + offset, from.data() + offset, static_cast<std::size_t>(width) * 4);
        }
        benchmark::DoNotOptimize(to.data());
    }
    state.SetBytesProcessed(state.iterations() * width * height * 4);
}
BENCHMARK(BM_MemcpyRows)->ArgsProduct({{16, 256, 1024}, {0, 1}});

// A frame of the stand-in page with nothing new to hand over.
void BM_DrawIdle(benchmark::State& state) {
    Fixture f;
    f.OpenPage();
    host::BeginFrame();
    f.Browser().Draw(); // the first frame
    for (auto _ : state) {
        host::BeginFrame();
        f.Browser().Draw();
    }
}
BENCHMARK(BM_DrawIdle);

// Three zones of 23 servers, roles of the account on one server.
void FillInternational(CFlashSimulator& sim, int nRoles) {
    host::SetData("language", "English");
    host::SetData("en.account", "77");
    std::string roles;
    roles.reserve(static_cast<std::size_t>(nRoles) * 24);
    for (int i = 0; i < nRoles; ++i)
        roles += "1:2:" + std::to_string(1 + i % 8) + ":" + std::to_string(1000 + i) + ":" +
                 std::to_string(i % 99) + ":Role" + std::to_string(i) + "|";
    host::SetData("en.roles", roles);
    host::SetData("en.mine", "1:2|1:3|2:1");
    std::string names;
    for (int i = 1; i <= 23; ++i) names += "Eagle " + std::to_string(i) + "|";
    sim.SetSceneType(0);
    sim.SetVariable("VAR_MAINPATH", "1");
    sim.SetVariable("VAR_SERVER_AREA", "3#America|Europe|Asia|");
    for (int g = 0; g < 3; ++g) sim.SetVariable("VAR_SERVER_NAME", ("23#" + names).c_str());
}

void ClearInternational() {
    for (const char* key : {"language", "en.account", "en.roles", "en.mine"}) host::SetData(key, "");
}

void BM_PickerFrame(benchmark::State& state) {
    Fixture f;
    FillInternational(*f.Sim(), 12);
    f.Sim()->ShowScreen(1023, true);
    for (auto _ : state) {
        f.Sim()->Process();
        host::BeginFrame();
        f.Sim()->Show();
    }
    ClearInternational();
}
BENCHMARK(BM_PickerFrame);

void BM_RoleListFrame(benchmark::State& state) {
    Fixture f;
    FillInternational(*f.Sim(), 12);
    f.Sim()->ShowServerRoleList(0, 1);
    for (auto _ : state) {
        f.Sim()->Process();
        host::BeginFrame();
        f.Sim()->Show();
    }
    ClearInternational();
}
BENCHMARK(BM_RoleListFrame);

// A click on the server row holding the roles: its events, commands and the character slots.
void BM_ServerClickWithRoles(benchmark::State& state) {
    Fixture f;
    FillInternational(*f.Sim(), static_cast<int>(state.range(0)));
    f.Sim()->ShowScreen(1023, true);
    CDlgFlashLoginEn& picker = f.Sim()->Dialogs().m_dlgFlashLoginEn;
    picker.SelectZone(0);
    for (auto _ : state) picker.SelectServerRow(1);
    ClearInternational();
}
BENCHMARK(BM_ServerClickWithRoles)->Arg(100)->Arg(10000)->Arg(100000);

} // namespace

BENCHMARK_MAIN();
