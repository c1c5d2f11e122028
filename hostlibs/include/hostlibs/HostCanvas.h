// The host side of the graphics library: which canvas receives the drawing, frames, recorded operations, PNG
// output.
//
// Used by the reference host and the tests, never by the system. One canvas is current for the whole process;
// its size is the screen size (host::SetScreenSize), read again at every BeginFrame. Until the host chooses,
// a recording canvas is current.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "BaseLib.h"

namespace host {

/// One recorded draw operation. Compound operations (animations, nine-patches, effects, bitmaps,
/// string-resource pictures) are recorded once, not as the pixels and shapes they are made of.
struct DrawOp {
    /// "block", "rect", "line", "text", "bitmap", "ani", "nine", "effect", "strres", "strresui".
    std::string kind;
    int x = 0, y = 0; ///< top-left corner (a line's start)
    int w = 0, h = 0; ///< drawn size (a line: end point minus start)
    DWORD colour = 0; ///< 0xAARRGGBB; for images the alpha (0..255) they were drawn with
    int size = 0;     ///< font size of texts
    int frame = -1;   ///< frame of animations and effects; the mode of string-resource text
    std::string text; ///< UTF-8 text of texts
    std::string file; ///< animation file or bitmap file
    std::string name; ///< animation title or effect name

    /// One stable line: the kind, then the fields that the kind uses, e.g.
    /// `text 10,20 80x14 #FFFFFFFF size=14 "Login"`, `ani ani/Control.ani:NewLogin_HookPic#0 5,6 20x20
    /// a=255`.
    std::string ToString() const;
};

/// A text or picture that a window of the widget toolkit drew past its own rectangle.
struct DrawOverflow {
    DrawOp op;               ///< as drawn, at its full size
    UINT dialog = 0;         ///< template id of the dialog the window belongs to
    UINT control = 0;        ///< control id; 0 when the dialog drew it itself
    RECT window{0, 0, 0, 0}; ///< the window's screen rectangle
    bool clipped = false; ///< the clip cut it at the window's edge: nothing of it is seen outside the window

    /// `cut at 1013.1014 412,244 260x28: text ...` when clipped, else `outside 1013.1014 ...: ...` (the
    /// dialog alone when the dialog drew it; the operation as DrawOp::ToString gives it).
    std::string ToString() const;
};

enum class CanvasKind { Recording, Raster };

/// Makes a new canvas of that kind current (screen size, cleared); the previous canvas and its content are
/// dropped.
void UseCanvas(CanvasKind kind);
CanvasKind GetCanvasKind();
/// Starts a frame: takes the screen size, clears the recording, fills the raster with dwClearColour, resets
/// the clip rectangle to the whole screen.
void BeginFrame(DWORD dwClearColour = 0xFF000000);

/// The operations recorded since the last BeginFrame (empty for a raster canvas). At most MAX_RECORDED_OPS
/// are kept per frame; DroppedOpCount tells how many more were drawn.
inline constexpr std::size_t MAX_RECORDED_OPS = 100000;
std::vector<DrawOp> GetRecordedOps();
std::size_t DroppedOpCount();
/// The recorded operations, one ToString line each, every line ending in a newline.
std::string DumpRecordedOps();

/// The texts and pictures of this frame that reach past the window that drew them, in drawing order, as the
/// recording canvas sees them: the current canvas when it records, else the check beside a raster canvas
/// (EnableDrawingCheck); empty when neither records.
std::vector<DrawOverflow> GetDrawOverflows();
/// While on, every frame drawn on a raster canvas is also recorded, so that GetDrawOverflows reports on it
/// (the reference host's drawing check). Off by default; it costs a recording per frame.
void EnableDrawingCheck(bool bEnable);

/// The raster frame as RGBA bytes, row by row (empty for a recording canvas); width and height are written.
std::vector<std::uint8_t> GetRasterPixels(int& nWidth, int& nHeight);
/// Writes the raster frame as an 8-bit RGBA PNG file. False for a recording canvas or when the file cannot be
/// written.
bool WriteFramePng(const std::string& path);

/// Drops every parsed animation index and decoded picture, so that changed files are read again.
void ClearGraphicsCaches();

} // namespace host
