// The number of frames of a window's background animation, for choosing a state frame it really has.
#pragma once

#include "LuBaseWindow.h"

namespace LuGui {

/// Frames of the window's background animation (0 when it has none).
int BackGroundFrameCount(const CLuBaseWindow& wnd);
/// nFrame when the background has it, else 0.
int FrameOrFirst(const CLuBaseWindow& wnd, int nFrame);

} // namespace LuGui
