// The number forms of the host commands, shared by every screen.
#include "screen/ScreenContext.h"

#include <string>

#include "platform/BaseLib.h"

void IScreenContext::NotifyHostInt(const char* szCommand, int nValue) {
    char buf[32];
    NotifyHost(szCommand, SafeItoA(nValue, buf, sizeof buf, 10));
}

void IScreenContext::NotifyHostIndex(const char* szCommand, int nIndex) {
    NotifyHost(szCommand, std::to_string(static_cast<long long>(nIndex) + 1).c_str());
}
