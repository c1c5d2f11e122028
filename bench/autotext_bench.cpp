// Auto-text layout of a 2 KB tagged text and of a 64 KB plain one, and layout plus drawing.
#include <benchmark/benchmark.h>

#include <string>
#include <utility>

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

// Two texts that differ in their last byte, so that every SetText lays out anew (an unchanged text keeps its
// layout) while the runs' buffers are reused as between a static's frames.
struct SAlternatingTexts {
    explicit SAlternatingTexts(std::string text) : first(text), second(std::move(text)) {
        second.back() ^= 1;
    }
    const char* Next() { return (bFirst = !bFirst) ? first.c_str() : second.c_str(); }
    std::string first, second;
    bool bFirst = false;
};

void BM_AutoTextLayout2K(benchmark::State& state) {
    SAlternatingTexts texts(TaggedText(2048));
    CSimAutoText layout;
    layout.SetWidth(400);
    for (auto _ : state) {
        layout.SetText(texts.Next(), true, true);
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
    SAlternatingTexts texts(text);
    CSimAutoText layout;
    layout.SetWidth(224);
    for (auto _ : state) {
        layout.SetText(texts.Next(), true, true);
        benchmark::DoNotOptimize(layout.GetLineCount());
    }
}
BENCHMARK(BM_AutoTextLayoutPlain64K)->Unit(benchmark::kMicrosecond);

void BM_AutoTextLayoutAndDrawRecording2K(benchmark::State& state) {
    host::UseCanvas(host::CanvasKind::Recording);
    SAlternatingTexts texts(TaggedText(2048));
    CSimAutoText layout;
    layout.SetWidth(400);
    for (auto _ : state) {
        host::BeginFrame();
        layout.SetText(texts.Next(), true, true);
        layout.ShowAt(10, 10);
    }
}
BENCHMARK(BM_AutoTextLayoutAndDrawRecording2K);

} // namespace

BENCHMARK_MAIN();
