// Process-wide state of the host environment shared by the host libraries (clock, calendar, directory, data).
#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <mutex>
#include <string>

#include "BaseLib.h"

namespace host::detail {

struct Environment {
    std::mutex mutex; // the player-list worker reads the directory and data from its own thread
    std::string clientDir;
    std::atomic<unsigned> clientDirVersion{0}; ///< changes with every SetClientDir, for caches keyed by it
    std::atomic<DWORD> clockMs{START_CLOCK_MS};
    SLocalTime localTime{START_TIME};
    int screenWidth = 1024;
    int screenHeight = 768;
    std::map<std::string, std::string> data;
    std::uint64_t dataVersion = 0;
    std::atomic<std::uint64_t> cursor{
        0}; ///< x in the low 32 bits, y in the high ones: read by every control each frame
    std::uint8_t keysDown[256] = {}; // one flag per virtual key

    static constexpr DWORD START_CLOCK_MS = 100000;
    static constexpr SLocalTime START_TIME{2026, 1, 1, 12, 0, 0};
};

Environment& Env();

} // namespace host::detail
