// The host environment: virtual clock, calendar, client directory, screen size and host data.
#include "HostEnvironment.h"

#include <unistd.h>

#include <algorithm>

#include <climits>

#include "hostlibs/HostEnv.h"

namespace host::detail {
Environment& Env() {
    static Environment env;
    return env;
}
} // namespace host::detail

namespace host {
using detail::Env;

void SetClientDir(const std::string& dir) {
    std::lock_guard lock(Env().mutex);
    Env().clientDir = dir;
    ++Env().clientDirVersion;
}

void AdvanceClock(DWORD ms) {
    Env().clockMs += ms;
}
void SetClock(DWORD ms) {
    Env().clockMs = ms;
}

void SetLocalTime(const SLocalTime& t) {
    std::lock_guard lock(Env().mutex);
    Env().localTime = t;
}

void SetScreenSize(int nWidth, int nHeight) {
    std::lock_guard lock(Env().mutex);
    Env().screenWidth = nWidth > 0 ? nWidth : 1;
    Env().screenHeight = nHeight > 0 ? nHeight : 1;
}

void GetScreenSize(int& nWidth, int& nHeight) {
    std::lock_guard lock(Env().mutex);
    nWidth = Env().screenWidth;
    nHeight = Env().screenHeight;
}

void SetData(const std::string& key, const std::string& value) {
    std::lock_guard lock(Env().mutex);
    std::string& stored = Env().data[key];
    if (stored == value && !value.empty()) return;
    stored = value;
    ++Env().dataVersion;
}

std::uint64_t DataVersion() {
    std::lock_guard lock(Env().mutex);
    return Env().dataVersion;
}

std::string GetData(const std::string& key, const std::string& fallback) {
    std::lock_guard lock(Env().mutex);
    const auto it = Env().data.find(key);
    return it == Env().data.end() ? fallback : it->second;
}

bool HasData(const std::string& key) {
    std::lock_guard lock(Env().mutex);
    return Env().data.count(key) != 0;
}

int GetDataInt(const std::string& key, int fallback) {
    if (!HasData(key)) return fallback;
    return SafeAtoi(GetData(key).c_str());
}

void ResetJournalCounts(); // in the log library

void ResetForTest() {
    {
        std::lock_guard lock(Env().mutex);
        Env().clientDir.clear();
        Env().localTime = detail::Environment::START_TIME;
        Env().screenWidth = 1024;
        Env().screenHeight = 768;
        Env().data.clear();
        ++Env().dataVersion;
        Env().cursor = 0;
        std::fill(std::begin(Env().keysDown), std::end(Env().keysDown), std::uint8_t{0});
    }
    Env().clockMs = detail::Environment::START_CLOCK_MS;
    g_nDumpStep = 0;
    ResetJournalCounts();
}
} // namespace host

std::string GetClientDirectory() {
    std::lock_guard lock(host::detail::Env().mutex);
    if (!host::detail::Env().clientDir.empty()) return host::detail::Env().clientDir;
    char buf[PATH_MAX];
    return getcwd(buf, sizeof buf) ? std::string(buf) : std::string(".");
}
