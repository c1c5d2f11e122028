// One frame (Process + Show) of a dialog with 100 controls, on the recording and on the raster canvas.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "TempClientDir.h"
#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimStatic.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "platform/LuGui.h"

namespace {

constexpr UINT IDD_BENCH = 1950;
constexpr int BUTTONS = 60;
constexpr int STATICS = 30;
constexpr int EDITS = 10;

class BenchDialog : public CSimDialog {
public:
    BenchDialog() : CSimDialog(IDD_BENCH) {}
    void DoDataExchange(LuGui::CDataExchange* pDX) override {
        UINT id = 1;
        for (CSimButton& b : m_buttons) LuGui::DDX_Control(pDX, static_cast<int>(id++), b);
        for (CSimStatic& s : m_statics) LuGui::DDX_Control(pDX, static_cast<int>(id++), s);
        for (CSimEdit& e : m_edits) LuGui::DDX_Control(pDX, static_cast<int>(id++), e);
    }
    CSimButton m_buttons[BUTTONS];
    CSimStatic m_statics[STATICS];
    CSimEdit m_edits[EDITS];
};

// A layout with every control placed on a grid, buttons with a background and a sub-ground, statics with
// one line (two in three) or several lines of tagged text.
std::string Layout() {
    std::string text = "[Dialog1950]\nRect = 0 0 1024 768\nBackground = Panel\n";
    for (int id = 1; id <= BUTTONS + STATICS + EDITS; ++id) {
        const int x = 10 + (id - 1) % 10 * 100;
        const int y = 10 + (id - 1) / 10 * 70;
        text += "[Dialog1950." + std::to_string(id) + "]\nRect = " + std::to_string(x) + " " +
                std::to_string(y) + " 90 60\n";
        if (id <= BUTTONS) {
            text += "Kind = Button\nBackground = Btn\nSubGround = Glow\nText = Button " + std::to_string(id) +
                    "\nAlign = center\n";
        } else if (id <= BUTTONS + STATICS) {
            text += "Kind = Static\nText = Label </#R>" + std::to_string(id) + "</D> text\nWrap = 1\n";
            if (id % 3 == 0) text += "MultiLine = 1\n";
        } else {
            text += "Kind = Edit\nText = edit\n";
        }
    }
    return text;
}

constexpr const char* CONTROL_ANI = "[Panel]\nFrame0=box 32 32 FF202830 FF8899AA\n"
                                    "[Btn]\nFrame0=box 90 60 FF2A5D8F FF9FC3E6\nFrame1=box 90 60 FF3C7BB8\n"
                                    "[Glow]\nFrame0=box 20 10 FFFFFF00\n";

void RunFrames(benchmark::State& state, host::CanvasKind kind) {
    TempClientDir dir;
    dir.Write("FlashGui.ini", Layout());
    dir.Write("ani/Control.ani", CONTROL_ANI);
    host::ClearGraphicsCaches();
    host::UseCanvas(kind);
    auto dialog = std::make_unique<BenchDialog>();
    LuGui::ILuGuiMgr* pMgr = LuGui::CreateNewGuiMgr();
    pMgr->Init(nullptr, 0, 0, "FlashGui.ini");
    pMgr->RegisterDialog(dialog.get(), 0, 0);
    dialog->ShowWindow(SW_SHOW);
    host::SetCursor(55, 40); // over the first button
    for (auto _ : state) {
        host::AdvanceClock(16);
        host::BeginFrame();
        pMgr->Process();
        pMgr->Show();
    }
    pMgr->Release();
    host::ClearGraphicsCaches();
}

void BM_Frame100ControlsRecording(benchmark::State& state) {
    RunFrames(state, host::CanvasKind::Recording);
}
BENCHMARK(BM_Frame100ControlsRecording);

void BM_Frame100ControlsRaster(benchmark::State& state) {
    RunFrames(state, host::CanvasKind::Raster);
}
BENCHMARK(BM_Frame100ControlsRaster)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
