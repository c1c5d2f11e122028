// The profile functions over the client's INI files (server state, game setup), each parsed once and kept
// until it changes.
#include <sys/stat.h>

#include <cstring>
#include <map>
#include <mutex>
#include <string>

#include "BaseLib.h"
#include "text/ClientPath.h"
#include "text/IniDocument.h"

namespace {
struct IniFile {
    txt::IniDocument doc;
    std::string fingerprint; // the client directory, size and time of the file when it was read
};

std::string Fingerprint(const char* szFile) {
    const std::string path = txt::ClientPath::Resolve(szFile);
    struct stat st {};
    if (path.empty() || ::stat(path.c_str(), &st) != 0) return GetClientDirectory() + "|" + szFile;
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
        ini.doc = txt::IniDocument::Load(szFile, txt::PROFILE_RULES).value_or(txt::IniDocument{});
        ini.fingerprint = fingerprint;
    }
    const std::string* found = ini.doc.Value(szSection, szKey);
    if (!found) return false;
    value = *found;
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
