// Texts of the string table filled with typed arguments: printf-style formats are converted to "{}" style and
// formatted by fmt, never by printf (the formats come from a file).
#pragma once

#include <fmt/format.h>

#include <string>
#include <string_view>

class CMyString {
public:
    /// The longest text a format produces; longer results are cut here.
    static constexpr std::size_t MAX_TEXT = 4095;

    /// Whether the format uses printf-style conversions ("%s", "%d", "%5.2f" ...).
    static bool IsOldFormatStr(std::string_view format);
    /// The same format in "{}" style: each conversion becomes "{}", "%%" a percent sign, braces are doubled.
    static std::string TransfromOldFmt2NewFmt(std::string_view format);

    /// The format (either style) filled with the arguments; a format that does not match its arguments gives
    /// the format itself, unfilled.
    template <class... Args> static std::string Format(std::string_view format, const Args&... args) {
        return FormatArgs(format, fmt::make_format_args(args...));
    }

private:
    static std::string FormatArgs(std::string_view format, fmt::format_args args);
};
