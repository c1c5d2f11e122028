// Conversion of printf-style formats to fmt's, and formatting that cannot fail.
#include "resources/MyString.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string>

namespace {

// NOTE: no blank flag: in texts "50% off" is a percent sign and a word, not a conversion.
constexpr const char* FLAG_CHARS = "-+#0";
constexpr const char* LENGTH_CHARS = "hlLqjzt";
constexpr const char* CONVERSION_CHARS = "diouxXeEfFgGaAcspn";

// Length of the printf conversion that starts at format[i] ('%'), 0 when it is none.
std::size_t ConversionLength(std::string_view format, std::size_t i) {
    std::size_t j = i + 1;
    while (j < format.size() && std::strchr(FLAG_CHARS, format[j])) ++j;
    while (j < format.size() && (std::isdigit(static_cast<unsigned char>(format[j])) || format[j] == '*'))
        ++j;
    if (j < format.size() && format[j] == '.') {
        ++j;
        while (j < format.size() && std::isdigit(static_cast<unsigned char>(format[j]))) ++j;
    }
    while (j < format.size() && std::strchr(LENGTH_CHARS, format[j])) ++j;
    if (j < format.size() && format[j] != '\0' && std::strchr(CONVERSION_CHARS, format[j])) return j + 1 - i;
    return 0;
}

bool IsDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// The format of one replacement field (after ':') with every width and precision cut to the longest text and
// dynamic ones ("{:{}}") dropped, so that a format from a file cannot ask for gigabytes of padding.
void AppendBoundedSpec(std::string_view spec, std::string& out) {
    // NOTE: the dynamic fields go first: digits on both sides of one join into a single number once it is
    // gone.
    std::string stripped;
    std::size_t i = 0;
    while (i < spec.size()) {
        if (spec[i] == '{') {
            const std::size_t close = spec.find('}', i);
            i = close == std::string_view::npos ? spec.size() : close + 1;
        } else {
            stripped += spec[i++];
        }
    }
    i = 0;
    while (i < stripped.size()) {
        if (!IsDigit(stripped[i])) {
            out += stripped[i++];
            continue;
        }
        std::size_t end = i;
        while (end < stripped.size() && IsDigit(stripped[end])) ++end;
        const std::string_view digits = std::string_view(stripped).substr(i, end - i);
        const bool bTooLong = digits.size() > 4 || std::stoul(std::string(digits)) > CMyString::MAX_TEXT;
        out += bTooLong ? std::to_string(CMyString::MAX_TEXT) : std::string(digits);
        i = end;
    }
}

// Bytes of the code point that starts at c, as fmt counts them for a fill (a stray byte counts 1).
std::size_t CodePointLength(char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0xF0 && byte < 0xF8) return 4;
    if (byte >= 0xE0 && byte < 0xF0) return 3;
    if (byte >= 0xC0 && byte < 0xE0) return 2;
    return 1;
}

bool IsAlign(char c) {
    return c == '<' || c == '>' || c == '^';
}

// Length of the fill and align that open a spec at format[i]: fmt takes any code point but '{' as the fill
// before an align sign, '}' included, so they are copied as they are and never read as the field's end.
std::size_t FillAndAlignLength(std::string_view format, std::size_t i) {
    if (i >= format.size()) return 0;
    const std::size_t nFill = CodePointLength(format[i]);
    if (format[i] != '{' && i + nFill < format.size() && IsAlign(format[i + nFill])) return nFill + 1;
    return IsAlign(format[i]) ? 1 : 0;
}

// The format with bounded widths and precisions; everything else byte for byte.
std::string BoundFieldSpecs(std::string_view format) {
    std::string out;
    out.reserve(format.size());
    std::size_t i = 0;
    while (i < format.size()) {
        const char c = format[i];
        if (c != '{' || (i + 1 < format.size() && format[i + 1] == '{')) {
            const std::size_t n = c == '{' ? 2 : 1;
            out.append(format.substr(i, n));
            i += n;
            continue;
        }
        // A field: its name up to ':' as it is, its fill and align as they are, the rest of its spec bounded,
        // up to the '}' that closes it.
        std::size_t end = i + 1;
        while (end < format.size() && format[end] != ':' && format[end] != '{' && format[end] != '}') ++end;
        out.append(format.substr(i, end - i));
        const bool bSpec = end < format.size() && format[end] == ':';
        if (bSpec) {
            ++end;
            const std::size_t nPrefix = FillAndAlignLength(format, end);
            out += ':';
            out.append(format.substr(end, nPrefix));
            end += nPrefix;
        }
        const std::size_t specStart = end;
        int depth = 1;
        while (end < format.size() && depth > 0) {
            if (format[end] == '{') ++depth;
            if (format[end] == '}') --depth;
            ++end;
        }
        const std::string_view rest = format.substr(specStart, (depth == 0 ? end - 1 : end) - specStart);
        if (bSpec)
            AppendBoundedSpec(rest, out);
        else
            out.append(rest); // no spec: a malformed name stays as it is, for fmt to refuse
        if (depth == 0) out += '}';
        i = end;
    }
    return out;
}

// Thrown when the text is full, so that fmt stops there.
struct STextFull {};

// fmt's output: one byte past the longest text in place; asked to grow when full, it ends the formatting. A
// request for more room than is left is answered by leaving it as it is: fmt then copies what fits and asks
// again, so a long piece still fills the text to its end.
// NOTE: fmt offers no public buffer of a fixed size that stops it; this is its own base class (fmt 9).
class CBoundedBuffer final : public fmt::detail::buffer<char> {
public:
    CBoundedBuffer() : fmt::detail::buffer<char>(m_store, 0, sizeof m_store) {}

protected:
    void grow(std::size_t /*capacity*/) override {
        if (size() == capacity()) throw STextFull{};
    }

private:
    char m_store[CMyString::MAX_TEXT + 1];
};

} // namespace

bool CMyString::IsOldFormatStr(std::string_view format) {
    for (std::size_t i = 0; i < format.size(); ++i)
        if (format[i] == '%' && ConversionLength(format, i) > 0) return true;
    return false;
}

std::string CMyString::TransfromOldFmt2NewFmt(std::string_view format) {
    std::string out;
    out.reserve(format.size() + 8);
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char c = format[i];
        if (c == '{' || c == '}') {
            out.append(2, c);
        } else if (c == '%' && i + 1 < format.size() && format[i + 1] == '%') {
            out += '%';
            ++i;
        } else if (const std::size_t n = c == '%' ? ConversionLength(format, i) : 0; n > 0) {
            out += "{}";
            i += n - 1;
        } else {
            out += c;
        }
    }
    return out;
}

std::string CMyString::FormatArgs(std::string_view format, fmt::format_args args) {
    const std::string converted =
        BoundFieldSpecs(IsOldFormatStr(format) ? TransfromOldFmt2NewFmt(format) : format);
    CBoundedBuffer buffer;
    try {
        // NOTE: fmt stops at the limit: a padding that the bounds above miss is never written out to its end.
        fmt::vformat_to(fmt::appender(buffer), converted, args);
    } catch (const STextFull&) {
        // the buffer holds the text's first bytes, more than the limit
    } catch (const fmt::format_error&) {
        return std::string(format.substr(0, MAX_TEXT));
    }
    return std::string(buffer.data(), std::min(buffer.size(), MAX_TEXT));
}
