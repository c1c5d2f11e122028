// Drawing and sizing of one cached animation; every draw is recorded as one "ani" operation.
#include "AniHandle.h"

#include <algorithm>
#include <cmath>

#include "FrameDrawer.h"
#include "GraphicsState.h"

namespace gfx {
namespace {
constexpr float MAX_SCALE = 64.0f;

int ScaledLength(int length, float scale) {
    if (!(scale > 0.0f)) return 0; // also refuses NaN
    return static_cast<int>(std::lround(static_cast<double>(length) * std::fmin(scale, MAX_SCALE)));
}
} // namespace

AniHandle::AniHandle(std::string file, std::shared_ptr<const AniIndex> index, const AniTitle& title)
    : m_file(std::move(file)), m_index(std::move(index)), m_title(title) {
}

int AniHandle::GetFrameAmount() const {
    return static_cast<int>(m_title.frames.size());
}

const AniFrame* AniHandle::Frame(int nFrame) const {
    if (nFrame < 0 || nFrame >= GetFrameAmount()) return nullptr;
    return &m_title.frames[static_cast<std::size_t>(nFrame)];
}

SIZE AniHandle::GetSize(int nFrame) const {
    const AniFrame* frame = Frame(nFrame);
    return frame ? FrameDrawer::NaturalSize(*frame) : SIZE{0, 0};
}

int AniHandle::GetInterval() const {
    return m_title.intervalMs;
}

int AniHandle::FrameByTime() const {
    const DWORD step = TimeGet() / static_cast<DWORD>(m_title.intervalMs);
    return static_cast<int>(step % static_cast<DWORD>(GetFrameAmount()));
}

bool AniHandle::DrawFrame(ICanvas& canvas, int nFrame, const Rect& dst, int nAlpha) const {
    const AniFrame* frame = Frame(nFrame);
    if (!frame || dst.Empty()) return false;
    nAlpha = std::clamp(nAlpha, 0, 255);
    if (frame->kind == AniFrame::Kind::Empty) return false;
    if (frame->kind == AniFrame::Kind::Image && FrameDrawer::NaturalSize(*frame).cx == 0) return false;
    const CompoundScope scope(canvas, OpBuilder("ani", dst)
                                          .Colour(static_cast<DWORD>(nAlpha))
                                          .Frame(nFrame)
                                          .File(m_file)
                                          .Name(m_title.title));
    return FrameDrawer::Draw(canvas, *frame, dst, nAlpha);
}

bool AniHandle::Show(int nFrame, int x, int y, float fScaleX, float fScaleY, int nAlpha) {
    const SIZE size = GetSize(nFrame);
    const Rect dst{ClampCoord(x), ClampCoord(y), ClampCoord(ScaledLength(size.cx, fScaleX)),
                   ClampCoord(ScaledLength(size.cy, fScaleY))};
    return DrawFrame(GraphicsState::Instance().Canvas(), nFrame, dst, nAlpha);
}

bool AniHandle::ShowStretch(int nFrame, const RECT& rcDest, int nAlpha) {
    return DrawFrame(GraphicsState::Instance().Canvas(), nFrame, Rect::FromRECT(ClampRECT(rcDest)), nAlpha);
}

} // namespace gfx
