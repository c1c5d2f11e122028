// Cursor position and key state: set by the host as its window receives input, read by the widget toolkit.
#include "Input.h"
#include "HostEnvironment.h"
#include "hostlibs/HostEnv.h"

namespace host {

void SetCursor(int x, int y) {
    detail::Env().cursor =
        (static_cast<std::uint64_t>(static_cast<std::uint32_t>(y)) << 32) | static_cast<std::uint32_t>(x);
}

void SetKeyDown(int nVirtKey, bool bDown) {
    if (nVirtKey < 0 || nVirtKey > 255) return;
    std::lock_guard lock(detail::Env().mutex);
    detail::Env().keysDown[nVirtKey] = bDown ? 1 : 0;
}

} // namespace host

BOOL GetCursorPos(POINT* pPoint) {
    if (!pPoint) return FALSE;
    const std::uint64_t packed = host::detail::Env().cursor;
    *pPoint = POINT{static_cast<LONG>(static_cast<std::uint32_t>(packed)),
                    static_cast<LONG>(static_cast<std::uint32_t>(packed >> 32))};
    return TRUE;
}

short GetKeyState(int nVirtKey) {
    if (nVirtKey < 0 || nVirtKey > 255) return 0;
    std::lock_guard lock(host::detail::Env().mutex);
    return host::detail::Env().keysDown[nVirtKey] ? static_cast<short>(0x8000) : short{0};
}

int GetSystemMetrics(int nIndex) {
    std::lock_guard lock(host::detail::Env().mutex);
    if (nIndex == SM_CXSCREEN) return host::detail::Env().screenWidth;
    if (nIndex == SM_CYSCREEN) return host::detail::Env().screenHeight;
    return 0;
}
