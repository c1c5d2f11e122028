// The fixed names of the five editions: description key, entry picture, name string.
#pragma once

#include <cstdint>

inline constexpr int EDITION_COUNT = 5;
/// The picture of a quick-entry slot without a record.
inline constexpr const char* EMPTY_ENTRY_PICTURE = "EntryBtn_Default";

struct SEditionInfo {
    const char* szTipKey;       ///< key of its description in section "VerTip" of the server-state file
    const char* szEntryPicture; ///< sub-ground of record buttons, background of replacement rows
    std::uint32_t nNameId;      ///< its name in the string table
};

/// The edition's names (editions 1 to 5), null for any other number.
const SEditionInfo* FindEdition(int nEdition);
