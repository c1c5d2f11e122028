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

/// The next line of a text file held in memory, as a text-mode read of the file into a buffer of nBufferSize
/// bytes would give it: at most nBufferSize - 1 bytes up to and with the line feed ("\r\n" reads as "\n"),
/// seen as the C string up to its first NUL, without its line feed. text keeps what follows; nothing at its
/// end.
std::optional<std::string_view> NextBufferedLine(std::string_view& text, std::size_t nBufferSize);

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
