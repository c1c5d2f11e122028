// The server-configuration part of the client-directory check: entries of "ini/ServerCfg.ini" no screen
// reaches.
#pragma once

#include <vector>

#include "LintFinding.h"

namespace txt {
class IniDocument;
}

/// Reads the file as the string manager does (categories by header, groups 1 to GroupAmount, servers 1 to
/// ServerAmount, the first entry of a server id kept) and reports what that reading never reaches: groups
/// past the amount or without servers, server keys past the amount or of a number without a server id
/// (special marks on an unknown server among them), repeated server ids and sections of no category.
class ServerCfgCheck {
public:
    static constexpr const char* FILE_NAME = "ini/ServerCfg.ini";
    /// Checks the parsed file.
    static std::vector<LintFinding> Check(const txt::IniDocument& ini);
};
