// The command lines of the integrator tools.
#include "ToolCommands.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "ClientLint.h"
#include "HostPaths.h"
#include "ViewWindow.h"

namespace {

constexpr int EXIT_USAGE = 2;

constexpr const char* TOOLS_USAGE =
    "usage: flashsim lint DIR [--lib PATH] [--language NAME]\n"
    "       flashsim view [DIR] [--lang N] [--scene login|create] [--script FILE.scn] [--lib PATH]\n"
    "                     [--language NAME]\n"
    "  lint  opens every screen in both scenes and each language DIR declares and prints what DIR lacks\n"
    "        (strings, layout records, pictures, animation titles, unreachable server-configuration\n"
    "        entries), grouped by screen; exit 1 when anything is missing, 2 when DIR cannot be read\n"
    "  view  shows the screens in a window and feeds it the mouse, keys, typed text and focus; the\n"
    "        terminal takes scenario steps; F12 toggles the debug overlay (docs/SCENARIOS.md)\n"
    "  --language  the host's language name (default English)\n";

std::string EnvOr(const char* name, const std::string& fallback) {
    const char* value = std::getenv(name);
    return value && *value ? value : fallback;
}

int Usage(const std::string& why) {
    std::fprintf(stderr, "flashsim: %s\n%s", why.c_str(), TOOLS_USAGE);
    return EXIT_USAGE;
}

} // namespace

bool IsToolCommand(int argc, char** argv) {
    if (argc < 2) return false;
    const std::string_view mode = argv[1];
    return mode == "lint" || mode == "view";
}

int RunToolCommand(int argc, char** argv) {
    const std::string exeDir = ExecutableDir(argv[0]);
    const std::string mode = argv[1];
    ViewOptions view;
    view.libraryPath = EnvOr("FLASHSIM_LIBRARY", DefaultLibraryPath(exeDir));
    view.clientDir = EnvOr("FLASHSIM_RES", DefaultClientDir(exeDir));
    bool bDirGiven = false;
    for (int i = 2; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--help" || arg == "-h") {
            std::fputs(TOOLS_USAGE, stdout);
            return EXIT_SUCCESS;
        }
        const bool bValued =
            arg == "--lib" || arg == "--language" || arg == "--lang" || arg == "--scene" || arg == "--script";
        if (bValued && i + 1 >= argc) return Usage(std::string(arg) + " needs a value");
        if (arg == "--lib") {
            view.libraryPath = argv[++i];
        } else if (arg == "--language") {
            view.languageName = argv[++i];
        } else if (mode == "view" && arg == "--lang") {
            view.language = std::atoi(argv[++i]);
        } else if (mode == "view" && arg == "--scene") {
            view.scene = argv[++i];
            if (view.scene != "login" && view.scene != "create")
                return Usage("--scene takes login or create");
        } else if (mode == "view" && arg == "--script") {
            view.scriptPath = argv[++i];
        } else if (arg.starts_with("-")) {
            return Usage("unknown option " + std::string(arg));
        } else if (!bDirGiven) {
            view.clientDir = arg;
            bDirGiven = true;
        } else {
            return Usage("unexpected argument " + std::string(arg));
        }
    }
    if (mode == "lint") {
        if (!bDirGiven) return Usage("lint needs the client directory DIR");
        ClientLint lint(LintOptions{view.clientDir, view.libraryPath, view.languageName});
        return lint.Run(stdout);
    }
    return RunViewWindow(view);
}
