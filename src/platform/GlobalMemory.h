// The system's global memory blocks (GlobalAlloc and its lock), as the QR picture renderer uses them;
// declared with the other Win32 calls.
#pragma once

#include "BaseLib.h"
