// Auto-text layout of a 2 KB tagged text and of a 64 KB plain one, and layout plus drawing.
#include <benchmark/benchmark.h>

#include <string>

#include "controls/SimAutoText.h"
#include "hostlibs/HostCanvas.h"

namespace {

std::string TaggedText(std::size_t nBytes) {
    const std::string piece = "Welcome to the </#R>new</D> server: </S18>events</S> every </u>weekend</D>, "
                              "</F>double</D> rewards.\\n";
    std::string text;
    while (text.size() < nBytes) text += piece;
    text.resize(nBytes);
    return text;
}

void BM_AutoTextLayout2K(benchmark::State& state) {
    const std::string text = TaggedText(2048);
    CSimAutoText layout;
    layout.SetWidth(400);
    for (auto _ : state) {
        layout.Clear(); // an unchanged text keeps its layout; the figure is for a new one
        layout.SetText(text.c_str(), true, true);
        benchmark::DoNotOptimize(layout.GetLineCount());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * 2048);
}
BENCHMARK(BM_AutoTextLayout2K);

// A host text of 64 KB without tags or line breaks, laid out once per change in a message box's width: the
// scan for the end of each plain span must not start over at every line.
void BM_AutoTextLayoutPlain64K(benchmark::State& state) {
    const std::string piece = "The login server refused the request because the account is busy elsewhere. ";
    std::string text;
    while (text.size() < 64 * 1024) text += piece;
    CSimAutoText layout;
    layout.SetWidth(224);
    for (auto _ : state) {
        layout.Clear();
        layout.SetText(text.c_str(), true, true);
        benchmark::DoNotOptimize(layout.GetLineCount());
    }
}
BENCHMARK(BM_AutoTextLayoutPlain64K)->Unit(benchmark::kMicrosecond);

void BM_AutoTextLayoutAndDrawRecording2K(benchmark::State& state) {
    host::UseCanvas(host::CanvasKind::Recording);
    const std::string text = TaggedText(2048);
    CSimAutoText layout;
    layout.SetWidth(400);
    for (auto _ : state) {
        host::BeginFrame();
        layout.Clear();
        layout.SetText(text.c_str(), true, true);
        layout.ShowAt(10, 10);
    }
}
BENCHMARK(BM_AutoTextLayoutAndDrawRecording2K);

} // namespace

BENCHMARK_MAIN();
