// File handles of the base library (CreateFileA, WriteFile) with the sharing rules of the system they stand
// for: an open that does not share writing keeps every other writer out until it closes.
#include <algorithm>
#include <cctype>
#include <map>
#include <mutex>
#include <string>

#include "FileApi.h"
#include "HandleObject.h"

namespace {
// The opens that are live, by file, with the access each holds and the access each lets others have.
struct SOpen {
    DWORD dwAccess;
    DWORD dwShare;
};
struct OpenFiles {
    std::mutex mutex; // workers open and close files on their own threads
    std::multimap<std::string, SOpen> opens;
};
OpenFiles& Opens() {
    static auto* opens = new OpenFiles; // never destroyed: handles may close during the process's exit
    return *opens;
}

constexpr DWORD ShareOf(DWORD dwAccess) {
    return ((dwAccess & GENERIC_READ) ? FILE_SHARE_READ : 0) |
           ((dwAccess & GENERIC_WRITE) ? FILE_SHARE_WRITE : 0);
}

// One spelling per file: client-relative, slashes, lower case (the client's names ignore case).
std::string FileKey(const char* szPath) {
    std::string key = szPath[0] == '/' ? szPath : GetClientDirectory() + "/" + szPath;
    for (char& c : key) c = c == '\\' ? '/' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return key;
}

class FileHandle final : public host::detail::CHandleObject {
public:
    FileHandle(ZrFile* pFile, std::multimap<std::string, SOpen>::iterator it) : m_pFile(pFile), m_it(it) {}
    ~FileHandle() override {
        Safefclose(m_pFile);
        std::lock_guard lock(Opens().mutex);
        Opens().opens.erase(m_it);
    }
    ZrFile* File() const { return m_pFile; }

private:
    ZrFile* m_pFile;
    std::multimap<std::string, SOpen>::iterator m_it;
};

const char* ModeOf(DWORD dwAccess, DWORD dwDisposition) {
    if (dwDisposition == CREATE_ALWAYS) return (dwAccess & GENERIC_READ) ? "w+b" : "wb";
    if (dwDisposition == OPEN_EXISTING) return (dwAccess & GENERIC_WRITE) ? "r+b" : "rb";
    return nullptr;
}
} // namespace

HANDLE CreateFileA(const char* szPath, DWORD dwDesiredAccess, DWORD dwShareMode, SECURITY_ATTRIBUTES*,
                   DWORD dwCreationDisposition, DWORD, HANDLE) {
    const char* szMode = ModeOf(dwDesiredAccess, dwCreationDisposition);
    if (!szPath || !*szPath || !szMode) return INVALID_HANDLE_VALUE;
    const std::string key = FileKey(szPath);
    std::lock_guard lock(Opens().mutex);
    const auto range = Opens().opens.equal_range(key);
    const bool bRefused = std::any_of(range.first, range.second, [&](const auto& entry) {
        const SOpen& other = entry.second;
        return (ShareOf(dwDesiredAccess) & ~other.dwShare) != 0 ||
               (ShareOf(other.dwAccess) & ~dwShareMode) != 0;
    });
    if (bRefused) return INVALID_HANDLE_VALUE;
    ZrFile* pFile = Safefopen(szPath, szMode);
    if (!pFile) return INVALID_HANDLE_VALUE;
    const auto it = Opens().opens.emplace(key, SOpen{dwDesiredAccess, dwShareMode});
    return static_cast<host::detail::CHandleObject*>(new FileHandle(pFile, it));
}

BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pWritten, OVERLAPPED*) {
    if (pWritten) *pWritten = 0;
    if (!hFile || hFile == INVALID_HANDLE_VALUE || (!pBuffer && nBytes > 0)) return FALSE;
    auto* pHandle = dynamic_cast<FileHandle*>(static_cast<host::detail::CHandleObject*>(hFile));
    if (!pHandle) return FALSE;
    const std::size_t nWritten = nBytes ? Safefwrite(pBuffer, 1, nBytes, pHandle->File()) : 0;
    if (pWritten) *pWritten = static_cast<DWORD>(nWritten);
    return nWritten == nBytes ? TRUE : FALSE;
}
