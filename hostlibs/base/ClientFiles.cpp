// File access below the client directory: relative names, either slash, names matched without regard to case,
// and the text mode of the client's C library.
#include <cstdio>
#include <cstring>
#include <string>

#include "BaseLib.h"
#include "text/ClientPath.h"

struct ZrFile {
    std::FILE* fp;
    bool bText; ///< "\r\n" reads as "\n", as the Windows C library's text mode does
};

namespace {
bool IsTextMode(const char* szMode) {
    return std::strchr(szMode, 'b') == nullptr;
}

bool IsWriteMode(const char* szMode) {
    return std::strpbrk(szMode, "wa") != nullptr;
}

// fgets with the text mode's translation: a "\r" directly before "\n" reads as that "\n", any other "\r"
// stays. NOTE: fgets stops at the first "\n", so a translated pair can only end the piece read, or be split
// by the buffer's end; the line then holds what the translated stream would have put into the same buffer.
// A piece with a NUL byte looks shorter than it is, so the "\r" before it is no split pair: the next byte is
// only looked at when the piece filled the buffer.
char* TextModeGets(char* szBuf, int nSize, std::FILE* fp) {
    if (!std::fgets(szBuf, nSize, fp)) return nullptr;
    const std::size_t n = std::strlen(szBuf);
    const bool bFilled = n + 1 == static_cast<std::size_t>(nSize);
    if (n >= 2 && szBuf[n - 2] == '\r' && szBuf[n - 1] == '\n') {
        szBuf[n - 2] = '\n';
        szBuf[n - 1] = '\0';
    } else if (bFilled && n >= 1 && szBuf[n - 1] == '\r') {
        const int next = std::getc(fp);
        if (next == '\n')
            szBuf[n - 1] = '\n';
        else if (next != EOF)
            std::ungetc(next, fp);
    }
    return szBuf;
}
} // namespace

ZrFile* Safefopen(const char* szPath, const char* szMode) {
    if (!szPath || !*szPath || !szMode) return nullptr;
    const std::string path = txt::ClientPath::Resolve(szPath, IsWriteMode(szMode) ? txt::ClientEntry::NewFile
                                                                                  : txt::ClientEntry::File);
    if (path.empty()) return nullptr;
    std::FILE* fp = std::fopen(path.c_str(), szMode);
    return fp ? new ZrFile{fp, IsTextMode(szMode)} : nullptr;
}

char* Safefgets(char* szBuf, int nSize, ZrFile* pFile) {
    if (!szBuf || nSize <= 0 || !pFile) return nullptr;
    return pFile->bText ? TextModeGets(szBuf, nSize, pFile->fp) : std::fgets(szBuf, nSize, pFile->fp);
}

void Safefclose(ZrFile* pFile) {
    if (!pFile) return;
    std::fclose(pFile->fp);
    delete pFile;
}

BOOL PathFileExistsA(const char* szPath) {
    if (!szPath || !*szPath) return FALSE;
    return txt::ClientPath::Resolve(szPath, txt::ClientEntry::Any).empty() ? FALSE : TRUE;
}

std::size_t Safefwrite(const void* pData, std::size_t nSize, std::size_t nCount, ZrFile* pFile) {
    if (!pData || !pFile) return 0;
    return std::fwrite(pData, nSize, nCount, pFile->fp);
}
