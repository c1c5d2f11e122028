// Animations by file and title for the animation library; the cache owns them, callers borrow.
#include "AniManager.h"

#include "AniCache.h"
#include "AniHandle.h"

namespace gfx {

AniManager& AniManager::Instance() {
    static AniManager manager;
    return manager;
}

CMyAni* AniManager::QueryAni(const char* szFile, const char* szTitle) {
    if (!szFile || !szTitle) return nullptr;
    return AniCache::Instance().Animation(szFile, szTitle);
}

bool AniManager::HasAni(const char* szFile, const char* szTitle) {
    return QueryAni(szFile, szTitle) != nullptr;
}

} // namespace gfx

IMyAniMgr* QueryMyAniMgr() {
    return &gfx::AniManager::Instance();
}
