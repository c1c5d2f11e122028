// The canvas interface: the primitives every drawing operation of the graphics libraries is made of.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "hostlibs/HostCanvas.h"
#include "text/Utf8.h"

namespace gfx {

/// a + b saturated to the int range: coordinates come from layouts and hosts.
inline int SaturatedAdd(long long a, long long b) {
    const long long n = a + b;
    return n > INT32_MAX ? INT32_MAX : n < INT32_MIN ? INT32_MIN : static_cast<int>(n);
}

/// Coordinates and sizes handed to the graphics library are kept within this distance of the origin: nothing
/// that far away is on any screen, and the drawing code may then add offsets without overflowing.
inline constexpr int COORD_LIMIT = 1 << 28;
inline int ClampCoord(int n) {
    return n > COORD_LIMIT ? COORD_LIMIT : n < -COORD_LIMIT ? -COORD_LIMIT : n;
}
inline RECT ClampRECT(const RECT& rc) {
    return {ClampCoord(rc.left), ClampCoord(rc.top), ClampCoord(rc.right), ClampCoord(rc.bottom)};
}

/// A rectangle by corner and size; empty when either side is not positive.
struct Rect {
    int x = 0, y = 0, w = 0, h = 0;

    bool Empty() const { return w <= 0 || h <= 0; }
    int Right() const { return SaturatedAdd(x, w); }
    int Bottom() const { return SaturatedAdd(y, h); }
    bool Contains(int px, int py) const { return px >= x && py >= y && px < Right() && py < Bottom(); }
    Rect Intersect(const Rect& o) const;
    static Rect FromRECT(const RECT& rc) {
        return {rc.left, rc.top, SaturatedAdd(rc.right, -static_cast<long long>(rc.left)),
                SaturatedAdd(rc.bottom, -static_cast<long long>(rc.top))};
    }
    RECT ToRECT() const { return {x, y, Right(), Bottom()}; }
};

inline Rect Rect::Intersect(const Rect& o) const {
    const int left = x > o.x ? x : o.x;
    const int top = y > o.y ? y : o.y;
    const int right = Right() < o.Right() ? Right() : o.Right();
    const int bottom = Bottom() < o.Bottom() ? Bottom() : o.Bottom();
    if (right <= left || bottom <= top) return {left, top, 0, 0};
    return {left, top, right - left, bottom - top};
}

/// The byte order of a picture's pixels.
enum class PixelOrder : std::uint8_t { Rgba, Bgra };

/// A picture: four bytes a pixel, row by row, not premultiplied. Decoded files are RGBA; a bitmap that is
/// filled from a browser page keeps the page's BGRA, so that its updates are plain copies.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba; ///< the bytes, in `order` (RGBA unless said otherwise)
    PixelOrder order = PixelOrder::Rgba;

    bool Empty() const { return width <= 0 || height <= 0; }
};

/// How a text is drawn.
struct TextStyle {
    DWORD colour = 0xFFFFFFFF;
    int size = 14;
    bool antialias = true;
    int effect = 0; ///< 0 plain, 1 shadow, 2 outline
    DWORD effectColour = 0xFF000000;
};

/// The window of the widget toolkit whose drawing follows: a dialog, or one of its controls.
struct WindowTag {
    unsigned dialog = 0;  ///< template id of the dialog
    unsigned control = 0; ///< control id; 0 for the dialog itself
    Rect rect;            ///< the window's screen rectangle
};

inline constexpr int TEXT_EFFECT_SHADOW = 1;
inline constexpr int TEXT_EFFECT_OUTLINE = 2;

/// Receives the drawing. Coordinates are screen pixels; every primitive is limited to the clip rectangle.
class ICanvas {
public:
    virtual ~ICanvas() = default;

    /// Starts a frame of the given size filled with the colour; the clip becomes the whole frame.
    virtual void Begin(int width, int height, DWORD clearColour) = 0;
    virtual int Width() const = 0;
    virtual int Height() const = 0;
    virtual void SetClip(const Rect& clip) = 0;
    virtual Rect Clip() const = 0;

    virtual void FillRect(const Rect& rc, DWORD colour) = 0;
    virtual void OutlineRect(const Rect& rc, DWORD colour) = 0;
    virtual void Line(int x1, int y1, int x2, int y2, DWORD colour) = 0;
    /// UTF-32 text with its top-left corner at (x, y); a line feed starts a new line.
    virtual void Text(int x, int y, const std::u32string& text, const TextStyle& style) = 0;
    /// The same for UTF-8 text, drawn as its UTF-32 form (a broken byte as a replacement character); a canvas
    /// that can use the UTF-8 as it is spares the conversion.
    virtual void TextUtf8(int x, int y, std::string_view text, const TextStyle& style) {
        Text(x, y, txt::Utf8::ToUtf32(text), style);
    }
    /// Draws the part src of the image scaled onto dst, with the extra opacity alpha (0..255).
    virtual void DrawImage(const Image& image, const Rect& src, const Rect& dst, int alpha) = 0;

    /// Brackets the primitives that make up one compound operation (an animation frame, a nine-patch ...), so
    /// that a canvas that records operations can keep the compound instead of its parts. Compounds may nest.
    virtual void BeginCompound(const host::DrawOp& op) = 0;
    virtual void EndCompound() = 0;

    /// Brackets what one window draws, so that a canvas that checks the drawing can compare it with the
    /// window's rectangle. Windows nest (a dialog, then its controls); the innermost one is the drawer.
    virtual void BeginWindow(const WindowTag& window) = 0;
    virtual void EndWindow() = 0;
};

/// Builds a recorded operation field by field.
class OpBuilder {
public:
    OpBuilder(std::string kind, const Rect& place) {
        m_op.kind = std::move(kind);
        m_op.x = place.x;
        m_op.y = place.y;
        m_op.w = place.w;
        m_op.h = place.h;
    }
    OpBuilder& Colour(DWORD colour) { return m_op.colour = colour, *this; }
    OpBuilder& Size(int size) { return m_op.size = size, *this; }
    OpBuilder& Frame(int frame) { return m_op.frame = frame, *this; }
    // A kept string is copied straight in (an operation is built per drawn picture), a new one moved in.
    OpBuilder& Text(const std::string& text) { return m_op.text = text, *this; }
    OpBuilder& Text(std::string&& text) { return m_op.text = std::move(text), *this; }
    OpBuilder& File(const std::string& file) { return m_op.file = file, *this; }
    OpBuilder& File(std::string&& file) { return m_op.file = std::move(file), *this; }
    OpBuilder& Name(const std::string& name) { return m_op.name = name, *this; }
    OpBuilder& Name(std::string&& name) { return m_op.name = std::move(name), *this; }
    operator const host::DrawOp&() const { return m_op; }
    host::DrawOp Take() { return std::move(m_op); }

private:
    host::DrawOp m_op;
};

/// Opens a compound on construction and closes it on destruction.
class CompoundScope {
public:
    CompoundScope(ICanvas& canvas, const host::DrawOp& op) : m_canvas(canvas) { m_canvas.BeginCompound(op); }
    ~CompoundScope() { m_canvas.EndCompound(); }
    CompoundScope(const CompoundScope&) = delete;
    CompoundScope& operator=(const CompoundScope&) = delete;

private:
    ICanvas& m_canvas;
};

} // namespace gfx
