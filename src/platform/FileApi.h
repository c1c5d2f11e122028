// The system's file handles (CreateFileA, WriteFile, CloseHandle), as the image downloader uses them;
// declared with the other Win32 calls.
#pragma once

#include "BaseLib.h"
