// INI files of the client (server configuration, server state, game setup), parsed once and kept until they
// change.
#include <sys/stat.h>

#include <cstring>
#include <map>
#include <mutex>
#include <string>

#include "BaseLib.h"

namespace {
struct CaseLess {
    bool operator()(const std::string& a, const std::string& b) const {
        return ::strcasecmp(a.c_str(), b.c_str()) < 0;
    }
};
using Section = std::map<std::string, std::string, CaseLess>;
struct IniFile {
    std::map<std::string, Section, CaseLess> sections;
    std::string fingerprint; // the client directory, size and time of the file when it was read
};

std::string Trim(const std::string& s) {
    const auto begin = s.find_first_not_of(" \t\r\n");
    if (begin == std::string::npos) return {};
    const auto end = s.find_last_not_of(" \t\r\n");
    return s.substr(begin, end - begin + 1);
}

// Reads the whole file; the first occurrence of a key in a section wins, as the Windows profile functions do.
IniFile Parse(ZrFile* file) {
    IniFile ini;
    Section* current = nullptr;
    std::string line;
    char buf[1024];
    while (Safefgets(buf, sizeof buf, file)) {
        line += buf;
        if (line.empty() || (line.back() != '\n' && std::strlen(buf) == sizeof buf - 1)) continue;
        const std::string text = Trim(line);
        line.clear();
        if (text.empty() || text[0] == ';' || text[0] == '#') continue;
        if (text[0] == '[') {
            const auto close = text.find(']');
            current =
                &ini.sections[Trim(text.substr(1, close == std::string::npos ? text.size() - 1 : close - 1))];
            continue;
        }
        const auto eq = text.find('=');
        if (!current || eq == std::string::npos) continue;
        current->emplace(Trim(text.substr(0, eq)), Trim(text.substr(eq + 1)));
    }
    return ini;
}

std::string Fingerprint(const char* szFile) {
    const std::string path = GetClientDirectory() + "/" + szFile;
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0) return path;
    return path + "|" + std::to_string(st.st_size) + "|" + std::to_string(st.st_mtim.tv_sec) + "." +
           std::to_string(st.st_mtim.tv_nsec);
}

// Finds the value, re-reading the file when it changed; false when there is none.
bool Lookup(const char* szSection, const char* szKey, const char* szFile, std::string& value) {
    static std::mutex mutex;
    static std::map<std::string, IniFile> cache;
    if (!szSection || !szKey || !szFile) return false;
    std::lock_guard lock(mutex);
    const std::string fingerprint = Fingerprint(szFile);
    IniFile& ini = cache[szFile];
    if (ini.fingerprint != fingerprint) {
        ini = IniFile{};
        if (ZrFile* file = Safefopen(szFile, "r")) {
            ini = Parse(file);
            Safefclose(file);
        }
        ini.fingerprint = fingerprint;
    }
    const auto section = ini.sections.find(szSection);
    if (section == ini.sections.end()) return false;
    const auto key = section->second.find(szKey);
    if (key == section->second.end()) return false;
    value = key->second;
    return true;
}
} // namespace

DWORD MyGetPrivateProfileString(const char* szSection, const char* szKey, const char* szDefault, char* szBuf,
                                DWORD nSize, const char* szFile) {
    if (!szBuf || nSize == 0) return 0;
    std::string value;
    if (!Lookup(szSection, szKey, szFile, value)) value = szDefault ? szDefault : "";
    const std::size_t n = value.size() < nSize ? value.size() : nSize - 1;
    std::memcpy(szBuf, value.data(), n);
    szBuf[n] = '\0';
    return static_cast<DWORD>(n);
}

int MyGetPrivateProfileInt(const char* szSection, const char* szKey, int nDefault, const char* szFile) {
    std::string value;
    if (!Lookup(szSection, szKey, szFile, value)) return nDefault;
    return SafeAtoi(value.c_str());
}

const char* const g_pszIniServerState = "ini/ServerState.ini";
const char* const g_pszIniGameSetup = "ini/GameSetup.ini";
