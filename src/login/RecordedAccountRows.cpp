// What a row of the recorded-account list does on both login screens: choosing it fills the account field,
// deleting it asks whether to forget the account; either way the host hears the row and the list closes.
#include "login/RecordedAccountRows.h"

#include "screen/ScreenContext.h"

namespace {
constexpr int ROW_READ = 256;
}

namespace accountrows {

std::string TakeRow(CSimList& list, int nRow) {
    char szRow[ROW_READ] = {};
    list.GetText(nRow, szRow, sizeof szRow);
    ScreenContext()->NotifyHost("CMD_SELECTACCOUNT", szRow);
    list.ShowWindow(SW_HIDE);
    return szRow;
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
