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
