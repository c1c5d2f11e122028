// What a row of the recorded-account list does on both login screens: choosing it fills the account field,
// deleting it asks whether to forget the account; either way the host hears the row and the list closes.
#pragma once

#include <string>

#include "controls/SimEdit.h"
#include "controls/SimList.h"

namespace accountrows {
/// Reads row nRow, tells the host ("CMD_SELECTACCOUNT") and hides the list; returns the row's text.
std::string TakeRow(CSimList& list, int nRow);
/// The chosen row into the account field with the caret at its end, then "CMD_TEXTSELECT"; the list is
/// emptied. Returns the account.
std::string ChooseRow(CSimList& list, CSimEdit& account, int nRow);
/// The delete mark (animation szMarkAni) on the row under the cursor of an open list, and over the mark the
/// tip that says what it does.
void DrawDeleteMark(CSimList& list, const char* szMarkAni);
/// The deleted row: the message box asks whether to forget the account, then "CMD_TEXTSELECT".
void DeleteRow(CSimList& list, int nRow);
} // namespace accountrows
