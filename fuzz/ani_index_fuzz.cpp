// Fuzzes the animation index reading with arbitrary texts: every title kept has a frame, and every setting
// kept lies within its bounds.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "graphics/AniIndex.h"

namespace {
using gfx::AniFrame;
using gfx::AniIndexParser;

bool WithinBounds(const AniFrame& frame) {
    if (frame.kind != AniFrame::Kind::Box) return true;
    return frame.width > 0 && frame.height > 0 && frame.width <= AniIndexParser::MAX_BOX_SIDE &&
           frame.height <= AniIndexParser::MAX_BOX_SIDE;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const gfx::AniIndex index =
        AniIndexParser::Parse(std::string_view(reinterpret_cast<const char*>(data), size));
    for (const auto& [key, title] : index.titles) {
        if (index.Find(title.title) != &title) __builtin_trap();
        if (title.frames.empty() ||
            title.frames.size() > static_cast<std::size_t>(AniIndexParser::MAX_FRAMES))
            __builtin_trap();
        if (title.intervalMs <= 0 || title.intervalMs > AniIndexParser::MAX_INTERVAL_MS) __builtin_trap();
        for (const AniFrame& frame : title.frames)
            if (!WithinBounds(frame)) __builtin_trap();
    }
    return 0;
}
