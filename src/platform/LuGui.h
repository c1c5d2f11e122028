// The widget toolkit's dialog manager (LuGui::ILuGuiMgr) and GUI helper, as the simulator uses them.
#pragma once

#include <cstdint>

#include "BaseLib.h"

namespace LuGui {

class CLuDialog;
class CLuEdit;
class CLuLayoutRecord;

/// Plays a named sound for the widget library: name and four values; returns whether it was handled.
using PFN_SoundCallBack = bool (*)(const char* szName, std::int32_t n1, std::int32_t n2, std::int32_t n3,
                                   std::int32_t n4);

/// The dialog manager: owns the layout, creates registered dialogs, routes messages, runs and draws them.
class ILuGuiMgr {
public:
    /// Loads the layout file (below the client directory; a missing language file falls back to
    /// "FlashGui.ini") and remembers the host's handle and value.
    virtual bool Init(HINSTANCE hInstance, std::uint64_t hHost, std::uint32_t nHostValue,
                      const char* szLayoutFile) = 0;
    /// Destroys every window the manager created and the manager itself; the pointer is invalid afterwards.
    virtual void Release() = 0;
    virtual void SetSoundCallBack(PFN_SoundCallBack pfn) = 0;
    /// Creates the dialog's window from its template (the dialog object stays the caller's): PreSetParam,
    /// PreInitData, DoDataExchange, MessageMap; OnInitDialog follows each time the dialog is shown. A dialog
    /// registered again is created again.
    virtual bool RegisterDialog(CLuDialog* pDialog, int nReserved1, int nReserved2) = 0;
    /// First per-frame operation: activation of dialogs that opened inactive, hover tips.
    virtual void Process() = 0;
    /// Second per-frame operation: draws every visible dialog, bottom-most first, then the tips.
    virtual void Show() = 0;
    /// Resets every dialog (their Reset operation) and the manager's input state.
    virtual void Reset(int nReserved) = 0;
    /// Routes one window message; returns non-zero when a dialog consumed it.
    virtual LRESULT MsgProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
    /// Keeps a text for a range of character codes (key: last code << 32 | first code).
    virtual void RegisterRangedString(std::int64_t nKey, const char* szText) = 0;
    /// The host's further call into the manager; the values pass unchanged.
    virtual void ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;

    /// Shows a tip text at a screen point in a colour; it is drawn over every dialog at the end of the next
    /// Show and then forgotten (ask again each frame to keep it).
    virtual void ShowTip(const char* szText, int x, int y, DWORD dwColor) = 0;
    /// The edit that has the keyboard focus (null for none) and giving it.
    virtual CLuEdit* GetFocusEdit() const = 0;
    virtual void SetFocusEdit(CLuEdit* pEdit) = 0;
    /// The record of a layout section, null when the layout has none.
    virtual const CLuLayoutRecord* FindLayout(const char* szSection) const = 0;
    /// The host's window handle given to Init.
    virtual HWND GetHostWindow() const = 0;

protected:
    ~ILuGuiMgr() = default;
};

/// Creates a new dialog manager, owned by the caller until its Release.
ILuGuiMgr* CreateNewGuiMgr();

/// Optional helper of the widget library; null when the library has none.
class IGuiHelper {
public:
    virtual void Start() = 0;

protected:
    ~IGuiHelper() = default;
};
IGuiHelper* GetGuiHelper();

} // namespace LuGui
