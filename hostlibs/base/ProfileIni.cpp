// The profile functions over the client's INI files (server state, game setup), each parsed once and kept
// until it changes.
#include <sys/stat.h>

#include <map>
#include <mutex>
#include <string>

#include "BaseLib.h"
#include "text/ClientPath.h"
#include "text/ProfileText.h"

namespace {
struct IniFile {
    txt::ProfileText profile;
    std::string fingerprint; // the client directory, size and time of the file when it was read
};

std::string Fingerprint(const char* szFile) {
    const std::string path = txt::ClientPath::Resolve(szFile);
    struct stat st {};
    if (path.empty() || ::stat(path.c_str(), &st) != 0) return GetClientDirectory() + "|" + szFile;
    return path + "|" + std::to_string(st.st_size) + "|" + std::to_string(st.st_mtim.tv_sec) + "." +
           std::to_string(st.st_mtim.tv_nsec);
}

// Calls read(profile) with the file's text as read last, re-reading the file when it changed.
template <class Read> auto WithProfile(const char* szFile, Read read) {
    static std::mutex mutex;
    static std::map<std::string, IniFile> cache;
    std::lock_guard lock(mutex);
    const std::string fingerprint = Fingerprint(szFile);
    IniFile& ini = cache[szFile];
    if (ini.fingerprint != fingerprint) {
        const auto text = txt::IniDocument::ReadClientFile(szFile);
        ini.profile = txt::ProfileText::Parse(text ? *text : std::string());
        ini.fingerprint = fingerprint;
    }
    return read(ini.profile);
}
} // namespace

DWORD MyGetPrivateProfileString(const char* szSection, const char* szKey, const char* szDefault, char* szBuf,
                                DWORD nSize, const char* szFile) {
    if (!szBuf || nSize == 0) return 0;
    if (!szFile)
        return static_cast<DWORD>(txt::ProfileText{}.CopyString(nullptr, nullptr, szDefault, szBuf, nSize));
    return static_cast<DWORD>(WithProfile(szFile, [&](const txt::ProfileText& profile) {
        return profile.CopyString(szSection, szKey, szDefault, szBuf, nSize);
    }));
}

int MyGetPrivateProfileInt(const char* szSection, const char* szKey, int nDefault, const char* szFile) {
    if (!szFile) return nDefault;
    return WithProfile(szFile, [&](const txt::ProfileText& profile) {
        const std::string* value = profile.Value(szSection, szKey);
        return value ? SafeAtoi(value->c_str()) : nDefault;
    });
}

const char* const g_pszIniServerState = "ini/ServerState.ini";
const char* const g_pszIniGameSetup = "ini/GameSetup.ini";
