// UTF-8 / UTF-16 / UTF-32 conversions with bounded reads and replacement characters for malformed input.
#include "TextCodec.h"

namespace gfx {
namespace {
constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kMaxCodePoint = 0x10FFFF;

bool IsContinuation(unsigned char c) {
    return (c & 0xC0) == 0x80;
}
bool IsSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

// Number of bytes of the sequence a lead byte starts, 0 when it starts none.
std::size_t SequenceLength(unsigned char c) {
    if (c < 0x80) return 1;
    if (c >= 0xC2 && c <= 0xDF) return 2;
    if (c >= 0xE0 && c <= 0xEF) return 3;
    if (c >= 0xF0 && c <= 0xF4) return 4;
    return 0;
}

void AppendUtf8(std::string& out, char32_t c) {
    if (c > kMaxCodePoint || IsSurrogate(c)) c = kReplacement;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}
} // namespace

std::u32string TextCodec::Utf8ToUtf32(std::string_view text) {
    std::u32string out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = SequenceLength(lead);
        if (length == 0 || i + length > text.size()) {
            out += kReplacement;
            ++i;
            continue;
        }
        if (length == 1) {
            out += lead;
            ++i;
            continue;
        }
        char32_t c = lead & (0xFF >> (length + 1));
        bool valid = true;
        for (std::size_t k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            if (!IsContinuation(next)) {
                valid = false;
                break;
            }
            c = (c << 6) | (next & 0x3F);
        }
        const char32_t minimum = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
        if (!valid || c < minimum || c > kMaxCodePoint || IsSurrogate(c)) {
            out += kReplacement;
            ++i;
            continue;
        }
        out += c;
        i += length;
    }
    return out;
}

std::u32string TextCodec::Utf16ToUtf32(std::u16string_view text) {
    std::u32string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            out += 0x10000 + ((static_cast<char32_t>(c) - 0xD800) << 10) + (text[i + 1] - 0xDC00);
            ++i;
        } else {
            out += IsSurrogate(c) ? kReplacement : static_cast<char32_t>(c);
        }
    }
    return out;
}

std::string TextCodec::Utf32ToUtf8(std::u32string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char32_t c : text) AppendUtf8(out, c);
    return out;
}

std::size_t TextCodec::Utf16Length(const char16_t* text, std::size_t maxLength) {
    if (!text) return 0;
    std::size_t n = 0;
    while (n < maxLength && text[n] != 0) ++n;
    return n;
}

} // namespace gfx
