// The image downloader's operations as the platform provides them (WinINet and the system's files).
#include "resources/WinInetTransport.h"

CWinInetTransport& CWinInetTransport::Instance() {
    static CWinInetTransport transport;
    return transport;
}

HINTERNET CWinInetTransport::InternetOpenA(const char* szAgent, DWORD dwAccessType, const char* szProxy,
                                           const char* szProxyBypass, DWORD dwFlags) {
    return ::InternetOpenA(szAgent, dwAccessType, szProxy, szProxyBypass, dwFlags);
}

HINTERNET CWinInetTransport::InternetOpenUrlA(HINTERNET hSession, const char* szUrl, const char* szHeaders,
                                              DWORD dwHeadersLength, DWORD dwFlags,
                                              std::uintptr_t dwContext) {
    return ::InternetOpenUrlA(hSession, szUrl, szHeaders, dwHeadersLength, dwFlags, dwContext);
}

BOOL CWinInetTransport::InternetReadFile(HINTERNET hFile, void* pBuffer, DWORD nToRead, DWORD* pRead) {
    return ::InternetReadFile(hFile, pBuffer, nToRead, pRead);
}

BOOL CWinInetTransport::InternetCloseHandle(HINTERNET hInternet) {
    return ::InternetCloseHandle(hInternet);
}

HANDLE CWinInetTransport::CreateFileA(const char* szPath, DWORD dwDesiredAccess, DWORD dwShareMode,
                                      void* pSecurity, DWORD dwCreationDisposition,
                                      DWORD dwFlagsAndAttributes, HANDLE hTemplate) {
    return ::CreateFileA(szPath, dwDesiredAccess, dwShareMode, static_cast<SECURITY_ATTRIBUTES*>(pSecurity),
                         dwCreationDisposition, dwFlagsAndAttributes, hTemplate);
}

BOOL CWinInetTransport::WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pWritten,
                                  void* pOverlapped) {
    return ::WriteFile(hFile, pBuffer, nBytes, pWritten, static_cast<OVERLAPPED*>(pOverlapped));
}

BOOL CWinInetTransport::CloseHandle(HANDLE hHandle) {
    return ::CloseHandle(hHandle);
}
