// The nine-grid frame the code-scanning and web-registration panels draw around themselves, reaching past the
// dialog's rectangle.
#pragma once

#include "platform/LuBaseWindow.h"

namespace panelframe {
/// How far the frame reaches past the panel: left, top, right, bottom. A panel declares it as its draw margin
/// so that the clip keeps the frame.
inline constexpr RECT MARGIN{9, 15, 10, 10};

/// Draws the frame around the panel whose position the dialog keeps at (x, y), when the animation exists.
void Draw(const LuGui::CLuBaseWindow& panel, int x, int y);
} // namespace panelframe
