// flashsim: the reference host. "run FILE" prints a scenario's transcript; "check FILE" compares it with
// FILE.out.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "ScenarioRunner.h"

namespace {
int Usage() {
    std::fprintf(
        stderr,
        "usage: flashsim run|check FILE [--lib PATH] [--res DIR] [--out DIR] [--check-drawing]\n"
        "  run    executes the scenario and prints its transcript\n"
        "  check  executes it and compares the transcript with FILE's .out file\n"
        "  --lib  the system library (default: the one built with this host; env FLASHSIM_LIBRARY)\n"
        "  --res  the default client directory (default: the sample one; env FLASHSIM_RES)\n"
        "  --out  where shot writes pictures (default: the current directory; env FLASHSIM_OUT)\n"
        "  --check-drawing  after every frame, prints each text or picture drawn past its window\n"
        "         (\"! cut at\" when the clip cut it there, \"! drawn outside\" otherwise, which fails)\n");
    return 2;
}

std::string EnvOr(const char* name, const std::string& fallback) {
    const char* value = std::getenv(name);
    return value && *value ? value : fallback;
}

std::string ExpectedPath(const std::string& scenario) {
    return std::filesystem::path(scenario).replace_extension(".out").string();
}

// Prints the first line where the two transcripts differ; true when they are equal.
bool CompareTranscripts(const std::string& expected, const std::string& actual) {
    std::istringstream e(expected), a(actual);
    std::string le, la;
    for (int line = 1;; ++line) {
        const bool moreE = static_cast<bool>(std::getline(e, le));
        const bool moreA = static_cast<bool>(std::getline(a, la));
        if (!moreE && !moreA) return true;
        if (moreE && moreA && le == la) continue;
        std::printf("first difference at line %d\n  expected: %s\n  actual:   %s\n", line,
                    moreE ? le.c_str() : "(end of transcript)", moreA ? la.c_str() : "(end of transcript)");
        return false;
    }
}
} // namespace

int main(int argc, char** argv) {
    if (argc < 3) return Usage();
    const std::string mode = argv[1];
    if (mode != "run" && mode != "check") return Usage();
    RunOptions options{argv[2], EnvOr("FLASHSIM_LIBRARY", FLASHSIM_LIBRARY_PATH),
                       EnvOr("FLASHSIM_RES", FLASHSIM_DEFAULT_RES_DIR), EnvOr("FLASHSIM_OUT", "."), false};
    for (int i = 3; i < argc; ++i) {
        const char* arg = argv[i];
        if (std::strcmp(arg, "--check-drawing") == 0) {
            options.checkDrawing = true;
            continue;
        }
        if (i + 1 >= argc) return Usage();
        const char* value = argv[++i];
        if (std::strcmp(arg, "--lib") == 0)
            options.libraryPath = value;
        else if (std::strcmp(arg, "--res") == 0)
            options.resDir = value;
        else if (std::strcmp(arg, "--out") == 0)
            options.outDir = value;
        else
            return Usage();
    }

    std::vector<ScenarioStep> steps;
    if (!ReadScenario(options.scenarioPath, steps)) {
        std::fprintf(stderr, "flashsim: cannot read %s\n", options.scenarioPath.c_str());
        return 2;
    }
    Transcript transcript(mode == "run");
    bool ok = false;
    {
        ScenarioRunner runner(options, transcript);
        ok = runner.Run(steps);
    }
    if (mode == "run") return ok ? 0 : 1;

    std::ifstream in(ExpectedPath(options.scenarioPath), std::ios::binary);
    if (!in) {
        std::printf("no expected transcript %s; actual:\n%s", ExpectedPath(options.scenarioPath).c_str(),
                    transcript.Text().c_str());
        return 1;
    }
    std::stringstream expected;
    expected << in.rdbuf();
    return CompareTranscripts(expected.str(), transcript.Text()) && ok ? 0 : 1;
}
