// File access below the client directory: relative names, either slash, file names matched without regard to
// case.
#include <dirent.h>
#include <strings.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "BaseLib.h"

struct ZrFile {
    std::FILE* fp;
};

namespace {
bool Exists(const std::string& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0;
}

// Finds the entry of dir whose name equals name without regard to case; empty when there is none.
std::string FindEntryIgnoringCase(const std::string& dir, const std::string& name) {
    DIR* d = ::opendir(dir.c_str());
    if (!d) return {};
    std::string found;
    while (const dirent* e = ::readdir(d)) {
        if (::strcasecmp(e->d_name, name.c_str()) == 0) {
            found = e->d_name;
            break;
        }
    }
    ::closedir(d);
    return found;
}

// The client's files are named as on Windows; resolve each component case-insensitively when the exact name
// is absent.
std::string ResolveClientPath(const char* szPath) {
    std::string rel(szPath);
    for (char& c : rel)
        if (c == '\\') c = '/';
    if (!rel.empty() && rel[0] == '/') return rel;
    std::string path = GetClientDirectory();
    std::size_t start = 0;
    while (start <= rel.size()) {
        std::size_t end = rel.find('/', start);
        if (end == std::string::npos) end = rel.size();
        const std::string part = rel.substr(start, end - start);
        start = end + 1;
        if (part.empty() || part == ".") continue;
        std::string next = path + "/" + part;
        if (!Exists(next)) {
            const std::string entry = FindEntryIgnoringCase(path, part);
            if (!entry.empty()) next = path + "/" + entry;
        }
        path = std::move(next);
    }
    return path;
}
} // namespace

ZrFile* Safefopen(const char* szPath, const char* szMode) {
    if (!szPath || !*szPath || !szMode) return nullptr;
    std::FILE* fp = std::fopen(ResolveClientPath(szPath).c_str(), szMode);
    return fp ? new ZrFile{fp} : nullptr;
}

char* Safefgets(char* szBuf, int nSize, ZrFile* pFile) {
    if (!szBuf || nSize <= 0 || !pFile) return nullptr;
    return std::fgets(szBuf, nSize, pFile->fp);
}

void Safefclose(ZrFile* pFile) {
    if (!pFile) return;
    std::fclose(pFile->fp);
    delete pFile;
}

std::size_t Safefwrite(const void* pData, std::size_t nSize, std::size_t nCount, ZrFile* pFile) {
    if (!pData || !pFile) return 0;
    return std::fwrite(pData, nSize, nCount, pFile->fp);
}
