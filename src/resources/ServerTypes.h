// Live server lists pushed by the host and the quick-entry records kept by the simulator.
#pragma once

#include <cstdint>
#include <limits>
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

/// Group and server numbers travel 1-based, indices 0-based; the host may send any int, so the conversions
/// saturate instead of overflowing.
constexpr int OneBased(int nIndex) {
    return nIndex == std::numeric_limits<int>::max() ? nIndex : nIndex + 1;
}
constexpr int ZeroBased(int nNumber) {
    return nNumber == std::numeric_limits<int>::min() ? nNumber : nNumber - 1;
}

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
