// The image downloader's operations as the platform provides them (WinINet and the system's files).
#pragma once

#include "resources/ImgDownTransport.h"

class CWinInetTransport final : public IImgDownTransport {
public:
    /// The process-wide instance (it has no state).
    static CWinInetTransport& Instance();

    HINTERNET InternetOpenA(const char* szAgent, DWORD dwAccessType, const char* szProxy,
                            const char* szProxyBypass, DWORD dwFlags) override;
    HINTERNET InternetOpenUrlA(HINTERNET hSession, const char* szUrl, const char* szHeaders,
                               DWORD dwHeadersLength, DWORD dwFlags, std::uintptr_t dwContext) override;
    BOOL InternetReadFile(HINTERNET hFile, void* pBuffer, DWORD nToRead, DWORD* pRead) override;
    BOOL InternetCloseHandle(HINTERNET hInternet) override;
    HANDLE CreateFileA(const char* szPath, DWORD dwDesiredAccess, DWORD dwShareMode, void* pSecurity,
                       DWORD dwCreationDisposition, DWORD dwFlagsAndAttributes, HANDLE hTemplate) override;
    BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pWritten,
                   void* pOverlapped) override;
    BOOL CloseHandle(HANDLE hHandle) override;
};
