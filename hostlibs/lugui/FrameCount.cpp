// Frame counts of background animations, fetched through the animation manager's cache.
#include "FrameCount.h"

#include "MyAni.h"

namespace LuGui {

int BackGroundFrameCount(const CLuBaseWindow& wnd) {
    if (!*wnd.GetBackGroundAni()) return 0;
    CMyAni* pAni = QueryMyAniMgr()->QueryAni(wnd.GetBackGroundAniFile(), wnd.GetBackGroundAni());
    if (!pAni) return 0;
    const int nFrames = pAni->GetFrameAmount();
    pAni->Release();
    return nFrames;
}

int FrameOrFirst(const CLuBaseWindow& wnd, int nFrame) {
    // Frame 0 needs no look-up: every animation the library hands out has it.
    return nFrame == 0 || nFrame < BackGroundFrameCount(wnd) ? nFrame : 0;
}

} // namespace LuGui
