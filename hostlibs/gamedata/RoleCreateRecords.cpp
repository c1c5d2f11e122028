// Creation records of the game data: "ini/RoleCreate.ini" ([KEY] blocks with Look, Part1..Part8, Scale,
// Text) and host data "roledata.KEY" as "LOOK P1 ... P8 SCALE TEXT".
#include "RoleCreateRecords.h"

#include <cstdio>
#include <map>
#include <string>

#include "ZrIni.h"
#include "hostlibs/HostEnv.h"

namespace gamedata {
namespace {
constexpr int NUMBERS_BEFORE_TEXT = 2 + SRoleCreateRecord::PART_COUNT;

std::map<int, int>& LooksSeen() {
    static std::map<int, int> s_looks;
    return s_looks;
}

bool ParseHostRecord(const std::string& text, SRoleCreateRecord& record) {
    int values[NUMBERS_BEFORE_TEXT] = {};
    std::size_t pos = 0;
    for (int& value : values) {
        while (pos < text.size() && text[pos] == ' ') ++pos;
        const std::size_t end = text.find(' ', pos);
        const std::string word = text.substr(pos, end == std::string::npos ? std::string::npos : end - pos);
        if (word.empty()) return false;
        value = SafeAtoi(word.c_str());
        pos = end == std::string::npos ? text.size() : end + 1;
    }
    record.nLook = values[0];
    for (int i = 0; i < SRoleCreateRecord::PART_COUNT; ++i) record.nParts[i] = values[1 + i];
    record.nScalePercent = values[NUMBERS_BEFORE_TEXT - 1];
    record.strDescription = CZrString(pos < text.size() ? text.substr(pos) : std::string());
    return true;
}

bool ReadFileRecord(int nKey, SRoleCreateRecord& record) {
    CZrIni ini;
    if (!ini.Open(ROLE_CREATE_FILE)) return false;
    const std::string section = std::to_string(nKey);
    if (!ini.HasSection(section.c_str())) return false;
    record.nLook = ini.GetInt(section.c_str(), "Look");
    for (int i = 0; i < SRoleCreateRecord::PART_COUNT; ++i)
        record.nParts[i] = ini.GetInt(section.c_str(), ("Part" + std::to_string(i + 1)).c_str());
    record.nScalePercent = ini.GetInt(section.c_str(), "Scale", 100);
    record.strDescription = ini.GetString(section.c_str(), "Text");
    return true;
}
} // namespace

bool FindCreateRecord(int nKey, SRoleCreateRecord& record) {
    const std::string hostKey = "roledata." + std::to_string(nKey);
    bool bFound = false;
    if (host::HasData(hostKey)) {
        const std::string text = host::GetData(hostKey);
        // NOTE: "roledata KEY off" removes a record the file has, so that tests reach the missing case.
        if (text == "off") return false;
        bFound = ParseHostRecord(text, record);
    }
    if (!bFound) bFound = ReadFileRecord(nKey, record);
    if (bFound) LooksSeen()[record.nLook] = nKey;
    return bFound;
}

int KeyOfLook(int nLook) {
    const auto it = LooksSeen().find(nLook);
    return it == LooksSeen().end() ? 0 : it->second;
}

} // namespace gamedata
