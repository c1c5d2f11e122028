// Time of the base library: the virtual millisecond clock and the local calendar time, both set by the host.
#include <cstdio>

#include "BaseLib.h"
#include "HostEnvironment.h"

int g_nDumpStep = 0;

DWORD TimeGet() {
    return host::detail::Env().clockMs.load();
}
DWORD GetTickCount() {
    return TimeGet();
}

SLocalTime GetLocalCalendarTime() {
    std::lock_guard lock(host::detail::Env().mutex);
    return host::detail::Env().localTime;
}

std::string FormatSvrTime() {
    const SLocalTime t = GetLocalCalendarTime();
    char buf[32];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d:%02d", t.nYear, t.nMonth, t.nDay, t.nHour,
                  t.nMinute, t.nSecond);
    return buf;
}

namespace {
// Days from 1970-01-01 to a date of the proleptic Gregorian calendar.
std::int64_t DaysFromCivil(std::int64_t y, unsigned m, unsigned d) {
    y -= m <= 2;
    const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
    const auto yoe = static_cast<unsigned>(y - era * 400);
    const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + static_cast<std::int64_t>(doe) - 719468;
}
} // namespace

bool GetSafeLocalTime(std::int64_t& nSeconds) {
    const SLocalTime t = GetLocalCalendarTime();
    if (t.nMonth < 1 || t.nMonth > 12 || t.nDay < 1 || t.nDay > 31) return false;
    nSeconds =
        DaysFromCivil(t.nYear, static_cast<unsigned>(t.nMonth), static_cast<unsigned>(t.nDay)) * 86400 +
        t.nHour * 3600 + t.nMinute * 60 + t.nSecond;
    return true;
}

std::int64_t GetTimeFromIntervalMin(std::int64_t nMinutes) {
    return nMinutes * 60;
}
