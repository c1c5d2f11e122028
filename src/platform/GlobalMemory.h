// The system's global memory blocks (GlobalAlloc and its lock), as the QR picture renderer uses them.
#pragma once

#include <cstddef>

#include "BaseLib.h"

using HGLOBAL = void*;

inline constexpr UINT GMEM_MOVEABLE = 0x0002;

/// A block of nBytes bytes (at least 1); null when it cannot be had. Free it with GlobalFree.
HGLOBAL GlobalAlloc(UINT uFlags, std::size_t nBytes);
/// The block's bytes, valid until the matching GlobalUnlock; null when the block cannot be locked.
void* GlobalLock(HGLOBAL hMem);
BOOL GlobalUnlock(HGLOBAL hMem);
/// Frees a block (null is accepted); returns null on success, as the system does.
HGLOBAL GlobalFree(HGLOBAL hMem);
