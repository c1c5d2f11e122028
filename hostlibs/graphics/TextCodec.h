// Conversions between the text encodings the graphics library accepts (UTF-8, UTF-16) and the UTF-32 it
// draws.
#pragma once

#include <string>
#include <string_view>

namespace gfx {

class TextCodec {
public:
    /// Invalid or truncated sequences become U+FFFD, one per offending byte.
    static std::u32string Utf8ToUtf32(std::string_view text);
    /// Unpaired surrogates become U+FFFD.
    static std::u32string Utf16ToUtf32(std::u16string_view text);
    static std::string Utf32ToUtf8(std::u32string_view text);
    /// Length of a zero-terminated UTF-16 text, at most maxLength.
    static std::size_t Utf16Length(const char16_t* text, std::size_t maxLength);
};

} // namespace gfx
