// Configured server decorations from "ini/ServerCfg.ini": per model, per group, per server id.
#pragma once

#include <cstdint>
#include <map>
#include <string>

struct SCfgServer {
    bool bAchTips = false;
    std::int32_t nAchStart = 0; ///< minutes, see GetTimeFromIntervalMin
    std::int32_t nAchEnd = 0;
    bool bSpecialMark = false;
    std::uint32_t dwNameColor = 0;
    std::string strSpecialEffect;
    std::string strSpecialBg;
    std::string strSpecialIntroduce;
    std::string strSpecialDetailTip;
};

struct SCfgGroup {
    bool bAchTips = false;     ///< any of its servers shows an achievement tip
    bool bSpecialMark = false; ///< any of its servers is specially marked
    std::string strGroupTips;
    std::string strGroupDetailTips;
    std::map<std::int32_t, SCfgServer> mapServers; ///< by server id (live index + 1)
};

/// The configured groups of one model, by 0-based group index.
using CfgGroupMap = std::map<std::int32_t, SCfgGroup>;
