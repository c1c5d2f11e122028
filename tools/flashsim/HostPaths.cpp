// Where the reference host finds the system library and the sample client directory when not told.
#include "HostPaths.h"

#include <filesystem>

namespace fs = std::filesystem;

std::string ExecutableDir(const char* szArgv0) {
    std::error_code ec;
    const fs::path self = fs::read_symlink("/proc/self/exe", ec);
    if (!ec && !self.empty()) return self.parent_path().string();
    const fs::path given = szArgv0 ? fs::path(szArgv0) : fs::path();
    return fs::weakly_canonical(fs::absolute(given, ec), ec).parent_path().string();
}

// NOTE: the build gives both places relative to the executable's folder, so that a tree moved or copied as a
// whole (source and build together) still finds them.
std::string DefaultLibraryPath(const std::string& exeDir) {
    return (fs::path(exeDir) / FLASHSIM_LIBRARY_FROM_EXE).lexically_normal().string();
}

std::string DefaultClientDir(const std::string& exeDir) {
    return (fs::path(exeDir) / FLASHSIM_RES_FROM_EXE).lexically_normal().string();
}
