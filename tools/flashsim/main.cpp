// flashsim: the reference host. "run FILE" prints a scenario's transcript; "check FILE" compares it with
// FILE.out.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

#include "HostPaths.h"
#include "ScenarioRunner.h"
#include "ToolCommands.h"
#include "TranscriptCheck.h"

namespace {

constexpr int EXIT_DIFFERENT = 1; // the run failed or its transcript differs
constexpr int EXIT_USAGE = 2;     // the command line or the scenario file could not be used

constexpr const char* USAGE =
    "usage: flashsim run|check FILE [--lib PATH] [--res DIR] [--out DIR] [--check-drawing]\n"
    "       flashsim lint|view ... (flashsim lint --help)\n"
    "       flashsim --help\n"
    "  run    executes the scenario and prints its transcript\n"
    "  check  executes it and compares the transcript with FILE's .out file; log lines the .out file\n"
    "         leaves out are passed over (see docs/SCENARIOS.md)\n"
    "  --lib  the system library (default: the one built with this host, found from the executable;\n"
    "         env FLASHSIM_LIBRARY)\n"
    "  --res  the default client directory (default: the sample one, found from the executable;\n"
    "         env FLASHSIM_RES)\n"
    "  --out  where shot writes pictures (default: the current directory; env FLASHSIM_OUT)\n"
    "  --check-drawing  after every frame, prints each text or picture drawn past its window\n"
    "         (\"! cut at\" when the clip cut it there, \"! drawn outside\" otherwise, which fails)\n";

struct SCommandLine {
    bool bHelp = false;
    std::string mode;
    RunOptions options;
};

int UsageError(const std::string& why) {
    std::fprintf(stderr, "flashsim: %s\n%s", why.c_str(), USAGE);
    return EXIT_USAGE;
}

std::string EnvOr(const char* name, const std::string& fallback) {
    const char* value = std::getenv(name);
    return value && *value ? value : fallback;
}

// Reads the command line; an error text when it cannot be used.
std::optional<SCommandLine> ParseCommandLine(int argc, char** argv, std::string& strError) {
    SCommandLine cmd;
    const std::string exeDir = ExecutableDir(argc > 0 ? argv[0] : nullptr);
    cmd.options.libraryPath = EnvOr("FLASHSIM_LIBRARY", DefaultLibraryPath(exeDir));
    cmd.options.resDir = EnvOr("FLASHSIM_RES", DefaultClientDir(exeDir));
    cmd.options.outDir = EnvOr("FLASHSIM_OUT", ".");
    std::string* positional[] = {&cmd.mode, &cmd.options.scenarioPath};
    std::size_t nPositional = 0;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            cmd.bHelp = true;
            return cmd;
        }
        if (arg == "--check-drawing") {
            cmd.options.checkDrawing = true;
            continue;
        }
        std::string* target = arg == "--lib"   ? &cmd.options.libraryPath
                              : arg == "--res" ? &cmd.options.resDir
                              : arg == "--out" ? &cmd.options.outDir
                                               : nullptr;
        if (target) {
            if (i + 1 >= argc) {
                strError = std::string(arg) + " needs a value";
                return std::nullopt;
            }
            *target = argv[++i];
        } else if (arg.starts_with("-")) {
            strError = "unknown option " + std::string(arg);
            return std::nullopt;
        } else if (nPositional < std::size(positional)) {
            *positional[nPositional++] = arg;
        } else {
            strError = "unexpected argument " + std::string(arg);
            return std::nullopt;
        }
    }
    if (nPositional < std::size(positional)) {
        strError = nPositional == 0 ? "run or check is missing" : "the scenario FILE is missing";
        return std::nullopt;
    }
    if (cmd.mode != "run" && cmd.mode != "check") {
        strError = "unknown mode " + cmd.mode + " (run or check)";
        return std::nullopt;
    }
    return cmd;
}

std::string ExpectedPath(const std::string& scenario) {
    return std::filesystem::path(scenario).replace_extension(".out").string();
}

int CheckAgainstExpected(const std::string& scenarioPath, const Transcript& transcript, bool bRunOk) {
    const std::string path = ExpectedPath(scenarioPath);
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        std::printf("no expected transcript %s; actual:\n%s", path.c_str(), transcript.Text().c_str());
        return EXIT_DIFFERENT;
    }
    std::stringstream expected;
    expected << in.rdbuf();
    std::string report;
    if (!MatchesExpectedTranscript(expected.str(), transcript, report)) {
        std::printf("%s: %s", path.c_str(), report.c_str());
        return EXIT_DIFFERENT;
    }
    return bRunOk ? EXIT_SUCCESS : EXIT_DIFFERENT;
}

} // namespace

int main(int argc, char** argv) {
    if (IsToolCommand(argc, argv)) return RunToolCommand(argc, argv);
    std::string error;
    const std::optional<SCommandLine> cmd = ParseCommandLine(argc, argv, error);
    if (!cmd) return UsageError(error);
    if (cmd->bHelp) {
        std::fputs(USAGE, stdout);
        return EXIT_SUCCESS;
    }

    std::vector<ScenarioStep> steps;
    if (!ReadScenario(cmd->options.scenarioPath, steps)) {
        std::fprintf(stderr, "flashsim: cannot read %s\n", cmd->options.scenarioPath.c_str());
        return EXIT_USAGE;
    }
    const bool bRun = cmd->mode == "run";
    Transcript transcript(bRun);
    bool bOk = false;
    {
        ScenarioRunner runner(cmd->options, transcript);
        bOk = runner.Run(steps);
    }
    if (bRun) return bOk ? EXIT_SUCCESS : EXIT_DIFFERENT;
    return CheckAgainstExpected(cmd->options.scenarioPath, transcript, bOk);
}
