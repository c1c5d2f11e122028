// The graphics library's process-wide state: the current canvas, the clip rectangle, the camera and the
// light.
#pragma once

#include <memory>

#include "Canvas.h"
#include "RasterCanvas.h"
#include "RecordingCanvas.h"

namespace gfx {

/// Owned by the process; the host chooses the canvas, the system draws through it. Until the host chooses, a
/// recording canvas of the screen size is current.
class GraphicsState {
public:
    static GraphicsState& Instance();

    ICanvas& Canvas();
    void Use(host::CanvasKind kind);
    host::CanvasKind Kind() const { return m_kind; }
    void BeginFrame(DWORD clearColour);
    /// The current canvas as its kind, or null when it is of the other kind.
    RecordingCanvas* Recording();
    RasterCanvas* Raster();

    /// Sets the clip (null: the whole canvas) and returns the previous one.
    RECT SetClip(const RECT* prc);
    RECT Clip();

    struct Camera {
        int centerX = 0;
        int centerY = 0;
        double distance = 0.0;
        int mode = 0;
    };
    Camera camera;
    bool lightEnabled = false;

private:
    GraphicsState() = default;
    static Rect ScreenRect();

    host::CanvasKind m_kind = host::CanvasKind::Recording;
    std::unique_ptr<ICanvas> m_canvas;
};

} // namespace gfx
