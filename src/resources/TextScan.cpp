// Bounded readers for the host's variable texts: numbers as "%d" reads them, pieces between separators.
#include "resources/TextScan.h"

#include <limits>

namespace textscan {

std::optional<std::int32_t> ReadInt(std::string_view text, std::size_t& pos) {
    std::size_t p = pos;
    while (p < text.size() && (text[p] == ' ' || text[p] == '\t' || text[p] == '\n' || text[p] == '\r')) ++p;
    bool negative = false;
    if (p < text.size() && (text[p] == '-' || text[p] == '+')) negative = text[p++] == '-';
    const std::size_t digits = p;
    std::int64_t value = 0;
    constexpr std::int64_t LIMIT = static_cast<std::int64_t>(std::numeric_limits<std::int32_t>::max()) + 1;
    for (; p < text.size() && text[p] >= '0' && text[p] <= '9'; ++p)
        if (value < LIMIT) value = value * 10 + (text[p] - '0');
    if (p == digits) return std::nullopt;
    pos = p;
    if (negative) value = -value;
    if (value > std::numeric_limits<std::int32_t>::max()) return std::numeric_limits<std::int32_t>::max();
    if (value < std::numeric_limits<std::int32_t>::min()) return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

std::vector<std::int32_t> ReadInts(std::string_view text, std::size_t nMax) {
    std::vector<std::int32_t> values;
    std::size_t pos = 0;
    while (values.size() < nMax) {
        const auto v = ReadInt(text, pos);
        if (!v) break;
        values.push_back(*v);
    }
    return values;
}

std::vector<std::int32_t> ReadIntsSeparated(std::string_view text, char cSep, std::size_t nMax) {
    std::vector<std::int32_t> values;
    std::size_t pos = 0;
    while (values.size() < nMax) {
        const auto v = ReadInt(text, pos);
        if (!v) break;
        values.push_back(*v);
        if (values.size() == nMax || pos >= text.size() || text[pos] != cSep) break;
        ++pos;
    }
    return values;
}

std::optional<std::string_view> NextBufferedLine(std::string_view& text, std::size_t nBufferSize) {
    if (text.empty() || nBufferSize < 2) return std::nullopt;
    const std::size_t nRoom = nBufferSize - 1;
    // A "\r\n" pair is one byte of the buffer, so a line feed one byte past the room may still fit.
    const std::size_t nFeed = text.substr(0, nRoom + 1).find('\n');
    const bool bPair = nFeed != std::string_view::npos && nFeed > 0 && text[nFeed - 1] == '\r';
    std::string_view line;
    if (nFeed != std::string_view::npos && nFeed + (bPair ? 0 : 1) <= nRoom) {
        line = text.substr(0, bPair ? nFeed - 1 : nFeed);
        text.remove_prefix(nFeed + 1);
    } else {
        line = text.substr(0, nRoom);
        text.remove_prefix(line.size());
    }
    return line.substr(0, line.find('\0'));
}

} // namespace textscan
