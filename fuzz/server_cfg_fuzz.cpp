// Fuzzes the server configuration reading with arbitrary texts: what it keeps stays within its bounds, and
// reading the same text again (a reload) changes nothing.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "resources/FlashStringMgr.h"

namespace {
constexpr std::int32_t MODELS[] = {1, 2, 3, 4, 5, 6};
constexpr std::size_t MAX_GROUPS = 1024;
// Every server number up to the bound, and one of defaults.
constexpr std::size_t MAX_SERVERS = 1024 + 1;
constexpr std::size_t MAX_TEXT = 1023;
constexpr unsigned RELOAD_EVERY = 4;

std::size_t CheckAndCount(const CFlashStringMgr& mgr) {
    std::size_t nServers = 0;
    for (const std::int32_t model : MODELS) {
        const CfgGroupMap* groups = mgr.GetCfgGroups(model);
        if (!groups) continue;
        if (groups->size() > MAX_GROUPS) __builtin_trap();
        for (const auto& [index, group] : *groups) {
            if (index < 0 || group.mapServers.size() > MAX_SERVERS) __builtin_trap();
            if (group.strGroupTips.size() > MAX_TEXT || group.strGroupDetailTips.size() > MAX_TEXT)
                __builtin_trap();
            for (const auto& [id, server] : group.mapServers) {
                if (server.strSpecialEffect.size() > MAX_TEXT || server.strSpecialDetailTip.size() > MAX_TEXT)
                    __builtin_trap();
                if ((server.bAchTips && !group.bAchTips) || (server.bSpecialMark && !group.bSpecialMark))
                    __builtin_trap();
            }
            nServers += group.mapServers.size();
        }
    }
    return nServers;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CFlashStringMgr mgr;
    mgr.LoadServerCfgFromText(text);
    const std::size_t nServers = CheckAndCount(mgr);
    // NOTE: a second load doubles the cost of an input, so one input in RELOAD_EVERY checks it.
    if (!text.empty() && static_cast<std::uint8_t>(text.back()) % RELOAD_EVERY == 0) {
        mgr.LoadServerCfgFromText(text);
        if (CheckAndCount(mgr) != nServers) __builtin_trap();
    }
    (void)mgr.GetCfgServer(2, 0, 0);
    return 0;
}
