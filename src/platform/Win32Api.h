// The Win32 functions and constants the system calls beyond the message vocabulary: the system's own headers
// on Windows, declared here (and implemented by the host libraries) elsewhere.
#pragma once

#include <cstddef>
#include <cstdint>

#include "flashsim/Win32Types.h"

#if defined(_WIN32)
// NOTE: <windows.h> came in lean through flashsim/Win32Types.h, without the old winsock.h, so winsock2.h may
// follow it.
#include <shellapi.h>
#include <shlwapi.h>
#include <winsock2.h>
#else

// ---- time ----------------------------------------------------------------------------------------

DWORD GetTickCount();

// ---- threads -------------------------------------------------------------------------------------

/// The calling convention of thread start routines: the platform's default here (stdcall on 32-bit Windows).
#define WINAPI
using LPTHREAD_START_ROUTINE = DWORD (*)(void* pParam);
/// Thread creation flag: the thread waits for ResumeThread before it runs.
inline constexpr DWORD CREATE_SUSPENDED = 0x4;
/// Lets a thread created suspended run; returns its previous suspend count (1), or 0xFFFFFFFF for a handle
/// that is no thread.
DWORD ResumeThread(HANDLE hThread);
inline constexpr int THREAD_PRIORITY_NORMAL = 0;
inline constexpr int THREAD_PRIORITY_ABOVE_NORMAL = 1;
/// Records a thread's priority (on this platform threads all run at the process's priority).
BOOL SetThreadPriority(HANDLE hThread, int nPriority);
inline constexpr DWORD INFINITE = 0xFFFFFFFFu;
inline constexpr DWORD WAIT_OBJECT_0 = 0;
inline constexpr DWORD WAIT_TIMEOUT = 258;
/// Waits for a thread handle to end; only INFINITE is honoured exactly, any other time polls once.
DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds);
/// Releases a thread or file handle (joining a thread that has ended, detaching one that has not).
BOOL CloseHandle(HANDLE hHandle);

// ---- files ---------------------------------------------------------------------------------------

/// Whether a file or folder exists (an absolute path, or one relative to the client directory).
BOOL PathFileExistsA(const char* szPath);

/// Never read on this platform (no access control, no asynchronous writes); named for the calls' shape.
struct SECURITY_ATTRIBUTES;
struct OVERLAPPED;

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
HANDLE CreateFileA(const char* szPath, DWORD dwDesiredAccess, DWORD dwShareMode,
                   SECURITY_ATTRIBUTES* pSecurity, DWORD dwCreationDisposition, DWORD dwFlagsAndAttributes,
                   HANDLE hTemplateFile);
/// Writes nBytes bytes; *pWritten receives how many were written. FALSE on failure.
BOOL WriteFile(HANDLE hFile, const void* pBuffer, DWORD nBytes, DWORD* pWritten, OVERLAPPED* pOverlapped);

// ---- global memory -------------------------------------------------------------------------------

using HGLOBAL = void*;

inline constexpr UINT GMEM_MOVEABLE = 0x0002;

/// A block of nBytes bytes (at least 1); null when it cannot be had. Free it with GlobalFree.
HGLOBAL GlobalAlloc(UINT uFlags, std::size_t nBytes);
/// The block's bytes, valid until the matching GlobalUnlock; null when the block cannot be locked.
void* GlobalLock(HGLOBAL hMem);
BOOL GlobalUnlock(HGLOBAL hMem);
/// Frees a block (null is accepted); returns null on success, as the system does.
HGLOBAL GlobalFree(HGLOBAL hMem);

// ---- input and screen ----------------------------------------------------------------------------

/// The cursor's position in the game window's client coordinates.
BOOL GetCursorPos(POINT* pPoint);
/// The key's state as of the last message the window received: the high bit (0x8000) is set while it is down.
short GetKeyState(int nVirtKey);

inline constexpr int SM_CXSCREEN = 0;
inline constexpr int SM_CYSCREEN = 1;
/// Screen metrics: SM_CXSCREEN and SM_CYSCREEN give the primary screen's size (0 for anything else).
int GetSystemMetrics(int nIndex);

/// Edit notifications, sent with WM_COMMAND in the high word of wParam.
inline constexpr WORD EN_SETFOCUS = 0x0100;
inline constexpr WORD EN_CHANGE = 0x0300;

// ---- shell ---------------------------------------------------------------------------------------

/// Opens a document or web address with the system's shell; returns a value above 32 on success.
HINSTANCE ShellExecuteA(HWND hWnd, const char* szOperation, const char* szFile, const char* szParameters,
                        const char* szDirectory, int nShowCmd);

// ---- sockets -------------------------------------------------------------------------------------

struct WSADATA {
    WORD wVersion;
    WORD wHighVersion;
};
int WSAStartup(WORD wVersionRequested, WSADATA* pData);
int WSACleanup();
#endif
