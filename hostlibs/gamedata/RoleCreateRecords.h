// The game data library's creation records: the sample file, overridden by host data, and the way back
// from a look to its record's key (the raster figure labels itself with it).
#pragma once

#include "GameData.h"

namespace gamedata {

/// The file of creation records below the client directory.
inline constexpr const char* ROLE_CREATE_FILE = "ini/RoleCreate.ini";

/// The record of key profession + sex: host data "roledata.KEY" first, then the file; false when neither.
bool FindCreateRecord(int nKey, SRoleCreateRecord& record);
/// The key of the last record handed out with this look; 0 when none.
int KeyOfLook(int nLook);

} // namespace gamedata
