// The live window of the reference host ("flashsim view"): the raster canvas on the screen, fed what a game
// client's window feeds the library.
#pragma once

#include <string>

struct ViewOptions {
    std::string clientDir;
    std::string libraryPath;
    std::string languageName = "English"; ///< the host's language name ("host language")
    int language = 0;                     ///< the LANG of Create
    std::string scene = "login";          ///< "login" or "create"
    std::string scriptPath;               ///< scenario steps run before the window shows (may be empty)
};

/// Opens the window and runs until it is closed; the process's exit status.
int RunViewWindow(const ViewOptions& options);
