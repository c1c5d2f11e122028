// Placement of the English creation dialogs from their layout records and the main window's size.
#include "rolecreate/EnglishPlacement.h"

#include <string_view>

#include "platform/LuLayoutRecord.h"
#include "resources/TextScan.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr std::size_t RECT_NUMBERS = 4;

int SideOr(int nSide, int nDesign) {
    return nSide >= 1 && nSide <= CEnglishPlacement::MAX_SIDE ? nSide : nDesign;
}
} // namespace

SIZE CEnglishPlacement::MainSize(const IScreenContext* pContext) {
    if (!pContext) return SIZE{DESIGN_WIDTH, DESIGN_HEIGHT};
    return SIZE{SideOr(pContext->GetMainPathWidth(), DESIGN_WIDTH),
                SideOr(pContext->GetMainPathHeight(), DESIGN_HEIGHT)};
}

RECT CEnglishPlacement::RecordRect(const LuGui::CLuBaseWindow& window) {
    const LuGui::CLuLayoutRecord* pRecord = window.GetLayoutRecord();
    const char* szRect = pRecord ? pRecord->GetValue("Rect") : nullptr;
    if (!szRect) return window.GetWindowRect();
    const auto v = textscan::ReadInts(std::string_view(szRect), RECT_NUMBERS);
    if (v.size() < RECT_NUMBERS) return window.GetWindowRect();
    return RECT{v[0], v[1], v[0] + v[2], v[1] + v[3]};
}

void CEnglishPlacement::PlaceFrame(LuGui::CLuBaseWindow& frame, SIZE main) {
    const RECT rc = RecordRect(frame);
    frame.MoveWindow(rc.left + (main.cx - DESIGN_WIDTH) / 2, rc.top + main.cy - DESIGN_HEIGHT,
                     rc.right - rc.left, rc.bottom - rc.top);
}

void CEnglishPlacement::PlaceBottomLeft(LuGui::CLuBaseWindow& dialog, SIZE main) {
    const RECT rc = RecordRect(dialog);
    dialog.MoveWindow(rc.left, rc.top + main.cy - DESIGN_HEIGHT, rc.right - rc.left, rc.bottom - rc.top);
}

void CEnglishPlacement::PlaceSide(LuGui::CLuBaseWindow& dialog, std::uint32_t nStrId, SIZE main,
                                  bool bRightAligned) {
    int abc[3] = {0, 0, 0};
    READ_LAYOUT_NUMBERS(nStrId, abc);
    const RECT rc = RecordRect(dialog);
    const int nWidth = rc.right - rc.left + abc[0];
    const int nHeight = rc.bottom - rc.top + abc[1];
    // NOTE: the grown size enters the edges once: right = W - a keeps the grown panel's right edge at the
    // window's edge, the bottom c above the window's bottom.
    const int x = bRightAligned ? main.cx - nWidth : rc.left;
    const int y = main.cy - nHeight - abc[2];
    dialog.MoveWindow(x, y, nWidth, nHeight);
}
