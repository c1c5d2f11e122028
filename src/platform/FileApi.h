// The system's file handles (CreateFileA, WriteFile; CloseHandle in BaseLib.h), as the image downloader uses
// them.
#pragma once

#include "BaseLib.h"

inline constexpr DWORD GENERIC_WRITE = 0x40000000u;
inline constexpr DWORD GENERIC_READ = 0x80000000u;
inline constexpr DWORD CREATE_ALWAYS = 2;
inline constexpr DWORD OPEN_EXISTING = 3;
inline constexpr DWORD FILE_ATTRIBUTE_NORMAL = 0x80;
inline constexpr DWORD FILE_SHARE_READ = 0x1;
inline constexpr DWORD FILE_SHARE_WRITE = 0x2;
inline const HANDLE INVALID_HANDLE_VALUE = reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(-1));

/// Opens or creates a file (relative to the client directory, or absolute) with GENERIC_READ and/or
/// GENERIC_WRITE. dwShareMode says what other opens of the same file may do while this one is open: a second
/// open that asks for an access the first did not share, or that does not share an access the first holds,
/// fails. CREATE_ALWAYS empties or creates the file, OPEN_EXISTING requires it. Folders are never created.
/// Returns INVALID_HANDLE_VALUE on failure; close the handle with CloseHandle.
HANDLE CreateFileA(const char* szPath, DWORD dwDesiredAccess, DWORD dwShareMode, void* pSecurity,
                               DWORD dwCreationDisposition, DWORD dwFlagsAndAttributes, HANDLE hTemplateFile);
/// Writes nBytes bytes; *pWritten receives how many were written. FALSE on failure.
BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pWritten,
                           void* pOverlapped);
