// The window system's input state: cursor position and key state, as the host's window sees them.
#pragma once

#include "BaseLib.h"

/// The cursor's position in the game window's client coordinates.
HOSTLIB_API BOOL GetCursorPos(POINT* pPoint);
/// The key's state as of the last message the window received: the high bit (0x8000) is set while it is down.
HOSTLIB_API short GetKeyState(int nVirtKey);
