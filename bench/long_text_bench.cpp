// One raster frame of the login scene with the message box open, with short host texts and with 64 KB ones.
#include <benchmark/benchmark.h>

#include <string>

#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "simulator/FlashSimulator.h"

namespace {

constexpr std::size_t LONG_TEXT_BYTES = 64 * 1024;
constexpr std::size_t SCREENFUL_TEXT_BYTES = 4 * 1024;
constexpr const char* SHORT_ERROR = "The server is full.";
constexpr const char* SHORT_VERSION = "1.0.0";

// Words of mixed lengths so that a wrapped layout breaks lines all the way down.
std::string LongText(std::size_t nBytes) {
    const std::string piece = "The login server refused the request because the account is busy elsewhere. ";
    std::string text;
    text.reserve(nBytes + piece.size());
    while (text.size() < nBytes) text += piece;
    text.resize(nBytes);
    return text;
}

// The sample client, the main login shown, a version label and an error in the message box; then frames as
// the host draws them (Process, then Show on the raster canvas).
void RunLoginFrames(benchmark::State& state, const std::string& version, const std::string& error) {
    host::SetClientDir(FLASHSIM_RES_DIR);
    host::ClearGraphicsCaches();
    host::UseCanvas(host::CanvasKind::Raster);
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, true);
    sim->SetSceneType(EST_LOGIN);
    sim->SetVariable("VAR_MAINPATH", "1");
    sim->SetVariable("VAR_VERSION", version.c_str());
    sim->SetVariable("SetLoginError", error.c_str());
    for (auto _ : state) {
        host::AdvanceClock(16);
        sim->Process();
        host::BeginFrame();
        sim->Show();
    }
    FlashSimDestroy();
    host::ClearGraphicsCaches();
}

void BM_LoginFrameShortTexts(benchmark::State& state) {
    RunLoginFrames(state, SHORT_VERSION, SHORT_ERROR);
}
BENCHMARK(BM_LoginFrameShortTexts)->Unit(benchmark::kMillisecond);

// Long enough to fill the screen below the message box, as the 64 KB text does: the difference between this
// figure and the next one is what the frame still spends per byte of text.
void BM_LoginFrame4KTexts(benchmark::State& state) {
    RunLoginFrames(state, LongText(SCREENFUL_TEXT_BYTES), LongText(SCREENFUL_TEXT_BYTES));
}
BENCHMARK(BM_LoginFrame4KTexts)->Unit(benchmark::kMillisecond);

void BM_LoginFrame64KTexts(benchmark::State& state) {
    RunLoginFrames(state, LongText(LONG_TEXT_BYTES), LongText(LONG_TEXT_BYTES));
}
BENCHMARK(BM_LoginFrame64KTexts)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
