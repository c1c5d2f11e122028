// How a server's load is shown: small loads are raised by a fixed table, then levelled for pictures and
// words.
#include "screen/ServerLoad.h"

namespace {
// Loads below each limit are shown raised by its bonus; 80 and above are shown as they are.
struct SLoadBonus {
    float fBelow;
    float fBonus;
};
constexpr SLoadBonus LOAD_BONUSES[] = {{50.0f, 20.0f}, {60.0f, 15.0f}, {70.0f, 10.0f}, {80.0f, 5.0f}};
constexpr float LOAD_EPSILON = 0.000001f;
constexpr float LOAD_CAP = 100.0f;
constexpr float LEVEL_VERY_BUSY = 75.0f;
constexpr float LEVEL_BUSY = 50.0f;
} // namespace

const char* LoadPictureOf(const SLoadDisplay& display) {
    if (display.nLevel == 2) return "NewLogin_serfullPic";
    if (display.nLevel == 1) return "NewLogin_serMediumPic";
    return display.fShown >= 0.0f ? "NewLogin_serlowPic" : "NewLogin_serMaintenancePic";
}

SLoadDisplay ComputeLoadDisplay(float fRaw) {
    float shown = fRaw;
    if (fRaw >= LOAD_EPSILON) {
        for (const SLoadBonus& bonus : LOAD_BONUSES) {
            if (fRaw < bonus.fBelow) {
                shown = fRaw + bonus.fBonus;
                break;
            }
        }
    }
    if (shown > LOAD_CAP) shown = LOAD_CAP;

    SLoadDisplay display;
    display.fShown = shown;
    if (shown >= LEVEL_VERY_BUSY) {
        display.nLevel = 2;
        display.nWordId = STR_LOAD_VERY_BUSY;
    } else if (shown >= LEVEL_BUSY) {
        display.nLevel = 1;
        display.nWordId = STR_LOAD_BUSY;
    } else if (shown >= 0.0f) {
        display.nWordId = STR_LOAD_QUIET;
    } else {
        display.nWordId = STR_LOAD_MAINTENANCE;
    }
    return display;
}
