// The window system's input state (cursor position, key state) and screen metrics, as the host's window sees
// them.
#pragma once

#include "BaseLib.h"

/// The cursor's position in the game window's client coordinates.
BOOL GetCursorPos(POINT* pPoint);
/// The key's state as of the last message the window received: the high bit (0x8000) is set while it is down.
short GetKeyState(int nVirtKey);

inline constexpr int SM_CXSCREEN = 0;
inline constexpr int SM_CYSCREEN = 1;
/// Screen metrics: SM_CXSCREEN and SM_CYSCREEN give the primary screen's size (0 for anything else).
int GetSystemMetrics(int nIndex);
