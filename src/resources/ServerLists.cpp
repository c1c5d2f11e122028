// The live server lists the host pushes (groups, their servers, loads and achievement windows) and the reads
// the screens make of them.
#include "resources/ServerLists.h"

#include <string>

#include "common/SysLog.h"
#include "platform/BaseLib.h"
#include "resources/TextScan.h"

namespace {
constexpr std::size_t MIN_TRAILING_ENTRY_LENGTH = 6;

// The count before "#" and the text after it; false without "#".
bool SplitCount(std::string_view value, int& nCount, std::string_view& rest) {
    const std::size_t hash = value.find('#');
    if (hash == std::string_view::npos) return false;
    nCount = SafeAtoi(std::string(value.substr(0, hash)).c_str());
    rest = value.substr(hash + 1);
    return true;
}

// Names each closed by "|", at most nCount of them; a name without its closing "|" is not taken.
std::vector<std::string_view> ClosedNames(std::string_view text, int nCount) {
    std::vector<std::string_view> names;
    std::size_t start = 0;
    while (static_cast<int>(names.size()) < nCount) {
        const std::size_t bar = text.find('|', start);
        if (bar == std::string_view::npos) break;
        names.push_back(text.substr(start, bar - start));
        start = bar + 1;
        if (start >= text.size()) break;
    }
    return names;
}
} // namespace

// ---- filled by the host --------------------------------------------------------------------------

bool CServerLists::SetGroups(std::string_view value) {
    int nCount = 0;
    std::string_view names;
    if (!SplitCount(value, nCount, names) || nCount < 1) return false;
    Clear();
    for (std::string_view name : ClosedNames(names, nCount)) {
        SServerGroup group;
        group.strName = name;
        m_vecServerGroup.push_back(std::move(group));
    }
    m_nFillGroup = 0;
    return true;
}

void CServerLists::FillNextGroup(std::string_view value) {
    int nCount = 0;
    std::string_view names;
    if (!SplitCount(value, nCount, names) || nCount < 0) return;
    if (m_nFillGroup < 0 || m_nFillGroup >= GetGroupCount()) return;
    std::vector<SServerItem>& servers = m_vecServerGroup[static_cast<std::size_t>(m_nFillGroup)].vecServer;
    servers.clear();
    for (std::string_view name : ClosedNames(names, nCount)) {
        SServerItem server;
        server.strName = name;
        servers.push_back(std::move(server));
    }
    ++m_nFillGroup;
}

void CServerLists::SetStatus(std::string_view value) {
    int nGroup = 0;
    std::string_view entries;
    if (!SplitCount(value, nGroup, entries) || nGroup < 1 || nGroup > GetGroupCount()) return;
    std::vector<SServerItem>& servers = m_vecServerGroup[static_cast<std::size_t>(nGroup - 1)].vecServer;
    auto apply = [&servers](std::string_view entry) {
        const auto v = textscan::ReadIntsSeparated(entry, '_', 4);
        if (v.size() == 4 && v[0] >= 1 && v[0] <= static_cast<int>(servers.size())) {
            SServerItem& server = servers[static_cast<std::size_t>(v[0] - 1)];
            // NOTE: a negative count is no players; as a load it would lie far below any bar's range.
            if (v[1] < 0)
                SysLogWarn(__FILE__, __LINE__, "negative player count read as 0", "entry",
                           std::string(entry));
            server.nCurPlayers = v[1] < 0 ? 0 : v[1];
            server.nMaxPlayers = v[2] > 1 ? v[2] : 1;
            server.nStatus = v[3];
        }
        return true;
    };
    const std::string_view rest = textscan::ForEachTerminated(entries, '|', apply);
    if (rest.size() >= MIN_TRAILING_ENTRY_LENGTH) apply(rest);
}

bool CServerLists::SetGroupAchTips(std::string_view value) {
    if (value.empty()) return false;
    std::vector<int> values;
    const std::string_view rest = textscan::ForEachTerminated(value, '|', [&values](std::string_view piece) {
        values.push_back(SafeAtoi(std::string(piece).c_str()));
        return true;
    });
    values.push_back(SafeAtoi(std::string(rest).c_str()));
    if (values.size() != m_vecServerGroup.size()) return false;
    for (std::size_t i = 0; i < values.size(); ++i) m_vecServerGroup[i].bAchTips = values[i] > 0;
    return true;
}

void CServerLists::ApplyConfig(const CfgGroupMap& groups) {
    for (const auto& [index, cfgGroup] : groups) {
        if (index < 0 || index >= GetGroupCount()) continue;
        SServerGroup& group = m_vecServerGroup[static_cast<std::size_t>(index)];
        group.bAchTips = cfgGroup.bAchTips;
        for (const auto& [id, cfgServer] : cfgGroup.mapServers) {
            if (id < 1 || id > static_cast<int>(group.vecServer.size())) continue;
            SServerItem& server = group.vecServer[static_cast<std::size_t>(id - 1)];
            server.bAchTips = cfgServer.bAchTips;
            server.nAchStart = cfgServer.nAchStart;
            server.nAchEnd = cfgServer.nAchEnd;
        }
    }
}

void CServerLists::Clear() {
    for (SServerGroup& group : m_vecServerGroup) group.vecServer.clear();
    m_vecServerGroup.clear();
}

// ---- reads ---------------------------------------------------------------------------------------

const SServerGroup* CServerLists::GetGroup(int nGroup) const {
    if (nGroup < 0 || nGroup >= GetGroupCount()) return nullptr;
    return &m_vecServerGroup[static_cast<std::size_t>(nGroup)];
}

const SServerItem* CServerLists::GetServer(int nGroup, int nServer) const {
    const SServerGroup* group = GetGroup(nGroup);
    if (!group || nServer < 0 || nServer >= static_cast<int>(group->vecServer.size())) return nullptr;
    return &group->vecServer[static_cast<std::size_t>(nServer)];
}

const char* CServerLists::GetGroupName(int nGroup) const {
    const SServerGroup* group = GetGroup(nGroup);
    return group ? group->strName.c_str() : nullptr;
}

int CServerLists::GetServerCount(int nGroup) const {
    const SServerGroup* group = GetGroup(nGroup);
    return group ? static_cast<int>(group->vecServer.size()) : 0;
}

const char* CServerLists::GetServerName(int nGroup, int nServer) const {
    const SServerItem* server = GetServer(nGroup, nServer);
    return server ? server->strName.c_str() : nullptr;
}

float CServerLists::GetServerLoad(int nGroup, int nServer) const {
    const SServerItem* server = GetServer(nGroup, nServer);
    if (!server) return 0.0f;
    if (server->nStatus <= 0) return -1.0f;
    const int capacity = server->nMaxPlayers > 0 ? server->nMaxPlayers : 1;
    return static_cast<float>(static_cast<double>(server->nCurPlayers) * 100.0 / capacity);
}

int CServerLists::GetAchState(int nGroup, int nServer) const {
    std::int64_t now = 0;
    if (!GetSafeLocalTime(now)) return ACH_BEFORE;
    const SServerItem* server = GetServer(nGroup, nServer);
    if (!server) return ACH_AFTER;
    if (now >= GetTimeFromIntervalMin(server->nAchEnd)) return ACH_AFTER;
    if (now >= GetTimeFromIntervalMin(server->nAchStart)) return ACH_INSIDE;
    return ACH_BEFORE;
}

bool CServerLists::IsGroupAchTip(int nGroup) const {
    const SServerGroup* group = GetGroup(nGroup);
    if (!group || !group->bAchTips) return false;
    for (int s = 0; s < static_cast<int>(group->vecServer.size()); ++s)
        if (GetAchState(nGroup, s) == ACH_INSIDE) return true;
    return false;
}

bool CServerLists::IsServerAchTip(int nGroup, int nServer) const {
    const SServerItem* server = GetServer(nGroup, nServer);
    return server && server->bAchTips && GetAchState(nGroup, nServer) == ACH_INSIDE;
}
