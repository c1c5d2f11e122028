// One frame of the classic login with its on-screen keyboard shown, the keyboard picture loaded, the password
// field focused and the cursor over a cell (the hovered cell's mask every frame), on the recording canvas,
// with the sample client directory's layout, strings and pictures.
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

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void BM_ClassicLoginFrameWithKeyboard(benchmark::State& state) {
    TempClientDir dir;
    const std::filesystem::path res(FLASHSIM_RES_DIR);
    for (const char* file : {"FlashGui.ini", "ani/Control.ani", "ani/Gui3DEffect.ani", "ini/FlashString.ini",
                             "ini/ServerState.ini"})
        dir.Write(file, ReadFile(res / file));
    dir.Write("data/softkey.jpg", ReadFile(res / ".." / "tools" / "flashsim" / "demo" / "softkey.jpg"));
    host::SetData("gamedata.qrlogin", "1");
    host::SetData("gamedata.wechat", "1");
    host::ClearGraphicsCaches();
    host::UseCanvas(host::CanvasKind::Recording);

    CFlashSimulator* pSim = FlashSimQuery();
    pSim->Create(0, 0, 0, true);
    pSim->SetSceneType(EST_LOGIN);
    pSim->SetVariable("VAR_VERSION", "1.0.3");
    pSim->SetVariable("VAR_SERVER_AREA", "2#Dragon|Phoenix|");
    pSim->SetVariable("VAR_SERVER_NAME", "3#Dragon-1|Dragon-2|Dragon-3|");
    pSim->SetVariable("VAR_PLAYLOGIN", "0 1");
    pSim->SetVariable("VAR_SHOWSOFTKB", "1");
    CDlgFlashLogin& classic = pSim->Dialogs().m_dlgFlashLogin;
    classic.WindowProc(CDlgFlashLogin::WM_SOFTKEY_DOWNLOADED, 1, 0);
    pSim->SetVariable("VAR_FOCUSTOFLASH", "2");
    const RECT rc = classic.GetControl(CDlgFlashLogin::IDC_SOFTKEY_AREA)->GetWindowRect();
    const POINT cell{rc.left + 4 * 30 + 15, rc.top + 2 * 30 + 15};
    host::SetCursor(cell.x, cell.y);
    pSim->WindowProc(nullptr, WM_MOUSEMOVE, 0, MAKELPARAM(cell.x, cell.y));

    for (auto _ : state) {
        host::AdvanceClock(16);
        host::BeginFrame();
        pSim->Process();
        pSim->Show();
    }
    state.counters["ops_per_frame"] = static_cast<double>(host::GetRecordedOps().size());
    state.counters["hover_col"] = classic.GetSoftKeyboard().GetHoverCol();
    FlashSimDestroy();
    host::ClearGraphicsCaches();
}
BENCHMARK(BM_ClassicLoginFrameWithKeyboard);

} // namespace

BENCHMARK_MAIN();
