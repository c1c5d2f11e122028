// One frame of the group dialog with 80 groups, achievement marks and the cursor over a marked group (hover
// tips every frame), on the recording canvas, with the sample client directory's layout and pictures.
#include <benchmark/benchmark.h>

#include "GroupScreen.h"

namespace {

void BM_GroupDialogFrame80Marked(benchmark::State& state) {
    SGroupScreen screen;
    CFlashSimulator* pSim = screen.pSim;
    for (auto _ : state) {
        host::AdvanceClock(16);
        host::BeginFrame();
        pSim->Process();
        pSim->Show();
    }
    state.counters["marked_groups"] = 0;
    for (int mark : pSim->Dialogs().m_dlgSelectGroup.GetGroupMarks()) state.counters["marked_groups"] += mark;
}
BENCHMARK(BM_GroupDialogFrame80Marked);

} // namespace

BENCHMARK_MAIN();
