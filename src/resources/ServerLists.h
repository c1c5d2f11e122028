// The live server lists the host pushes (groups, their servers, loads and achievement windows) and the reads
// the screens make of them.
#pragma once

#include <string_view>
#include <vector>

#include "resources/ServerCfg.h"
#include "resources/ServerTypes.h"

class CServerLists {
public:
    // ---- filled by the host's texts ----
    /// "count#name|name|...": replaces the groups; false when the text is refused (no "#", count below 1).
    bool SetGroups(std::string_view value);
    /// "count#name|name|...": the servers of the next group to fill, in the order the groups came.
    void FillNextGroup(std::string_view value);
    /// "group#server_players_capacity_status|...": loads of one group's servers (numbers 1-based).
    void SetStatus(std::string_view value);
    /// "flag|flag|...": one achievement-tip flag per group; false unless there is one per group.
    bool SetGroupAchTips(std::string_view value);
    /// Takes the configured achievement flags and windows of the groups and servers that exist.
    void ApplyConfig(const CfgGroupMap& groups);
    /// Empties every group's servers, then the group list.
    void Clear();

    // ---- reads (indices out of range answer 0, null or false) ----
    int GetGroupCount() const { return static_cast<int>(m_vecServerGroup.size()); }
    const SServerGroup* GetGroup(int nGroup) const;
    const SServerItem* GetServer(int nGroup, int nServer) const;
    const char* GetGroupName(int nGroup) const;
    int GetServerCount(int nGroup) const;
    const char* GetServerName(int nGroup, int nServer) const;
    /// Players x 100 / capacity; -1 in maintenance; 0 when there is no such server.
    float GetServerLoad(int nGroup, int nServer) const;
    /// Achievement window state at the local time: before, inside, or after (also for a missing server).
    int GetAchState(int nGroup, int nServer) const;
    /// The group's flag is set and one of its servers is inside its window.
    bool IsGroupAchTip(int nGroup) const;
    bool IsServerAchTip(int nGroup, int nServer) const;

private:
    std::vector<SServerGroup> m_vecServerGroup;
    int m_nFillGroup = -1;
};
