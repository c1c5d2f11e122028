// The graphics library's process-wide state: the current canvas, the clip rectangle, the camera and the
// light.
#pragma once

#include <memory>

#include "Canvas.h"
#include "RasterCanvas.h"
#include "RecordingCanvas.h"
#include "TeeCanvas.h"

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
    /// While on, a raster canvas is drawn through a tee that also records, for Checking.
    void EnableCheck(bool enable);
    /// The recording canvas that sees the drawing: the current canvas when it records, else the check beside
    /// a raster canvas; null when there is none.
    const RecordingCanvas* Checking();

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
    /// Puts the check beside the current canvas, or removes it.
    void AttachCheck();

    host::CanvasKind m_kind = host::CanvasKind::Recording;
    std::unique_ptr<ICanvas> m_canvas;
    bool m_checkEnabled = false;
    std::unique_ptr<RecordingCanvas> m_check;
    std::unique_ptr<TeeCanvas> m_tee; ///< what Canvas answers while the check is attached
};

} // namespace gfx
