// Images: the background frame, then the image's own picture, then any text.
#include "LuImage.h"

namespace LuGui {

int CLuImage::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    ProcessMouseMove();
    ShowBackGround();
    DrawImage();
    ShowWindowText();
    return 1;
}

void CLuImage::OnClicked() {
    if (m_bClickable) NotifyParent(WM_COMMAND, 0);
}

} // namespace LuGui
