// Live server lists pushed by the host and the quick-entry records kept by the simulator.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/ZrString.h"

struct SServerItem {
    bool bAchTips = false;
    CZrString strName;
    std::int32_t nStatus = 1; ///< 0 or less: no load can be shown
    std::int32_t nCurPlayers = 0;
    std::int32_t nMaxPlayers = 100; ///< at least 1 once a status arrived
    std::int32_t nAchStart = 0;     ///< achievement window, minutes
    std::int32_t nAchEnd = 0;
};

struct SServerGroup {
    bool bAchTips = false;
    CZrString strName;
    std::vector<SServerItem> vecServer;
};

inline constexpr int MAX_QUICK_ENTRY_AMOUNT = 3;

struct SQuickEntry {
    std::int32_t nModel = 0;
    std::int32_t nGroup = 0;  ///< 1-based
    std::int32_t nServer = 0; ///< 1-based
    CZrString strGroupName;
    CZrString strServerName;
};

/// Achievement state of a server: before its window, inside it, after it (or no such server).
enum EAchState : std::int32_t {
    ACH_BEFORE = 0,
    ACH_INSIDE = 1,
    ACH_AFTER = 2,
};
