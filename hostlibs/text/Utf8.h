// The host libraries' one UTF-8 coder: decoding, encoding, character boundaries and UTF-16 conversions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace txt {

/// How a broken sequence is counted: one replacement per offending byte (decoding), or one per maximal
/// subpart, so that a character cut short by a buffer counts once (replacing characters one for one).
enum class Utf8Broken { PerByte, PerSubpart };

class Utf8 {
public:
    static constexpr char32_t REPLACEMENT = 0xFFFD;
    static constexpr char32_t MAX_CODE_POINT = 0x10FFFF;

    /// Bytes of the character at pos: the length of a well-formed sequence, else 1 (PerByte) or the length
    /// of the sequence's maximal subpart (PerSubpart). 0 at or past the end.
    static std::size_t SequenceLength(std::string_view text, std::size_t pos,
                                      Utf8Broken broken = Utf8Broken::PerByte);
    /// Decodes the character at pos and moves pos past it; a broken byte decodes as REPLACEMENT.
    static char32_t Decode(std::string_view text, std::size_t& pos);
    /// Appends one code point; surrogates and values past MAX_CODE_POINT append REPLACEMENT.
    static void Append(std::string& out, char32_t c);
    /// Whether the byte can start a multi-byte sequence (0xC2 to 0xF4).
    static bool IsLeadByte(unsigned char c);
    /// Whether every byte is below 0x80 (such a text reads the same in every form).
    static bool IsAscii(std::string_view text);

    /// The first character boundary after pos / the last one before pos (the ends of the text stay), for any
    /// pos, also one inside a character. Boundaries are where decoding from the start begins a character.
    static std::size_t NextBoundary(std::string_view text, std::size_t pos);
    static std::size_t PreviousBoundary(std::string_view text, std::size_t pos);
    /// The longest prefix within limit bytes that does not end inside a character.
    static std::size_t CutAtBoundary(std::string_view text, std::size_t limit);

    static std::u32string ToUtf32(std::string_view text);
    /// UTF-16 with surrogate pairs for code points past the basic plane.
    static std::u16string ToUtf16(std::string_view text);
    static std::string FromUtf32(std::u32string_view text);
    /// Unpaired surrogates become REPLACEMENT.
    static std::u32string Utf16ToUtf32(std::u16string_view text);
    /// Length of a zero-terminated UTF-16 text, at most maxLength.
    static std::size_t Utf16Length(const char16_t* text, std::size_t maxLength);
};

} // namespace txt
