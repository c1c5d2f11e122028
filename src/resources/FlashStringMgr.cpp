// Loads "ini/FlashString.ini" line by line and answers lookups by id, with the fallback texts for misses.
#include "resources/FlashStringMgr.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "common/SysLog.h"
#include "platform/BaseLib.h"
#include "platform/ZrIni.h"
#include "resources/TextScan.h"

namespace {
constexpr std::size_t LINE_BUFFER_SIZE = 1024;
constexpr UINT CP_UTF8_CODE_PAGE = 65001;
constexpr std::size_t LINES_RESERVED = 4096;
// A damaged table must not flood the log: warnings of one kind past this many are counted, then summed up.
constexpr std::size_t MAX_WARNINGS_OF_A_KIND = 100;

bool IsCommentLine(std::string_view line) {
    return line.empty() || line.front() == ';' || line.substr(0, 2) == "//";
}

// The "[first-second]" prefix of a ranged value; nothing unless both numbers are there.
std::optional<std::pair<std::int32_t, std::int32_t>> ReadRange(std::string_view value) {
    if (value.empty() || value[0] != '[') return std::nullopt;
    const auto numbers = textscan::ReadIntsSeparated(value.substr(1), '-', 2);
    if (numbers.size() != 2) return std::nullopt;
    return std::pair{numbers[0], numbers[1]};
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
    LoadServerCfg();
    BeginStrings();
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
    EndStrings();
}

void CFlashStringMgr::LoadFromTexts(std::string_view strStringTable, std::string_view strServerCfg) {
    LoadServerCfgFromText(strServerCfg);
    BeginStrings();
    while (const auto line = textscan::NextBufferedLine(strStringTable, LINE_BUFFER_SIZE)) AddLine(*line);
    EndStrings();
}

void CFlashStringMgr::BeginStrings() {
    m_bLoading = true;
    Clear();
    m_nSameIdCount = 0;
    m_mapStrings.reserve(LINES_RESERVED);
}

void CFlashStringMgr::EndStrings() {
    if (m_nSameIdCount > MAX_WARNINGS_OF_A_KIND)
        SysLogWarn(__FILE__, __LINE__,
                   "strres have same id, only the first " + std::to_string(MAX_WARNINGS_OF_A_KIND) +
                       " logged",
                   "count", std::to_string(m_nSameIdCount));
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
        if (++m_nSameIdCount <= MAX_WARNINGS_OF_A_KIND)
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
    // One buffer per thread for every miss, as callers only keep a fallback text until their next lookup on
    // the same thread; a worker's miss can never overwrite the host's.
    thread_local char s_szMiss[64];
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

// ---- server configuration
// ---------------------------------------------------------------------------------------

namespace {
constexpr std::size_t CFG_TEXT_SIZE = 1024;
constexpr std::size_t CFG_TIME_SIZE = 256;
constexpr std::size_t CFG_NAME_SIZE = 64;
// Bounds the counts a damaged file could make huge; no real category comes near them.
constexpr int MAX_CFG_GROUPS = 1024;
constexpr int MAX_CFG_SERVERS = 1024;
// Server numbers longer than this are beyond every count above.
constexpr std::size_t MAX_SERVER_NUMBER_DIGITS = 4;

struct SCfgCategory {
    const char* szHeader;
    const char* szGroupPrefix;
    std::int32_t nModel;
};
constexpr SCfgCategory CFG_CATEGORIES[] = {
    {"Header", "Group", 2},         {"HeaderClassics", "GroupClassics", 1},
    {"HeaderQQ", "GroupQQ", 4},     {"HeaderTime", "GroupTime", 3},
    {"HeaderBoss", "GroupBoss", 5}, {"HeaderTianYi", "GroupTianYi", 6},
};
// The keys of the n-th server of a group are these names followed by n.
constexpr std::string_view CFG_SERVER_KEYS[] = {"Server",      "AchTime",          "AchTips",
                                                "SpecialMark", "SpecialNameColor", "SpecialEffect",
                                                "SpecialBg",   "SpecialIntroduce", "SpecialDetailTip"};

// The value cut as the profile functions' buffer of nSize bytes cuts it.
std::string ReadCfgText(const CZrIni& ini, const char* szSection, const char* szKey,
                        std::size_t nSize = CFG_TEXT_SIZE) {
    return std::string(ini.GetString(szSection, szKey, "")).substr(0, nSize - 1);
}

std::string KeyName(std::string_view name, int n) {
    char key[CFG_NAME_SIZE];
    SafeSprintf(key, sizeof key, "%.*s%d", static_cast<int>(name.size()), name.data(), n);
    return key;
}

// "start-end" in minutes; both stay 0 unless both numbers are there.
void ReadAchTime(const std::string& text, std::int32_t& nStart, std::int32_t& nEnd) {
    const auto numbers = textscan::ReadIntsSeparated(text, '-', 2);
    if (numbers.size() != 2) return;
    nStart = numbers[0];
    nEnd = numbers[1];
}

SCfgServer ReadCfgServer(const CZrIni& ini, const char* szSection, int n) {
    SCfgServer server;
    server.bAchTips = ini.GetInt(szSection, KeyName("AchTips", n).c_str()) > 0;
    ReadAchTime(ReadCfgText(ini, szSection, KeyName("AchTime", n).c_str(), CFG_TIME_SIZE), server.nAchStart,
                server.nAchEnd);
    server.bSpecialMark = ini.GetInt(szSection, KeyName("SpecialMark", n).c_str()) > 0;
    server.dwNameColor = static_cast<std::uint32_t>(
        SafeStrtoul(ReadCfgText(ini, szSection, KeyName("SpecialNameColor", n).c_str()).c_str(), 16));
    server.strSpecialEffect = ReadCfgText(ini, szSection, KeyName("SpecialEffect", n).c_str());
    server.strSpecialBg = ReadCfgText(ini, szSection, KeyName("SpecialBg", n).c_str());
    server.strSpecialIntroduce = ReadCfgText(ini, szSection, KeyName("SpecialIntroduce", n).c_str());
    server.strSpecialDetailTip = ReadCfgText(ini, szSection, KeyName("SpecialDetailTip", n).c_str());
    return server;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Keys match as the profile functions match them, without regard to case.
bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(), [](char a, char b) {
               return std::tolower(static_cast<unsigned char>(a)) ==
                      std::tolower(static_cast<unsigned char>(b));
           });
}

// n when key is one of the server keys followed by n as "%d" writes it (1 to nMax), else 0.
int ServerNumberOf(std::string_view key, int nMax) {
    for (std::string_view name : CFG_SERVER_KEYS) {
        if (key.size() <= name.size() || key.size() > name.size() + MAX_SERVER_NUMBER_DIGITS) continue;
        if (!StartsWithNoCase(key, name)) continue;
        const std::string_view digits = key.substr(name.size());
        if (digits.front() == '0' || !std::all_of(digits.begin(), digits.end(), IsDigit)) continue;
        const int n = SafeAtoi(std::string(digits).c_str());
        return n <= nMax ? n : 0;
    }
    return 0;
}

// The server numbers 1 to nServerAmount worth reading, in order: those the section has keys for, and the
// first one it has none for (read as a server of defaults under id 0; later ones would add nothing, as the
// first id stays). Bounded by the keys present, whatever the amount says.
std::vector<int> CfgServerNumbers(const CZrIni& ini, const char* szSection, int nServerAmount) {
    std::set<int> numbers;
    for (const std::string& key : ini.GetKeys(szSection))
        if (const int n = ServerNumberOf(key, nServerAmount)) numbers.insert(n);
    int nFirstWithout = 1;
    while (numbers.count(nFirstWithout)) ++nFirstWithout;
    if (nFirstWithout <= nServerAmount) numbers.insert(nFirstWithout);
    return {numbers.begin(), numbers.end()};
}
} // namespace

void CFlashStringMgr::LoadServerCfg() {
    // NOTE: the file is read once per load; a damaged one with huge counts costs what its keys cost.
    CZrIni ini;
    if (!ini.Open(SERVER_CFG_FILE)) {
        SysLogInfo(__FILE__, __LINE__, "server configuration missing or unreadable", "file_name",
                   SERVER_CFG_FILE);
        return;
    }
    LoadServerCfg(ini);
}

void CFlashStringMgr::LoadServerCfgFromText(std::string_view strText) {
    CZrIni ini;
    ini.OpenText(strText);
    LoadServerCfg(ini);
}

void CFlashStringMgr::LoadServerCfg(const CZrIni& ini) {
    for (const SCfgCategory& category : CFG_CATEGORIES)
        LoadCfgCategory(ini, category.szHeader, category.szGroupPrefix, category.nModel);
}

void CFlashStringMgr::LoadCfgCategory(const CZrIni& ini, const char* szHeader, const char* szGroupPrefix,
                                      std::int32_t nModel) {
    const int nGroupAmount = std::min(ini.GetInt(szHeader, "GroupAmount"), MAX_CFG_GROUPS);
    if (nGroupAmount <= 0) return;
    CfgGroupMap& groups = m_mapServerCfg[nModel];
    for (int g = 1; g <= nGroupAmount; ++g) {
        char section[CFG_NAME_SIZE];
        SafeSprintf(section, sizeof section, "%s%d", szGroupPrefix, g);
        const int nServerAmount = std::min(ini.GetInt(section, "ServerAmount"), MAX_CFG_SERVERS);
        if (nServerAmount <= 0) continue;
        if (groups.count(g - 1)) continue; // a reload adds groups but never changes loaded ones
        SCfgGroup group;
        group.strGroupTips = ReadCfgText(ini, section, "GroupTips");
        group.strGroupDetailTips = ReadCfgText(ini, section, "GroupDetailTips");
        for (const int n : CfgServerNumbers(ini, section, nServerAmount)) {
            const std::int32_t id = ini.GetInt(section, KeyName("Server", n).c_str());
            SCfgServer server = ReadCfgServer(ini, section, n);
            group.bAchTips = group.bAchTips || server.bAchTips;
            group.bSpecialMark = group.bSpecialMark || server.bSpecialMark;
            group.mapServers.emplace(id, std::move(server)); // the first entry of an id stays
        }
        groups.emplace(g - 1, std::move(group));
    }
}

const CfgGroupMap* CFlashStringMgr::GetCfgGroups(std::int32_t nModel) const {
    const auto it = m_mapServerCfg.find(nModel);
    return it == m_mapServerCfg.end() ? nullptr : &it->second;
}

const SCfgGroup* CFlashStringMgr::GetCfgGroup(std::int32_t nModel, std::int32_t nGroup) const {
    const CfgGroupMap* groups = GetCfgGroups(nModel);
    if (!groups) return nullptr;
    const auto it = groups->find(nGroup);
    return it == groups->end() ? nullptr : &it->second;
}

const SCfgServer* CFlashStringMgr::GetCfgServer(std::int32_t nModel, std::int32_t nGroup,
                                                std::int32_t nServer) const {
    const SCfgGroup* group = GetCfgGroup(nModel, nGroup);
    if (!group) return nullptr;
    const auto it = group->mapServers.find(nServer + 1);
    return it == group->mapServers.end() ? nullptr : &it->second;
}
