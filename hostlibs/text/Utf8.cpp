// UTF-8 coding with bounded reads; broken input never stops decoding, it becomes replacement characters.
#include "Utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace txt {
namespace {
constexpr std::size_t MAX_SEQUENCE = 4;
constexpr char32_t FIRST_SURROGATE = 0xD800;
constexpr char32_t FIRST_LOW_SURROGATE = 0xDC00;
constexpr char32_t LAST_SURROGATE = 0xDFFF;
constexpr char32_t FIRST_SUPPLEMENTARY = 0x10000;

bool IsContinuation(unsigned char c) {
    return (c & 0xC0) == 0x80;
}
bool IsSurrogate(char32_t c) {
    return c >= FIRST_SURROGATE && c <= LAST_SURROGATE;
}

// Length a lead byte announces, 0 for bytes that start no sequence.
std::size_t AnnouncedLength(unsigned char c) {
    if (c < 0x80) return 1;
    if (c >= 0xC2 && c <= 0xDF) return 2;
    if (c >= 0xE0 && c <= 0xEF) return 3;
    if (c >= 0xF0 && c <= 0xF4) return 4;
    return 0;
}

// The range the second byte must lie in: it rules out overlong forms, surrogates and values past U+10FFFF.
bool SecondByteFits(unsigned char lead, unsigned char second) {
    switch (lead) {
    case 0xE0:
        return second >= 0xA0 && second <= 0xBF;
    case 0xED:
        return second >= 0x80 && second <= 0x9F;
    case 0xF0:
        return second >= 0x90 && second <= 0xBF;
    case 0xF4:
        return second >= 0x80 && second <= 0x8F;
    default:
        return IsContinuation(second);
    }
}

// Bytes of the sequence at pos that fit so far (at least 1), and whether they form a whole character.
std::size_t FittingBytes(std::string_view text, std::size_t pos, bool& whole) {
    const auto lead = static_cast<unsigned char>(text[pos]);
    const std::size_t announced = AnnouncedLength(lead);
    whole = announced == 1;
    if (announced <= 1) return 1;
    std::size_t n = 1;
    while (n < announced && pos + n < text.size()) {
        const auto next = static_cast<unsigned char>(text[pos + n]);
        if (n == 1 ? !SecondByteFits(lead, next) : !IsContinuation(next)) break;
        ++n;
    }
    whole = n == announced;
    return n;
}
} // namespace

std::size_t Utf8::SequenceLength(std::string_view text, std::size_t pos, Utf8Broken broken) {
    if (pos >= text.size()) return 0;
    bool whole = false;
    const std::size_t n = FittingBytes(text, pos, whole);
    return whole || broken == Utf8Broken::PerSubpart ? n : 1;
}

char32_t Utf8::Decode(std::string_view text, std::size_t& pos) {
    const std::size_t length = SequenceLength(text, pos);
    if (length == 0) return REPLACEMENT;
    const auto lead = static_cast<unsigned char>(text[pos]);
    if (length == 1) {
        ++pos;
        return lead < 0x80 ? static_cast<char32_t>(lead) : REPLACEMENT;
    }
    char32_t c = lead & (0xFF >> (length + 1));
    for (std::size_t k = 1; k < length; ++k)
        c = (c << 6) | (static_cast<unsigned char>(text[pos + k]) & 0x3F);
    pos += length;
    return c;
}

void Utf8::Append(std::string& out, char32_t c) {
    if (c > MAX_CODE_POINT || IsSurrogate(c)) c = REPLACEMENT;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < FIRST_SUPPLEMENTARY) {
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

bool Utf8::IsLeadByte(unsigned char c) {
    return AnnouncedLength(c) > 1;
}

std::size_t Utf8::NextBoundary(std::string_view text, std::size_t pos) {
    if (pos >= text.size()) return text.size();
    const std::size_t start = PreviousBoundary(text, pos + 1);
    return start + SequenceLength(text, start);
}

std::size_t Utf8::PreviousBoundary(std::string_view text, std::size_t pos) {
    if (pos > text.size()) pos = text.size();
    if (pos == 0) return 0;
    // NOTE: the inner bytes of a well-formed character are continuation bytes, so the character holding the
    // byte before pos starts at the nearest byte before them; when that character does not reach the byte,
    // the byte is a broken one and stands alone.
    std::size_t start = pos - 1;
    while (start > 0 && pos - start < MAX_SEQUENCE && IsContinuation(static_cast<unsigned char>(text[start])))
        --start;
    return start + SequenceLength(text, start) > pos - 1 ? start : pos - 1;
}

std::size_t Utf8::CutAtBoundary(std::string_view text, std::size_t limit) {
    return text.size() <= limit ? text.size() : PreviousBoundary(text, limit + 1);
}

bool Utf8::IsAscii(std::string_view text) {
    // Eight bytes at a time: texts are checked every frame.
    constexpr std::uint64_t HIGH_BITS = 0x8080808080808080ULL;
    constexpr std::size_t CHUNK = sizeof(std::uint64_t);
    std::size_t pos = 0;
    for (; pos + CHUNK <= text.size(); pos += CHUNK) {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, text.data() + pos, CHUNK);
        if (chunk & HIGH_BITS) return false;
    }
    for (; pos < text.size(); ++pos)
        if (static_cast<unsigned char>(text[pos]) >= 0x80) return false;
    return true;
}

std::u32string Utf8::ToUtf32(std::string_view text) {
    // Never more characters than bytes: written in place and cut to length, without a check per character.
    std::u32string out(text.size(), U'\0');
    std::size_t n = 0;
    for (std::size_t pos = 0; pos < text.size();) {
        // ASCII needs no decoding: texts are drawn every frame and are mostly ASCII.
        const auto c = static_cast<unsigned char>(text[pos]);
        if (c < 0x80) {
            out[n++] = static_cast<char32_t>(c);
            ++pos;
            continue;
        }
        out[n++] = Decode(text, pos);
    }
    out.resize(n);
    return out;
}

std::u16string Utf8::ToUtf16(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        char32_t c = Decode(text, pos);
        if (c < FIRST_SUPPLEMENTARY) {
            out += static_cast<char16_t>(c);
            continue;
        }
        c -= FIRST_SUPPLEMENTARY;
        out += static_cast<char16_t>(FIRST_SURROGATE + (c >> 10));
        out += static_cast<char16_t>(FIRST_LOW_SURROGATE + (c & 0x3FF));
    }
    return out;
}

std::string Utf8::FromUtf32(std::u32string_view text) {
    // The leading ASCII run (mostly the whole text) is copied in one go; the rest is encoded one by one.
    const auto firstWide = std::find_if(text.begin(), text.end(), [](char32_t c) { return c >= 0x80; });
    std::string out(static_cast<std::size_t>(firstWide - text.begin()), '\0');
    std::transform(text.begin(), firstWide, out.begin(), [](char32_t c) { return static_cast<char>(c); });
    if (firstWide == text.end()) return out;
    out.reserve(text.size() + text.size() / 2);
    for (auto it = firstWide; it != text.end(); ++it) {
        if (*it < 0x80)
            out += static_cast<char>(*it);
        else
            Append(out, *it);
    }
    return out;
}

std::u32string Utf8::Utf16ToUtf32(std::u16string_view text) {
    std::u32string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        const bool bHigh = c >= FIRST_SURROGATE && c < FIRST_LOW_SURROGATE;
        if (bHigh && i + 1 < text.size() && text[i + 1] >= FIRST_LOW_SURROGATE &&
            text[i + 1] <= LAST_SURROGATE) {
            out += FIRST_SUPPLEMENTARY + ((static_cast<char32_t>(c) - FIRST_SURROGATE) << 10) +
                   (text[i + 1] - FIRST_LOW_SURROGATE);
            ++i;
        } else {
            out += IsSurrogate(c) ? REPLACEMENT : static_cast<char32_t>(c);
        }
    }
    return out;
}

std::size_t Utf8::Utf16Length(const char16_t* text, std::size_t maxLength) {
    if (!text) return 0;
    std::size_t n = 0;
    while (n < maxLength && text[n] != 0) ++n;
    return n;
}

} // namespace txt
