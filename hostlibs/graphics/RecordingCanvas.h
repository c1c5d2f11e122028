// A canvas that keeps what is drawn as a list of operations, for tests and transcripts.
#pragma once

#include <vector>

#include "Canvas.h"

namespace gfx {

/// Records each primitive, or each outermost compound instead of its parts. Operations wholly outside the
/// clip rectangle are not recorded (they are not seen); at most host::MAX_RECORDED_OPS are kept per frame.
/// Checks every text and picture a window draws against the window's rectangle and keeps those that reach
/// past it, marked as clipped when the clip hides all of them outside the window (at most
/// host::MAX_RECORDED_OPS per frame as well).
class RecordingCanvas final : public ICanvas {
public:
    void Begin(int width, int height, DWORD clearColour) override;
    int Width() const override { return m_width; }
    int Height() const override { return m_height; }
    Rect Clip() const override { return m_clip; }
    void SetClip(const Rect& clip) override { m_clip = clip; }

    void FillRect(const Rect& rc, DWORD colour) override;
    void OutlineRect(const Rect& rc, DWORD colour) override;
    void Line(int x1, int y1, int x2, int y2, DWORD colour) override;
    void Text(int x, int y, const std::u32string& text, const TextStyle& style) override;
    void TextUtf8(int x, int y, std::string_view text, const TextStyle& style) override;
    void DrawImage(const Image& image, const Rect& src, const Rect& dst, int alpha) override;
    void BeginCompound(const host::DrawOp& op) override;
    void EndCompound() override;
    void BeginWindow(const WindowTag& window) override;
    void EndWindow() override;

    const std::vector<host::DrawOp>& Ops() const { return m_ops; }
    std::size_t Dropped() const { return m_dropped; }
    const std::vector<host::DrawOverflow>& Overflows() const { return m_overflows; }

private:
    /// Texts and pictures are checked against the window drawing them; shapes are the toolkit's own marks
    /// (selections, carets, bars).
    enum class Content { Shape, TextOrPicture };
    /// Keeps op, which touches the pixels of bounds, unless it is wholly outside the clip (copied when the
    /// caller keeps it, moved when not).
    void Record(const host::DrawOp& op, const Rect& bounds, Content content);
    void Record(host::DrawOp&& op, const Rect& bounds, Content content);
    /// Whether op is kept (checked against its window on the way); counts it as dropped when there is no
    /// room.
    bool Admit(const host::DrawOp& op, const Rect& bounds, Content content);
    /// Whether an operation over bounds is kept: not wholly outside the clip, and room left (else it counts
    /// as dropped).
    bool Kept(const Rect& bounds);
    /// Keeps op when it reaches past the window drawing it.
    void CheckInsideWindow(const host::DrawOp& op, const Rect& bounds);

    int m_width = 0;
    int m_height = 0;
    Rect m_clip;
    int m_compoundDepth = 0;
    std::vector<host::DrawOp> m_ops;
    std::size_t m_dropped = 0;
    std::vector<WindowTag> m_windows; ///< open windows, innermost last
    std::vector<host::DrawOverflow> m_overflows;
};

} // namespace gfx
