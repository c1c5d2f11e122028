// Character creation of the English layout with the sample client directory: a frame of the whole screen
// (figure, profession column, introduction panel with its texts and the reward notice of profession 100, and
// the start choice with the opening-time tip under the mouse) on the recording canvas, and on the raster
// canvas for reference.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {

/// The opening time 2503151230 as the signed value a host passes.
constexpr std::int32_t OPENING_TIME = -1791816066;

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

/// A created simulator on a copy of the sample client directory: the English screen open on profession 100
/// with its reward notice, the name accepted, the start choice open and the mouse on its closed high-level
/// start.
CFlashSimulator* OpenStartChoice(const TempClientDir& dir, host::CanvasKind canvas) {
    const std::filesystem::path res(FLASHSIM_RES_DIR);
    for (const char* file : {"FlashGui.ini", "ani/Control.ani", "ani/Gui3DEffect.ani", "ani/playerface.ani",
                             "ini/FlashString.ini", "ini/SelectHead.ini", "ini/RoleCreate.ini"})
        dir.Write(file, ReadFile(res / file));
    host::SetData("language", "English");
    host::ClearGraphicsCaches();
    host::UseCanvas(canvas);
    CFlashSimulator* pSim = FlashSimQuery();
    pSim->Create(0, 0, 0, true);
    pSim->SetSceneType(EST_ROLE_CREATE);
    pSim->SetCreateRoleParam(0, 0, 0, 1, 0, false, 1, OPENING_TIME);
    pSim->SetVariable("SetMainPath", "1024-768-1");
    pSim->SetRandomName("Aldric", 6);
    pSim->Dialogs().m_dlgProIntro.Register(false);
    pSim->SetNameCheck(true, true, true);
    const LuGui::CLuCtrl* pButton =
        pSim->Dialogs().m_dlgSceneSelect.GetControl(CDlgFlashSceneSelect::IDC_HIGH_LEVEL);
    const RECT rc = pButton->GetWindowRect();
    const POINT pt{(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2};
    host::SetCursor(pt.x, pt.y);
    pSim->WindowProc(nullptr, WM_MOUSEMOVE, 0, MAKELPARAM(pt.x, pt.y));
    return pSim;
}

void RunFrames(benchmark::State& state) {
    for (auto _ : state) {
        host::AdvanceClock(16);
        host::BeginFrame();
        CFlashSimulator* pSim = FlashSimQuery();
        pSim->Process();
        pSim->Show();
    }
    state.counters["ops_per_frame"] = static_cast<double>(host::GetRecordedOps().size());
}

void BM_EnglishScreenFrame(benchmark::State& state, host::CanvasKind canvas) {
    TempClientDir dir;
    CFlashSimulator* pSim = OpenStartChoice(dir, canvas);
    state.counters["start_choice"] = pSim->Dialogs().m_dlgSceneSelect.IsWindowVisible();
    RunFrames(state);
    FlashSimDestroy();
    host::SetData("language", "");
    host::ClearGraphicsCaches();
}
BENCHMARK_CAPTURE(BM_EnglishScreenFrame, recording, host::CanvasKind::Recording);
BENCHMARK_CAPTURE(BM_EnglishScreenFrame, raster, host::CanvasKind::Raster);

} // namespace

BENCHMARK_MAIN();
