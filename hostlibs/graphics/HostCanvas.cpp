// The host's control of the graphics library: canvas choice, frames, recorded operations and PNG output.
#include "hostlibs/HostCanvas.h"

#include "AniCache.h"
#include "GraphicsState.h"
#include "PngWriter.h"

namespace host {

void UseCanvas(CanvasKind kind) {
    gfx::GraphicsState::Instance().Use(kind);
}

CanvasKind GetCanvasKind() {
    return gfx::GraphicsState::Instance().Kind();
}

void BeginFrame(DWORD dwClearColour) {
    gfx::GraphicsState::Instance().BeginFrame(dwClearColour);
}

std::vector<DrawOp> GetRecordedOps() {
    const gfx::RecordingCanvas* canvas = gfx::GraphicsState::Instance().Recording();
    return canvas ? canvas->Ops() : std::vector<DrawOp>();
}

std::size_t DroppedOpCount() {
    const gfx::RecordingCanvas* canvas = gfx::GraphicsState::Instance().Recording();
    return canvas ? canvas->Dropped() : 0;
}

std::vector<DrawOverflow> GetDrawOverflows() {
    const gfx::RecordingCanvas* canvas = gfx::GraphicsState::Instance().Checking();
    return canvas ? canvas->Overflows() : std::vector<DrawOverflow>();
}

void EnableDrawingCheck(bool bEnable) {
    gfx::GraphicsState::Instance().EnableCheck(bEnable);
}

std::string DumpRecordedOps() {
    std::string out;
    for (const DrawOp& op : GetRecordedOps()) {
        out += op.ToString();
        out += '\n';
    }
    return out;
}

std::vector<std::uint8_t> GetRasterPixels(int& nWidth, int& nHeight) {
    const gfx::RasterCanvas* canvas = gfx::GraphicsState::Instance().Raster();
    nWidth = canvas ? canvas->Width() : 0;
    nHeight = canvas ? canvas->Height() : 0;
    return canvas ? canvas->Pixels() : std::vector<std::uint8_t>();
}

bool WriteFramePng(const std::string& path) {
    const gfx::RasterCanvas* canvas = gfx::GraphicsState::Instance().Raster();
    return canvas && gfx::PngWriter::Write(path, canvas->Width(), canvas->Height(), canvas->Pixels());
}

void ClearGraphicsCaches() {
    gfx::AniCache::Instance().Clear();
}

} // namespace host
