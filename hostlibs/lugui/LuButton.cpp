// Push buttons: state frames and the click command.
#include "LuButton.h"

#include "FrameCount.h"

namespace LuGui {
namespace {
enum EButtonFrame { FRAME_NORMAL = 0, FRAME_HOVER = 1, FRAME_PRESSED = 2, FRAME_DISABLED = 3 };
}

void CLuButton::AdjustFrame() {
    int nFrame = FRAME_NORMAL;
    if (!m_bEnabled)
        nFrame = FRAME_DISABLED;
    else if (m_bPressed && m_bHover)
        nFrame = FRAME_PRESSED;
    else if (m_bHover)
        nFrame = FRAME_HOVER;
    m_nCurFrame = FrameOrFirst(*this, nFrame);
}

void CLuButton::OnClicked() {
    NotifyParent(WM_COMMAND, 0);
}

} // namespace LuGui
