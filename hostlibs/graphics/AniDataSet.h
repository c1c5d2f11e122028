// The game data library's animation set (IGameDataSet), sharing the animation library's cache.
#pragma once

#include "GameDataSet.h"

namespace gfx {

class AniDataSet final : public IGameDataSet {
public:
    static AniDataSet& Instance();
    CMyAni* GetDataAni(const char* szFile, const char* szTitle, int nLoadMode, int nTimeoutMs,
                       int nReserved) override;
};

} // namespace gfx
