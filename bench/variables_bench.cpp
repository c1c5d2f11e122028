// The variable protocol's dispatch: a name without effect, a server list of 15 names, a server choice.
#include <benchmark/benchmark.h>

#include "TempClientDir.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
class Fixture {
public:
    Fixture() {
        m_dir.Write("ini/FlashString.ini", "1=x\n");
        m_dir.Write(
            "ini/ServerCfg.ini",
            "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=2\nServer1=1\nSpecialMark1=1\nServer2=2\n");
        m_sim = FlashSimQuery();
        m_sim->Create(0, 0, 0, true);
        m_sim->SetVariable("VAR_SERVER_AREA", "1#East|");
    }
    ~Fixture() { FlashSimDestroy(); }
    CFlashSimulator* Sim() { return m_sim; }

private:
    TempClientDir m_dir;
    CFlashSimulator* m_sim;
};

void BM_SetVariableNoEffect(benchmark::State& state) {
    Fixture f;
    for (auto _ : state) f.Sim()->SetVariable("VAR_SHORTPWDTIP", "1");
}
BENCHMARK(BM_SetVariableNoEffect);

void BM_SetVariableUnknownName(benchmark::State& state) {
    Fixture f;
    for (auto _ : state) f.Sim()->SetVariable("VAR_NOT_IN_ANY_TABLE", "1");
}
BENCHMARK(BM_SetVariableUnknownName);

void BM_SetVariableServerName15(benchmark::State& state) {
    Fixture f;
    const char* value =
        "15#Dragon|Tiger|Phoenix|Turtle|Crane|Lotus|Jade|Pearl|Storm|River|Cloud|Peak|Moon|Sun|Star|";
    for (auto _ : state) {
        f.Sim()->SetVariable("VAR_SERVER_AREA", "1#East|");
        f.Sim()->SetVariable("VAR_SERVER_NAME", value);
    }
}
BENCHMARK(BM_SetVariableServerName15);

void BM_OnSelectServerWithConfigLookup(benchmark::State& state) {
    Fixture f;
    f.Sim()->SetVariable("VAR_SERVER_NAME", "2#A|B|");
    int server = 0;
    for (auto _ : state) {
        f.Sim()->OnSelectServer(server);
        server ^= 1;
    }
}
BENCHMARK(BM_OnSelectServerWithConfigLookup);
} // namespace

BENCHMARK_MAIN();
