// One frame of the group dialog with 80 groups, achievement marks and the cursor over a marked group (hover
// tips every frame), on the recording canvas, with the sample client directory's layout and pictures.
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

constexpr int GROUPS = 80;

std::string ReadSample(const std::string& relative) {
    std::ifstream in(std::filesystem::path(FLASHSIM_RES_DIR) / relative, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

// Every group has one server whose achievement window is always open.
std::string ServerCfg() {
    std::string text = "[Header]\nGroupAmount=" + std::to_string(GROUPS) + "\n";
    for (int g = 1; g <= GROUPS; ++g)
        text += "[Group" + std::to_string(g) +
                "]\nServerAmount=1\nServer1=1\nAchTime1=0-2147483647\nAchTips1=1\n";
    return text;
}

void BM_GroupDialogFrame80Marked(benchmark::State& state) {
    TempClientDir dir;
    for (const char* file : {"FlashGui.ini", "ani/Control.ani", "ani/Gui3DEffect.ani", "ini/FlashString.ini"})
        dir.Write(file, ReadSample(file));
    dir.Write("ini/ServerCfg.ini", ServerCfg());
    host::ClearGraphicsCaches();
    host::UseCanvas(host::CanvasKind::Recording);

    CFlashSimulator* pSim = FlashSimQuery();
    pSim->Create(0, 0, 0, true);
    pSim->SetSceneType(EST_LOGIN);
    pSim->OnSelectModel(2);
    std::string groups = std::to_string(GROUPS) + "#";
    std::string marks;
    for (int i = 0; i < GROUPS; ++i) {
        groups += "Group " + std::to_string(i + 1) + "|";
        marks += std::string(i % 2 == 0 ? "1" : "0") + (i + 1 < GROUPS ? "|" : "");
    }
    pSim->SetVariable("VAR_SERVER_AREA", groups.c_str());
    for (int i = 0; i < GROUPS; ++i) pSim->SetVariable("VAR_SERVER_NAME", "1#Server|");
    pSim->SetVariable("VAR_CUR_VER", "2");
    pSim->SetVariable("VAR_AREA_ACH_TIPS", marks.c_str());
    pSim->Dialogs().m_dlgSelectGroup.RefillGroups();
    const RECT rc = pSim->Dialogs().m_dlgSelectGroup.GetGroupButton(0).GetWindowRect();
    host::SetCursor(rc.left + 5, rc.top + 5);

    for (auto _ : state) {
        host::AdvanceClock(16);
        host::BeginFrame();
        pSim->Process();
        pSim->Show();
    }
    state.counters["marked_groups"] = 0;
    for (int mark : pSim->Dialogs().m_dlgSelectGroup.GetGroupMarks()) state.counters["marked_groups"] += mark;
    FlashSimDestroy();
    host::ClearGraphicsCaches();
}
BENCHMARK(BM_GroupDialogFrame80Marked);

} // namespace

BENCHMARK_MAIN();
