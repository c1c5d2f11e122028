// The game data library's animation set: the same animations as the animation library, fetched as the data
// set does.
#pragma once

#include "BaseLib.h"
#include "MyAni.h"

/// The game data library's animation set.
class IGameDataSet {
public:
    /// The animation titled szTitle in the animation file szFile, or null. nLoadMode, nTimeoutMs and
    /// nReserved are the data set's loading arguments (1, 30000, 0 or 0, 30000, 0); here every animation
    /// loads at once. The animation is owned by the library; Release() it after the draw.
    virtual CMyAni* GetDataAni(const char* szFile, const char* szTitle, int nLoadMode = 1,
                               int nTimeoutMs = 30000, int nReserved = 0) = 0;

protected:
    virtual ~IGameDataSet() = default;
};

/// The process-wide animation set (never null).
IGameDataSet* GameDataSetQuery();
