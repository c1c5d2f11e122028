// The animation library's manager (IMyAniMgr) over the shared animation cache.
#pragma once

#include "MyAni.h"

namespace gfx {

class AniManager final : public IMyAniMgr {
public:
    static AniManager& Instance();
    CMyAni* QueryAni(const char* szFile, const char* szTitle) override;
    bool HasAni(const char* szFile, const char* szTitle) override;
};

} // namespace gfx
