// The HTTP client operations (WinINet) the image downloader uses.
#pragma once

#include "BaseLib.h"

using HINTERNET = void*;

/// Access type of InternetOpenA: the system's configured proxy settings.
inline constexpr DWORD INTERNET_OPEN_TYPE_PRECONFIG = 0;
/// InternetOpenUrlA flag: always fetch from the server, never from a cache.
inline constexpr DWORD INTERNET_FLAG_RELOAD = 0x80000000u;

/// Opens a session with a user agent; null on failure.
HINTERNET InternetOpenA(const char* szAgent, DWORD dwAccessType, const char* szProxy,
                                    const char* szProxyBypass, DWORD dwFlags);
/// Sends a GET for an http or https address of a session and waits for the response head; null when the
/// address is null or cannot be fetched. NOTE: a response status of 400 or above fails here too (the
/// downloader must not store an error page as a picture).
HINTERNET InternetOpenUrlA(HINTERNET hSession, const char* szUrl, const char* szHeaders,
                                       DWORD dwHeadersLength, DWORD dwFlags, std::uintptr_t dwContext);
/// Reads up to nToRead bytes of the body; *pRead receives the count, 0 at the end of the body. FALSE when
/// the transfer broke (connection reset, body shorter than announced, handle closed).
BOOL InternetReadFile(HINTERNET hFile, void* pBuffer, DWORD nToRead, DWORD* pRead);
/// Closes a session or address handle. Closing it from another thread ends a read blocked on it (or, for a
/// session, on any of its addresses) with FALSE. A handle already closed answers FALSE.
BOOL InternetCloseHandle(HINTERNET hInternet);
