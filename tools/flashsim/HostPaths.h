// Where the reference host finds the system library and the sample client directory when not told.
#pragma once

#include <string>

/// The folder of the running executable (argv0 is the fallback when the system cannot name it).
std::string ExecutableDir(const char* szArgv0);
/// The system library built with this host: its place relative to the executable, fixed by the build.
std::string DefaultLibraryPath(const std::string& exeDir);
/// The sample client directory, likewise relative to the executable.
std::string DefaultClientDir(const std::string& exeDir);
