// Where the 3D scene's origin lies on the screen for our role and effect stand-ins.
#pragma once

#include "Graphics.h"

namespace gamebase {

/// The 2D camera's centre; the screen's centre while no camera has been set yet (distance 0).
inline POINT SceneOrigin() {
    int x = 0, y = 0, nMode = 0;
    double dDistance = 0;
    CMyBitmap::GameCameraGet(x, y, dDistance, nMode);
    if (dDistance == 0) return POINT{CMyBitmap::GetScreenWidth() / 2, CMyBitmap::GetScreenHeight() / 2};
    return POINT{x, y};
}

} // namespace gamebase
