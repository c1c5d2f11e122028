// Win32 message vocabulary (types, message numbers, helpers): <windows.h> on Windows, this small stand-in
// elsewhere.
#pragma once

#if defined(_WIN32)
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// GET_X_LPARAM and GET_Y_LPARAM
#include <windowsx.h>
#else
#include <cstdint>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using UINT = unsigned int;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using HANDLE = void*;
struct HWND__;
using HWND = HWND__*;
struct HINSTANCE__;
using HINSTANCE = HINSTANCE__*;

struct POINT {
    LONG x;
    LONG y;
};
struct SIZE {
    LONG cx;
    LONG cy;
};
struct RECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;

inline constexpr UINT WM_ENABLE = 0x000A;
inline constexpr UINT WM_SHOWWINDOW = 0x0018;
inline constexpr UINT WM_KEYDOWN = 0x0100;
inline constexpr UINT WM_KEYUP = 0x0101;
inline constexpr UINT WM_CHAR = 0x0102;
inline constexpr UINT WM_COMMAND = 0x0111;
inline constexpr UINT WM_TIMER = 0x0113;
inline constexpr UINT WM_MOUSEMOVE = 0x0200;
inline constexpr UINT WM_LBUTTONDOWN = 0x0201;
inline constexpr UINT WM_LBUTTONUP = 0x0202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x0203;
inline constexpr UINT WM_RBUTTONDOWN = 0x0204;
inline constexpr UINT WM_RBUTTONUP = 0x0205;
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;
inline constexpr UINT WM_USER = 0x0400;

inline constexpr WPARAM MK_LBUTTON = 0x0001;
inline constexpr WPARAM MK_RBUTTON = 0x0002;

inline constexpr int VK_LBUTTON = 0x01;
inline constexpr int VK_RBUTTON = 0x02;
inline constexpr int VK_BACK = 0x08;
inline constexpr int VK_TAB = 0x09;
inline constexpr int VK_RETURN = 0x0D;
inline constexpr int VK_SHIFT = 0x10;
inline constexpr int VK_CONTROL = 0x11;
inline constexpr int VK_ESCAPE = 0x1B;
inline constexpr int VK_END = 0x23;
inline constexpr int VK_HOME = 0x24;
inline constexpr int VK_LEFT = 0x25;
inline constexpr int VK_UP = 0x26;
inline constexpr int VK_RIGHT = 0x27;
inline constexpr int VK_DOWN = 0x28;
inline constexpr int VK_DELETE = 0x2E;

inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;

inline constexpr UINT SWP_NOSIZE = 0x0001;
inline constexpr UINT SWP_NOMOVE = 0x0002;
inline constexpr UINT SWP_NOZORDER = 0x0004;
inline constexpr UINT SWP_SHOWWINDOW = 0x0040;
inline constexpr UINT SWP_HIDEWINDOW = 0x0080;

constexpr WORD LOWORD(std::uintptr_t v) {
    return static_cast<WORD>(v & 0xFFFF);
}
constexpr WORD HIWORD(std::uintptr_t v) {
    return static_cast<WORD>((v >> 16) & 0xFFFF);
}
constexpr LPARAM MAKELPARAM(int lo, int hi) {
    return static_cast<LPARAM>((static_cast<DWORD>(hi & 0xFFFF) << 16) | static_cast<DWORD>(lo & 0xFFFF));
}
constexpr WPARAM MAKEWPARAM(int lo, int hi) {
    return static_cast<WPARAM>(MAKELPARAM(lo, hi)) & 0xFFFFFFFFu;
}
constexpr int GET_X_LPARAM(LPARAM lp) {
    return static_cast<short>(LOWORD(static_cast<std::uintptr_t>(lp)));
}
constexpr int GET_Y_LPARAM(LPARAM lp) {
    return static_cast<short>(HIWORD(static_cast<std::uintptr_t>(lp)));
}
#endif
