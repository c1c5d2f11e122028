// Loads "ini/FlashString.ini" line by line and answers lookups by id, with the fallback texts for misses.
#include "resources/FlashStringMgr.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "platform/BaseLib.h"
#include "simulator/SysLog.h"

namespace {
constexpr std::size_t LINE_BUFFER_SIZE = 1024;
constexpr UINT CP_UTF8_CODE_PAGE = 65001;
constexpr std::size_t LINES_RESERVED = 4096;

bool IsCommentLine(std::string_view line) {
    return line.empty() || line.front() == ';' || line.substr(0, 2) == "//";
}

// Reads a signed decimal number as "%d" would (leading blanks, sign, digits); saturates instead of
// overflowing.
std::optional<std::int32_t> ReadDecimal(std::string_view text, std::size_t& pos) {
    while (pos < text.size() && (text[pos] == ' ' || text[pos] == '\t')) ++pos;
    bool negative = false;
    if (pos < text.size() && (text[pos] == '-' || text[pos] == '+')) negative = text[pos++] == '-';
    const std::size_t digitsStart = pos;
    std::int64_t value = 0;
    for (; pos < text.size() && text[pos] >= '0' && text[pos] <= '9'; ++pos)
        if (value <= INT32_MAX) value = value * 10 + (text[pos] - '0');
    if (pos == digitsStart) return std::nullopt;
    if (negative) value = -value;
    if (value > INT32_MAX) value = INT32_MAX;
    if (value < INT32_MIN) value = INT32_MIN;
    return static_cast<std::int32_t>(value);
}

// The "[first-second]" prefix of a ranged value; nothing unless both numbers are there.
std::optional<std::pair<std::int32_t, std::int32_t>> ReadRange(std::string_view value) {
    std::size_t pos = 0;
    if (value.empty() || value[0] != '[') return std::nullopt;
    ++pos;
    const auto first = ReadDecimal(value, pos);
    if (!first || pos >= value.size() || value[pos] != '-') return std::nullopt;
    ++pos;
    const auto second = ReadDecimal(value, pos);
    if (!second) return std::nullopt;
    return std::pair{*first, *second};
}

// The second number in the high half, the first sign-extended over the whole key (as the widget library
// expects).
std::int64_t MakeRangedKey(std::int32_t first, std::int32_t second) {
    const std::uint64_t high = static_cast<std::uint64_t>(static_cast<std::uint32_t>(second)) << 32;
    const std::uint64_t low = static_cast<std::uint64_t>(static_cast<std::int64_t>(first));
    return static_cast<std::int64_t>(high | low);
}
} // namespace

void CFlashStringMgr::Load() {
    // NOTE: the server configuration is loaded here first once the server lists exist (see docs/STATUS.md).
    m_bLoading = true;
    Clear();
    m_mapStrings.reserve(LINES_RESERVED);
    ZrFile* file = Safefopen(STRING_FILE, "r");
    if (!file) {
        // Lookups keep answering "FlashStrIniting<id>" until a later reload finds the file.
        SysLogError(__FILE__, __LINE__, "open file failed", "file_name", STRING_FILE);
        return;
    }
    char buf[LINE_BUFFER_SIZE];
    while (Safefgets(buf, sizeof buf, file)) {
        std::string_view line(buf);
        if (!line.empty() && line.back() == '\n') line.remove_suffix(1);
        AddLine(line);
    }
    Safefclose(file);
    m_bLoading = false;
}

void CFlashStringMgr::AddLine(std::string_view line) {
    if (IsCommentLine(line)) return;
    const std::size_t eq = line.find('=');
    if (eq == std::string_view::npos) return;
    const std::string idText(line.substr(0, eq));
    const auto nId = static_cast<std::uint32_t>(SafeAtoi(idText.c_str()));
    if (nId == 0) return;
    const std::string_view value = line.substr(eq + 1);

    if (const auto it = m_mapStrings.find(nId); it != m_mapStrings.end()) {
        SysLogWarn(__FILE__, __LINE__, "strres have same id", "id", std::to_string(nId));
        m_mapStrings.erase(it);
    }
    if (nId >= RANGED_ID_FIRST && nId <= RANGED_ID_LAST) AddRanged(value);
    m_mapStrings.emplace(nId, CZrString(value));
}

void CFlashStringMgr::AddRanged(std::string_view value) {
    const auto range = ReadRange(value);
    if (!range) return;
    std::vector<CZrString> pieces;
    Split(pieces, std::string(value).c_str(), "|", CP_UTF8_CODE_PAGE);
    if (pieces.size() < 2) return;
    m_mapRanged[MakeRangedKey(range->first, range->second)] = pieces[1];
}

void CFlashStringMgr::Clear() {
    m_mapStrings.clear();
    m_mapRanged.clear();
}

const char* CFlashStringMgr::GetStr(std::uint32_t nId) const {
    // One buffer for every miss, as callers only keep a fallback text until their next lookup.
    static char s_szMiss[64];
    if (m_bLoading) {
        SafeSprintf(s_szMiss, sizeof s_szMiss, "FlashStrIniting%u", nId);
        return s_szMiss;
    }
    if (const auto it = m_mapStrings.find(nId); it != m_mapStrings.end()) return it->second.c_str();
    SafeSprintf(s_szMiss, sizeof s_szMiss, "NOSTR %d", static_cast<int>(nId));
    return s_szMiss;
}

int CFlashStringMgr::GetStrInt(std::uint32_t nId) const {
    return SafeAtoi(GetStr(nId));
}

std::pair<std::int64_t, const char*> CFlashStringMgr::GetRanged(std::size_t nPos) const {
    if (nPos >= m_mapRanged.size()) return {0, ""};
    auto it = m_mapRanged.begin();
    std::advance(it, static_cast<std::ptrdiff_t>(nPos));
    return {it->first, it->second.c_str()};
}
