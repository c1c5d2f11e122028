// The window system's input state (cursor position, key state) and screen metrics, as the host's window sees
// them; declared with the other Win32 calls.
#pragma once

#include "BaseLib.h"
