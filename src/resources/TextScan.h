// Bounded readers for the host's variable texts: numbers as "%d" reads them, pieces between separators.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace textscan {

/// Reads a number as "%d" does (leading blanks, sign, digits) from pos on; saturates instead of overflowing.
std::optional<std::int32_t> ReadInt(std::string_view text, std::size_t& pos);
/// Reads up to nMax numbers separated by blanks ("%d %d %d"); stops at the first that is missing.
std::vector<std::int32_t> ReadInts(std::string_view text, std::size_t nMax);
/// Reads numbers with a literal separator between them ("%d_%d_%d_%d", "%d-%d"); stops at the first mismatch.
std::vector<std::int32_t> ReadIntsSeparated(std::string_view text, char cSep, std::size_t nMax);

/// Calls fn(piece) for every piece terminated by cSep, then returns the text after the last separator.
template <class Fn> std::string_view ForEachTerminated(std::string_view text, char cSep, Fn fn) {
    std::size_t start = 0;
    for (std::size_t pos = text.find(cSep); pos != std::string_view::npos; pos = text.find(cSep, start)) {
        if (!fn(text.substr(start, pos - start))) return {};
        start = pos + 1;
    }
    return text.substr(start);
}

} // namespace textscan
