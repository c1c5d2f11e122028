// Conversion of printf-style formats to fmt's, and formatting that cannot fail.
#include "resources/MyString.h"

#include <cctype>
#include <cstring>

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
        IsOldFormatStr(format) ? TransfromOldFmt2NewFmt(format) : std::string(format);
    std::string text;
    try {
        text = fmt::vformat(converted, args);
    } catch (const fmt::format_error&) {
        text.assign(format);
    }
    if (text.size() > MAX_TEXT) text.resize(MAX_TEXT);
    return text;
}
