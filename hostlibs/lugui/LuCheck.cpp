// Check boxes: the checked frame and the toggling click.
#include "LuCheck.h"

#include "FrameCount.h"

namespace LuGui {

void CLuCheck::AdjustFrame() {
    m_nCurFrame = FrameOrFirst(*this, m_bChecked ? 1 : 0);
}

void CLuCheck::OnClicked() {
    m_bChecked = !m_bChecked;
    NotifyParent(WM_COMMAND, 0);
}

} // namespace LuGui
