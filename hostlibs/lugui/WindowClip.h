// The clip rectangle the toolkit keeps around one window's drawing.
#pragma once

#include "graphics/Canvas.h"

namespace LuGui {

class CLuBaseWindow;

/// While alive, drawing is limited to the window's rectangle (within the clip already set, so a control stays
/// inside its dialog too) and the canvas knows which window draws. Restores the previous clip at the end.
class WindowClip {
public:
    explicit WindowClip(const CLuBaseWindow& window);
    ~WindowClip();
    WindowClip(const WindowClip&) = delete;
    WindowClip& operator=(const WindowClip&) = delete;

private:
    gfx::ICanvas& m_canvas;
    gfx::Rect m_previous;
};

} // namespace LuGui
