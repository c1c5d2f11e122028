// Animations fetched the game data set's way; loading is synchronous here, so the loading arguments do not
// matter.
#include "AniDataSet.h"

#include "AniManager.h"

namespace gfx {

AniDataSet& AniDataSet::Instance() {
    static AniDataSet set;
    return set;
}

CMyAni* AniDataSet::GetDataAni(const char* szFile, const char* szTitle, int, int, int) {
    return AniManager::Instance().QueryAni(szFile, szTitle);
}

} // namespace gfx

IGameDataSet* GameDataSetQuery() {
    return &gfx::AniDataSet::Instance();
}
