// The nine-grid frame the code-scanning and web-registration panels draw around themselves.
#include "screen/PanelFrame.h"

#include "platform/GameGraphic.h"
#include "platform/MyAni.h"

namespace panelframe {
namespace {
constexpr const char* FRAME_ANI = "Padre_BgSudokuBG";
} // namespace

void Draw(const LuGui::CLuBaseWindow& panel, int x, int y) {
    if (!QueryMyAniMgr()->HasAni(CONTROL_ANI_FILE, FRAME_ANI)) return;
    CGameGraphic::ShowNineImageBackGround(FRAME_ANI, x - MARGIN.left, y - MARGIN.top,
                                          panel.GetWidth() + MARGIN.left + MARGIN.right,
                                          panel.GetHeight() + MARGIN.top + MARGIN.bottom);
}
} // namespace panelframe
