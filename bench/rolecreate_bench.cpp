// Character creation of the standard layout on the recording canvas with the sample client directory: a frame
// of the profession step (figure, ground and the profession-80 marks) and of the head step (sixteen faces and
// the hover frame); loading the sample head configuration and a generated one of 20 000 lines.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "resources/SelectHeadMgr.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {

constexpr int GENERATED_LINES = 20000;

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

/// A created simulator on a copy of the sample client directory, creation screen open.
CFlashSimulator* OpenCreation(const TempClientDir& dir) {
    const std::filesystem::path res(FLASHSIM_RES_DIR);
    for (const char* file : {"FlashGui.ini", "ani/Control.ani", "ani/Gui3DEffect.ani", "ani/playerface.ani",
                             "ini/FlashString.ini", "ini/SelectHead.ini", "ini/RoleCreate.ini"})
        dir.Write(file, ReadFile(res / file));
    host::ClearGraphicsCaches();
    host::UseCanvas(host::CanvasKind::Recording);
    CFlashSimulator* pSim = FlashSimQuery();
    pSim->Create(0, 0, 0, true);
    pSim->SetSceneType(EST_ROLE_CREATE);
    pSim->SetVariable("SetMainPath", "1024-768-0");
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

void BM_ProfessionStepFrame(benchmark::State& state) {
    TempClientDir dir;
    CFlashSimulator* pSim = OpenCreation(dir);
    pSim->SetCreateRoleParam(0, 0, 1, 1, 0, false, 0, 0); // the glow after 400 ms
    pSim->Dialogs().m_dlgSelectPro.Select(CProfessionTable::INDEX_ARCHER);
    host::AdvanceClock(500);
    RunFrames(state);
    FlashSimDestroy();
    host::ClearGraphicsCaches();
}
BENCHMARK(BM_ProfessionStepFrame);

void BM_HeadStepFrame(benchmark::State& state) {
    TempClientDir dir;
    CFlashSimulator* pSim = OpenCreation(dir);
    pSim->Dialogs().m_dlgSelectPro.WindowProc(WM_COMMAND, CDlgFlashSelectPro::IDC_MORE, 0);
    CDlgFlashSelectHead& heads = pSim->Dialogs().m_dlgSelectHead;
    const RECT rc = heads.GetControl(CDlgFlashSelectHead::FACE_BUTTON_IDS[5])->GetWindowRect();
    const POINT pt{(rc.left + rc.right) / 2, (rc.top + rc.bottom) / 2};
    host::SetCursor(pt.x, pt.y);
    pSim->WindowProc(nullptr, WM_MOUSEMOVE, 0, MAKELPARAM(pt.x, pt.y));
    state.counters["faces"] = heads.GetCount();
    RunFrames(state);
    FlashSimDestroy();
    host::ClearGraphicsCaches();
}
BENCHMARK(BM_HeadStepFrame);

void BM_LoadSampleHeads(benchmark::State& state) {
    TempClientDir dir;
    dir.Write(CSelectHeadMgr::HEAD_FILE,
              ReadFile(std::filesystem::path(FLASHSIM_RES_DIR) / "ini/SelectHead.ini"));
    for (auto _ : state) {
        CSelectHeadMgr::DestroyInstance();
        benchmark::DoNotOptimize(CSelectHeadMgr::GetInstance().GetMaleHeadCount());
    }
    CSelectHeadMgr::DestroyInstance();
}
BENCHMARK(BM_LoadSampleHeads);

void BM_LoadGeneratedHeads(benchmark::State& state) {
    TempClientDir dir;
    std::string text = "[ProHeadSet]\n";
    for (int i = 0; i < GENERATED_LINES / 4; ++i)
        text += "ProHeadAni_" + std::to_string(i) + "=" + std::to_string(10000 + i) + "\n";
    text += "[MaleHeadSet]\nMaleHeadAmount=2147483647\n";
    for (int i = 1; i <= GENERATED_LINES / 2; ++i)
        text += "MaleHead_" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    text += "[FemaleHeadSet]\nFemaleHeadAmount=" + std::to_string(GENERATED_LINES / 4) + "\n";
    for (int i = 1; i <= GENERATED_LINES / 4; ++i)
        text += "FemaleHead_" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    dir.Write(CSelectHeadMgr::HEAD_FILE, text);
    for (auto _ : state) {
        CSelectHeadMgr::DestroyInstance();
        benchmark::DoNotOptimize(CSelectHeadMgr::GetInstance().GetMaleHeadCount());
    }
    state.counters["male_heads"] = CSelectHeadMgr::GetInstance().GetMaleHeadCount();
    CSelectHeadMgr::DestroyInstance();
}
BENCHMARK(BM_LoadGeneratedHeads)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
