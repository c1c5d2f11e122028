// How a server's load is shown: small loads are raised by a fixed table, then levelled for pictures and
// words.
#pragma once

#include <cstdint>

struct SLoadDisplay {
    float fShown = 0.0f;       ///< the displayed load in per cent, capped at 100; negative in maintenance
    int nLevel = 0;            ///< 0 quiet, 1 busy, 2 very busy (maintenance shows level 0)
    std::uint32_t nWordId = 0; ///< string id of the load word
};

inline constexpr std::uint32_t STR_LOAD_QUIET = 3110026;
inline constexpr std::uint32_t STR_LOAD_VERY_BUSY = 3110027;
inline constexpr std::uint32_t STR_LOAD_BUSY = 3110028;
inline constexpr std::uint32_t STR_LOAD_MAINTENANCE = 3110029;

/// The displayed load of a raw load (players x 100 / capacity, or -1 in maintenance).
SLoadDisplay ComputeLoadDisplay(float fRaw);
/// The load picture of a displayed load: full from 75, medium from 50, low from 0, maintenance below 0.
const char* LoadPictureOf(const SLoadDisplay& display);
