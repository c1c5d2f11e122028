// What a row of the recorded-account list does on both login screens: choosing it fills the account field,
// deleting it asks whether to forget the account; either way the host hears the row and the list closes.
#include "login/RecordedAccountRows.h"

#include "platform/GameGraphic.h"
#include "platform/Input.h"
#include "platform/LuGui.h"
#include "screen/LayoutNumbers.h"
#include "screen/ScreenContext.h"

namespace {
constexpr int ROW_READ = 256;
constexpr std::uint32_t STR_DELETE_TIP = 4000006;
constexpr std::uint32_t STR_DELETE_TIP_OFFSET = 4000005;
constexpr DWORD TIP_COLOUR = 0xFFFFFFFF;
} // namespace

namespace accountrows {

std::string TakeRow(CSimList& list, int nRow) {
    char szRow[ROW_READ] = {};
    list.GetText(nRow, szRow, sizeof szRow);
    ScreenContext()->NotifyHost("CMD_SELECTACCOUNT", szRow);
    list.ShowWindow(SW_HIDE);
    return szRow;
}

void DrawDeleteMark(CSimList& list, const char* szMarkAni) {
    const int nRowHeight = list.GetRowHeight();
    if (nRowHeight <= 0 || list.GetHoverRow() < 0) return;
    POINT pt{};
    GetCursorPos(&pt);
    const int nRow = (pt.y - list.GetWindowRect().top) / nRowHeight;
    if (nRow < 0 || nRow >= list.GetVisibleRowCount()) return;
    const RECT rc = list.GetCloseRect(nRow);
    if (rc.right <= rc.left) return;
    CGameGraphic::ShowCtrlAni(szMarkAni, rc.left, rc.top);
    const bool bInside = pt.x >= rc.left && pt.x <= rc.right && pt.y >= rc.top && pt.y <= rc.bottom;
    IScreenContext* pContext = ScreenContext();
    if (!bInside || !pContext || !list.GetGuiMgr()) return;
    int offset[2] = {0, 0};
    READ_LAYOUT_NUMBERS(STR_DELETE_TIP_OFFSET, offset);
    list.GetGuiMgr()->ShowTip(pContext->GetStr(STR_DELETE_TIP), rc.left + offset[0], rc.top + offset[1],
                              TIP_COLOUR);
}

std::string ChooseRow(CSimList& list, CSimEdit& account, int nRow) {
    const std::string text = TakeRow(list, nRow);
    account.SetWindowTextA(text.c_str());
    account.SetFocus();
    const int nLength = static_cast<int>(text.size());
    account.SetSel(nLength, nLength);
    ScreenContext()->NotifyHost("CMD_TEXTSELECT", "");
    list.ResetContent();
    return text;
}

void DeleteRow(CSimList& list, int nRow) {
    TakeRow(list, nRow);
    list.ClearHover();
    ScreenContext()->ShowMessageBox(MSGBOX_CLEAR_ACCOUNT, nullptr);
    ScreenContext()->NotifyHost("CMD_TEXTSELECT", "");
}

} // namespace accountrows
