// The sound rule of both creation screens.
#include "rolecreate/CreationVolume.h"

#include "platform/GameBase.h"
#include "platform/Graphics.h"
#include "platform/Sound.h"
#include "resources/SelectHeadMgr.h"

namespace {
constexpr const char* VOLUME_SETTING = "gSoundVolume";
} // namespace

void CCreationVolume::OnShown() {
    m_nSavedVolume = DXGetSoundVolume();
    DXSetSoundVolume(SOUND_VOLUME_SHOWN, VOLUME_SETTING);
}

void CCreationVolume::OnHidden() {
    CMyBitmap::EnableLight(false);
    CameraQuery()->SetCameraObj(0, false);
    CSelectHeadMgr::DestroyInstance();
    DXSetSoundVolume(m_nSavedVolume, VOLUME_SETTING);
    DXCloseAllSound("CloseAllSound");
}
