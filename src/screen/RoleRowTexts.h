// The four texts of one role in the international role lists: name, level, profession and power.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

struct SServerRole;

struct SRoleRowTexts {
    std::string strName;
    std::string strLevel;
    std::string strProfession;
    std::string strPower;

    /// String ids of the level and power formats (one integer each).
    static constexpr std::uint32_t STR_LEVEL_FORMAT = 8000164;
    static constexpr std::uint32_t STR_POWER_FORMAT = 8000165;
    /// Longest name kept, in bytes of the code page.
    static constexpr std::size_t MAX_NAME_BYTES = 255;

    /// The texts of a role: its UTF-8 name in the client's code page, level and power through their
    /// formats, the profession's name of code x 10.
    static SRoleRowTexts Of(const SServerRole& role);
    /// UTF-8 to the client's code page (UTF-8 here): well-formed characters stay, every other byte becomes
    /// "?"; cut at MAX_NAME_BYTES on a character boundary.
    static std::string ToCodePage(std::string_view utf8);
    /// The profession id of a code (ten times it), saturated to 32 bits.
    static int ProfessionOf(std::int32_t nCode);
};
