// The current canvas and its drawing state; the canvas follows the host's screen size at every frame.
#include "GraphicsState.h"

#include "hostlibs/HostEnv.h"

namespace gfx {
namespace {
constexpr DWORD DEFAULT_CLEAR_COLOUR = 0xFF000000;
}

GraphicsState& GraphicsState::Instance() {
    static GraphicsState state;
    return state;
}

Rect GraphicsState::ScreenRect() {
    int width = 0, height = 0;
    host::GetScreenSize(width, height);
    return {0, 0, width, height};
}

ICanvas& GraphicsState::Canvas() {
    if (!m_canvas) Use(m_kind);
    return m_tee ? static_cast<ICanvas&>(*m_tee) : *m_canvas;
}

void GraphicsState::Use(host::CanvasKind kind) {
    m_kind = kind;
    if (kind == host::CanvasKind::Raster) {
        m_canvas = std::make_unique<RasterCanvas>();
    } else {
        m_canvas = std::make_unique<RecordingCanvas>();
    }
    AttachCheck();
    BeginFrame(DEFAULT_CLEAR_COLOUR);
}

void GraphicsState::EnableCheck(bool enable) {
    m_checkEnabled = enable;
    if (!m_canvas) return Use(m_kind);
    AttachCheck();
    BeginFrame(DEFAULT_CLEAR_COLOUR);
}

void GraphicsState::AttachCheck() {
    m_tee.reset();
    m_check.reset();
    if (!m_checkEnabled || m_kind != host::CanvasKind::Raster) return;
    m_check = std::make_unique<RecordingCanvas>();
    m_tee = std::make_unique<TeeCanvas>(*m_canvas, *m_check);
}

const RecordingCanvas* GraphicsState::Checking() {
    if (RecordingCanvas* recording = Recording()) return recording;
    return m_check.get();
}

void GraphicsState::BeginFrame(DWORD clearColour) {
    const Rect screen = ScreenRect();
    Canvas().Begin(screen.w, screen.h, clearColour);
}

RecordingCanvas* GraphicsState::Recording() {
    if (!m_canvas) Use(m_kind);
    return m_kind == host::CanvasKind::Recording ? static_cast<RecordingCanvas*>(m_canvas.get()) : nullptr;
}

RasterCanvas* GraphicsState::Raster() {
    if (!m_canvas) Use(m_kind);
    return m_kind == host::CanvasKind::Raster ? static_cast<RasterCanvas*>(m_canvas.get()) : nullptr;
}

RECT GraphicsState::SetClip(const RECT* prc) {
    const RECT previous = Clip();
    ICanvas& canvas = Canvas();
    const Rect whole{0, 0, canvas.Width(), canvas.Height()};
    canvas.SetClip(prc ? Rect::FromRECT(*prc).Intersect(whole) : whole);
    return previous;
}

RECT GraphicsState::Clip() {
    return Canvas().Clip().ToRECT();
}

} // namespace gfx
