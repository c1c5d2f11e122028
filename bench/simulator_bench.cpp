// Start-up costs of the simulator: loading a large string table, a lookup hit, one command to two callbacks.
#include <benchmark/benchmark.h>

#include <string>

#include "TempClientDir.h"
#include "resources/FlashStringMgr.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr int TABLE_LINES = 100000;

std::string GenerateTable(int lines) {
    std::string text;
    text.reserve(static_cast<std::size_t>(lines) * 48);
    for (int i = 0; i < lines; ++i) {
        if (i % 50 == 0) text += "; section comment\n";
        text += std::to_string(3000000 + i) + "=Text number " + std::to_string(i) + " with some words\n";
    }
    return text;
}

void BM_LoadStringTable100k(benchmark::State& state) {
    TempClientDir dir;
    dir.Write("ini/FlashString.ini", GenerateTable(TABLE_LINES));
    CFlashStringMgr mgr;
    for (auto _ : state) {
        mgr.Load();
        benchmark::DoNotOptimize(mgr.GetStringCount());
    }
    state.counters["lines"] = TABLE_LINES;
}
BENCHMARK(BM_LoadStringTable100k)->Unit(benchmark::kMillisecond);

void BM_GetStrHit(benchmark::State& state) {
    TempClientDir dir;
    dir.Write("ini/FlashString.ini", GenerateTable(TABLE_LINES));
    CFlashStringMgr mgr;
    mgr.Load();
    // Ids in a scattered order, so that the figure includes the cache misses of a real screen's lookups.
    std::uint32_t step = 0;
    for (auto _ : state) {
        step = step * 1664525u + 1013904223u;
        benchmark::DoNotOptimize(mgr.GetStr(3000000 + step % TABLE_LINES));
    }
}
BENCHMARK(BM_GetStrHit);

int g_received = 0;
void CountCommand(const char*, const char*) {
    ++g_received;
}

void BM_NotifyHostTwoCallbacks(benchmark::State& state) {
    TempClientDir dir;
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, false);
    sim->SetCallBack(&CountCommand);
    sim->SetCallBackEx(&CountCommand);
    for (auto _ : state) sim->NotifyHost("CMD_SELECTGROUP", "3");
    benchmark::DoNotOptimize(g_received);
    FlashSimDestroy();
}
BENCHMARK(BM_NotifyHostTwoCallbacks);
} // namespace

BENCHMARK_MAIN();
