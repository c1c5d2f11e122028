// Our role library's game logic, driven by host data (docs/HOSTDATA.md): role lists per account and server,
// the player's own list, server ids, profession names, and the account-name hook of the game base library.
#include <cstdint>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "GameLogic.h"
#include "hostlibs/HostEnv.h"

namespace {

constexpr std::uint64_t SERVER_BITS = 32;
constexpr std::uint64_t SERVER_MASK = 0xFFFFFFFFu;

// A whole decimal integer within 32 bits, or nothing.
bool ReadInt(std::string_view text, std::int32_t& out) {
    if (text.empty() || text.size() > 12) return false;
    const std::string copy(text);
    char* end = nullptr;
    const long long value = std::strtoll(copy.c_str(), &end, 10);
    if (end != copy.c_str() + copy.size() || value < INT32_MIN || value > INT32_MAX) return false;
    out = static_cast<std::int32_t>(value);
    return true;
}

// The parts of "a|b|..." (an empty last part after a closing "|" is dropped).
std::vector<std::string_view> SplitList(std::string_view text) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find('|', start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

// The first n colon-separated fields, and the rest (which may hold colons) in the last.
std::vector<std::string_view> SplitFields(std::string_view text, std::size_t n) {
    std::vector<std::string_view> fields;
    std::size_t start = 0;
    while (fields.size() + 1 < n) {
        const std::size_t colon = text.find(':', start);
        if (colon == std::string_view::npos) break;
        fields.push_back(text.substr(start, colon - start));
        start = colon + 1;
    }
    fields.push_back(text.substr(start));
    return fields;
}

struct SRoleEntry {
    SServerRole role;
    std::string name;
};

// The parsed role lists; parsed again only when host data changed.
class CRoleTables {
public:
    void Refresh() {
        const std::uint64_t version = host::DataVersion();
        if (version == m_nVersion) return;
        m_nVersion = version;
        ParseRoles(host::GetData("en.roles"));
        ParseMine(host::GetData("en.mine"));
        m_serverIds.clear();
    }

    const std::vector<SServerRole>* Roles(int nGroup, int nServerId) {
        const auto it = m_roles.find({nGroup, nServerId});
        return it == m_roles.end() ? nullptr : &it->second;
    }
    const std::vector<SMineRole>& Mine() const { return m_mine; }

    /// The ids of a group's servers by index; empty when the host gave none (the id is then the number).
    const std::vector<std::int32_t>& ServerIds(int nGroup) {
        auto [it, inserted] = m_serverIds.try_emplace(nGroup);
        if (!inserted) return it->second;
        const std::string text = host::GetData("en.serverids." + std::to_string(nGroup));
        for (std::string_view part : SplitList(text)) {
            std::int32_t id = 0;
            it->second.push_back(ReadInt(part, id) ? id : INT32_MIN);
        }
        return it->second;
    }

private:
    void ParseRoles(const std::string& text) {
        m_names.clear();
        m_roles.clear();
        // NOTE: the names live in one list that is never resized after this loop, so the records may point
        // into it.
        std::vector<std::pair<std::pair<int, int>, SServerRole>> parsed;
        for (std::string_view part : SplitList(text)) {
            const auto f = SplitFields(part, 6);
            SServerRole role;
            std::int32_t group = 0, id = 0;
            if (f.size() != 6 || !ReadInt(f[0], group) || !ReadInt(f[1], id) ||
                !ReadInt(f[2], role.nProCode) || !ReadInt(f[3], role.nPower) || !ReadInt(f[4], role.nLevel))
                continue;
            m_names.emplace_back(f[5]);
            parsed.push_back({{group, id}, role});
        }
        for (std::size_t i = 0; i < parsed.size(); ++i) {
            parsed[i].second.szName = m_names[i].c_str();
            m_roles[parsed[i].first].push_back(parsed[i].second);
        }
    }

    void ParseMine(const std::string& text) {
        m_mine.clear();
        for (std::string_view part : SplitList(text)) {
            const auto f = SplitFields(part, 2);
            SMineRole mine;
            if (f.size() == 2 && ReadInt(f[0], mine.nGroup) && ReadInt(f[1], mine.nServerId))
                m_mine.push_back(mine);
        }
    }

    std::uint64_t m_nVersion = UINT64_MAX;
    std::vector<std::string> m_names;
    std::map<std::pair<int, int>, std::vector<SServerRole>> m_roles;
    std::vector<SMineRole> m_mine;
    std::map<int, std::vector<std::int32_t>> m_serverIds;
};

bool IsKnownAccount(std::int64_t nAccount) {
    return !host::GetData("en.account").empty() && nAccount == host::GetDataInt("en.account", 0);
}

class CGameLogic final : public IGameLogic {
public:
    std::int64_t GetRoleListKey(std::int64_t nAccount, int nGroup, int nServer, bool) override {
        if (!IsKnownAccount(nAccount) || nGroup < 1 || nServer < 1) return 0;
        return static_cast<std::int64_t>((static_cast<std::uint64_t>(nGroup) << SERVER_BITS) |
                                         static_cast<std::uint32_t>(nServer));
    }
};

class CGameLogicEn final : public IGameLogicEn {
public:
    void OnRegisterPageOpen() override { host::Journal("gamelogic.pageopen"); }
    void SetRegisterPageCentre(int x, int y) override {
        host::SetData("gamelogic.centre", std::to_string(x) + "," + std::to_string(y));
    }
    const SServerRole* GetRoleList(int nGroup, std::int64_t nKey, int& nCount) override {
        nCount = 0;
        if (host::GetDataInt("en.nolist", 0) || nKey <= 0) return nullptr;
        m_tables.Refresh();
        const int nServer = static_cast<int>(static_cast<std::uint64_t>(nKey) & SERVER_MASK);
        const auto& ids = m_tables.ServerIds(nGroup);
        const int nId = static_cast<std::size_t>(nServer - 1) < ids.size()
                            ? ids[static_cast<std::size_t>(nServer - 1)]
                            : nServer;
        static const std::vector<SServerRole> NONE;
        const std::vector<SServerRole>* pRoles = m_tables.Roles(nGroup, nId);
        if (!pRoles) pRoles = &NONE;
        nCount = static_cast<int>(std::min<std::size_t>(pRoles->size(), INT32_MAX));
        return pRoles->data() ? pRoles->data() : NONE_ROLE;
    }
    const SMineRole* GetMineList(int& nCount) override {
        nCount = 0;
        if (host::GetDataInt("en.nolist", 0)) return nullptr;
        m_tables.Refresh();
        nCount = static_cast<int>(std::min<std::size_t>(m_tables.Mine().size(), INT32_MAX));
        return m_tables.Mine().empty() ? NONE_MINE : m_tables.Mine().data();
    }
    int MapServerId(int nGroup, int nServerId, std::int64_t nAccount) override {
        if (!IsKnownAccount(nAccount)) return -1;
        m_tables.Refresh();
        const auto& ids = m_tables.ServerIds(nGroup);
        if (ids.empty()) return nServerId >= 1 ? nServerId - 1 : -1;
        for (std::size_t i = 0; i < ids.size(); ++i)
            if (ids[i] == nServerId) return static_cast<int>(i);
        return -1;
    }

private:
    // An empty list is a list, not a missing one.
    static inline const SServerRole NONE_ROLE[1] = {};
    static inline const SMineRole NONE_MINE[1] = {};
    CRoleTables m_tables;
};

} // namespace

IGameLogic* GameLogicGet() {
    static CGameLogic logic;
    return &logic;
}

IGameLogicEn* GameLogicEnGet() {
    static CGameLogicEn logic;
    return &logic;
}

const char* CPlayer::GetProfessionStr(int nProfession) {
    static std::string text;
    const std::string key = "pro." + std::to_string(nProfession);
    text = host::GetData(key, std::to_string(nProfession));
    return text.c_str();
}

void SetAccountName(const char* szAccount) {
    const std::string account = szAccount ? szAccount : "";
    host::SetData("gamebase.account", account);
    host::Journal("gamebase.account", {{"name", account}});
}

bool IsChineseInputAllowed() {
    return host::GetDataInt("chinese", 0) != 0;
}
