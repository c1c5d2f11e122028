// An animation index file parsed: titles, each with its frames (pictures or drawn placeholders) and play
// settings.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "BaseLib.h"

namespace gfx {

/// One frame of an animation.
struct AniFrame {
    enum class Kind { Empty, Image, Box };
    Kind kind = Kind::Empty;
    std::string path; ///< Image: picture file relative to the client directory
    int width = 0;    ///< Box: size in pixels
    int height = 0;
    std::optional<DWORD> fill;    ///< Box: fill colour
    std::optional<DWORD> outline; ///< Box: one-pixel outline colour
    DWORD labelColour = 0xFFFFFFFF;
    std::string label; ///< Box: UTF-8 text centred in the box
};

/// Nine-patch insets of a single-picture background, in source pixels.
struct AniBorder {
    int left = 0, top = 0, right = 0, bottom = 0;
    bool Any() const { return left > 0 || top > 0 || right > 0 || bottom > 0; }
};

/// One titled animation.
struct AniTitle {
    std::string title; ///< as spelled in the file
    std::vector<AniFrame> frames;
    int intervalMs = 100;
    AniBorder border;
};

/// A parsed index: titles by their lower-cased name, and what was wrong with the text.
struct AniIndex {
    std::map<std::string, AniTitle> titles;
    std::vector<std::string> warnings; ///< "line N: ..." for every entry that was skipped

    const AniTitle* Find(std::string_view title) const;
};

class AniIndexParser {
public:
    static constexpr int MAX_FRAMES = 1024;
    static constexpr int MAX_BOX_SIDE = 4096;
    static constexpr int MAX_INTERVAL_MS = 60000;
    static constexpr int DEFAULT_INTERVAL_MS = 100;

    /// Parses the whole text. Never fails: malformed entries are skipped with a warning, a title without any
    /// frame is dropped, and frames missing between numbered frames stay empty.
    static AniIndex Parse(std::string_view text);
    /// A frame value: "box W H FILL [OUTLINE [LABEL...]]" or a picture path. Nothing when malformed.
    static std::optional<AniFrame> ParseFrame(std::string_view value);
    /// "AARRGGBB" or "RRGGBB" (opaque) hexadecimal, with an optional '#' or "0x"; nothing for "none" or
    /// garbage.
    static std::optional<DWORD> ParseColour(std::string_view text);
};

std::string LowerAscii(std::string_view text);

} // namespace gfx
