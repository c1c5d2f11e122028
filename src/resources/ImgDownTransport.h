// The HTTP and file operations the image downloader's worker calls, so that tests can make each one fail.
#pragma once

#include "platform/FileApi.h"
#include "platform/WinInet.h"

/// WinINet and file operations with the platform's meaning; every operation may be called from the worker
/// thread, and InternetCloseHandle also from the host's thread (to end a worker's wait).
class IImgDownTransport {
public:
    virtual HINTERNET InternetOpenA(const char* szAgent, DWORD dwAccessType, const char* szProxy,
                                    const char* szProxyBypass, DWORD dwFlags) = 0;
    virtual HINTERNET InternetOpenUrlA(HINTERNET hSession, const char* szUrl, const char* szHeaders,
                                       DWORD dwHeadersLength, DWORD dwFlags, std::uintptr_t dwContext) = 0;
    virtual BOOL InternetReadFile(HINTERNET hFile, void* pBuffer, DWORD nToRead, DWORD* pRead) = 0;
    virtual BOOL InternetCloseHandle(HINTERNET hInternet) = 0;
    virtual HANDLE CreateFileA(const char* szPath, DWORD dwDesiredAccess, DWORD dwShareMode, void* pSecurity,
                               DWORD dwCreationDisposition, DWORD dwFlagsAndAttributes, HANDLE hTemplate) = 0;
    virtual BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pWritten,
                           void* pOverlapped) = 0;
    virtual BOOL CloseHandle(HANDLE hHandle) = 0;

protected:
    ~IImgDownTransport() = default;
};
