// What a screen may ask of the simulator: strings, commands to the host, the selection and scene steps, the
// live lists, quick entries, other screens and the events screens subscribe to.
#pragma once

#include <cstdint>

#include "flashsim/Win32Types.h"
#include "resources/ServerCfg.h"
#include "resources/ServerTypes.h"

/// Kinds of the message box every screen opens.
enum EMessageBoxKind : int {
    MSGBOX_EXIT = 1,          ///< leave the game: OK, Cancel
    MSGBOX_CLEAR_ACCOUNT = 2, ///< forget the remembered account: OK, Cancel
    MSGBOX_ERROR = 3,         ///< error or notice: OK
    MSGBOX_INPUT = 4,         ///< notice about an input: OK
    MSGBOX_NAME_REFUSED = 5,  ///< name refused in the standard creation layout: OK reopens creation
};

/// Steps of the login chain.
enum ELoginStep : int {
    LOGIN_STEP_START = 0,
    LOGIN_STEP_GROUP = 1,
    LOGIN_STEP_SERVER = 2,
    LOGIN_STEP_CLASSIC_LOGIN = 3,
    LOGIN_STEP_MAIN_LOGIN = 4,
};

/// The server facts of SetCreateRoleParam as stored (a forced type 7 to 13 stores the first four as 0).
struct SCreateRoleParam {
    std::int32_t nNewServer = 0;
    std::int32_t nSwitchA = 0;
    std::int32_t nSwitchB = 0;
    std::int32_t nArcher = 0;
    std::int32_t nForcedType = 0; ///< 7 to 13, or 0
    bool bSceneSelect = false;
    std::int32_t nExtra1 = 0;
    std::int32_t nExtra2 = 0;
};

/// Events the simulator sends to every subscribed screen piece; a listener decides whether it is visible
/// enough to care.
class IScreenListener {
public:
    /// The login music was switched by the host.
    virtual void OnMusicChanged(bool bOn) = 0;
    /// The host sent a version text.
    virtual void OnVersionChanged(const char* szVersion) = 0;

protected:
    ~IScreenListener() = default;
};

class IScreenContext {
public:
    // ---- strings and configuration (texts stay valid until the next string reload) ----
    virtual const char* GetStr(std::uint32_t nId) = 0;
    virtual std::int32_t GetStrInt(std::uint32_t nId) = 0;
    /// Whether the table holds the id (a missing id still has a "NOSTR" text).
    virtual bool HasStr(std::uint32_t nId) const = 0;
    virtual void ReloadStrings() = 0;
    /// Configured decorations of (model, 0-based group); null when none.
    virtual const SCfgGroup* GetCfgGroup(int nModel, int nGroup) const = 0;

    // ---- the host ----
    /// Hands a command to the primary, then the secondary callback; nothing when either text is null.
    virtual void NotifyHost(const char* szCommand, const char* szArgument) = 0;
    /// NotifyHost with a number as decimal text.
    void NotifyHostInt(const char* szCommand, int nValue);
    /// NotifyHost with the one-based number of a 0-based index (host indices may be any int).
    void NotifyHostIndex(const char* szCommand, int nIndex);
    /// Acts as if the host had set the variable (screens reuse the host's own vocabulary).
    virtual void SetVariable(const char* szName, const char* szValue) = 0;
    virtual bool IsPlatformModeA() = 0;
    virtual bool IsPlatformModeB() const = 0;
    virtual bool IsTokenEnabled() const = 0;
    /// The host's classic token-only flag: the classic login asks only for the security token.
    virtual bool IsClassicTokenOnly() const = 0;
    /// While the registration page is open, the main login's handlers do nothing.
    virtual bool IsRegisterOpen() const = 0;
    virtual void SetRegisterOpen(bool bOpen) = 0;
    /// The main window's size from "ReSetMainPath" (0 until the host sends one).
    virtual int GetMainPathWidth() const = 0;
    virtual int GetMainPathHeight() const = 0;

    // ---- selection and the login chain (group and server indices 0-based) ----
    virtual int GetModel() const = 0;
    virtual int GetCurGroup() const = 0;
    virtual int GetCurServer() const = 0;
    /// Stores the current group without telling the host.
    virtual void StoreCurGroup(int nGroup) = 0;
    virtual void SetGroup(int nGroup) = 0;
    virtual void OnSelectModel(int nModel) = 0;
    virtual void OnSelectGroup(int nGroup) = 0;
    virtual void OnSelectServer(int nServer) = 0;
    virtual void QuickSelect(int nModel, int nGroup, int nServer) = 0;
    /// One step back in the login chain.
    virtual void OnReturn() = 0;

    // ---- live server lists (indices out of range answer 0, null or false) ----
    virtual int GetGroupCount() const = 0;
    virtual const char* GetGroupName(int nGroup) const = 0;
    /// Servers of the current group.
    virtual int GetServerCount() const = 0;
    virtual const char* GetServerName(int nGroup, int nServer) const = 0;
    virtual const char* GetCurGroupName() const = 0;
    virtual const char* GetCurServerName() const = 0;
    /// Players x 100 / capacity of server n of the current group; -1 in maintenance; 0 when there is none.
    virtual float GetServerLoad(int nServer) const = 0;
    virtual bool IsGroupAchTip(int nGroup) const = 0;
    /// Server n of the current group shows its achievement tip.
    virtual bool IsServerAchTip(int nServer) const = 0;

    // ---- quick entries and remembered accounts ----
    virtual int GetQuickEntryCount() const = 0;
    virtual const SQuickEntry* GetQuickEntry(int nIndex) const = 0;
    virtual void DeleteQuickEntry(int nIndex) = 0;
    virtual void ReplaceQuickEntry(const SQuickEntry& entry, int nReplaceIndex) = 0;
    /// The current selection as a record (1-based numbers, names from the lists).
    virtual void FillQuickEntry(SQuickEntry& entry) const = 0;
    /// Adds a record and tells the host: 0 added, 1 already present, 2 the list is full (nothing changes).
    virtual int AddQuickEntry(const SQuickEntry& entry) = 0;
    virtual int GetRecAccountCount() const = 0;
    virtual const char* GetRecAccount(int nIndex) const = 0;

    // ---- music and version ----
    virtual bool IsMusicOn() const = 0;
    /// Switches the login music on or off (the track restarts when switched on).
    virtual void SetMusic(bool bOn) = 0;
    /// The host's version text; empty until it sends one.
    virtual const char* GetVersion() const = 0;

    // ---- other screens ----
    /// Opens the message box; for the error and input kinds with a text (null keeps the current one).
    virtual void ShowMessageBox(int nKind, const char* szText) = 0;
    virtual void ShowSwitchLanguage() = 0;
    /// Shows or hides the screen with a dialog template id; nothing for an unknown id. Showing the WeChat
    /// login (1011) opens it on its QR page.
    virtual void ShowScreen(UINT nTemplateId, bool bShow) = 0;
    /// Opens a non-empty web address with the system's shell.
    virtual void OpenWebAddress(const char* szAddress) = 0;
    /// Opens a page of a kind (7: the embedded browser) and a layout record in the registration dialog and
    /// shows it.
    virtual void OpenWebRegisterPage(int nKind, int nLayoutId, const char* szUrl) = 0;

    // ---- the international picker and role list (group and server indices 0-based) ----
    /// Servers of any group (0 for a group that does not exist).
    virtual int GetServerCountOf(int nGroup) const = 0;
    virtual float GetServerLoadOf(int nGroup, int nServer) const = 0;
    virtual bool IsServerAchTipOf(int nGroup, int nServer) const = 0;
    /// The current server, announced with CMD_SELECTSERVER (server + 1).
    virtual void SelectServer(int nServer) = 0;
    /// The selection the host remembers (its GetSelection and SetSelection).
    virtual void RememberSelection(int nGroup, int nServer) = 0;
    virtual bool GetRememberedSelection(int& nGroup, int& nServer) const = 0;
    /// The main login shows a group and server as chosen, without telling the host.
    virtual void ShowChosenServer(int nGroup, int nServer) = 0;
    /// The main login shows the current group and server and tells the host (its UpdateServerLabel).
    virtual void RefreshServerLabel() = 0;
    /// Opens the server role list for a group and server.
    virtual void ShowServerRoleList(int nGroup, int nServer) = 0;

    // ---- character creation ----
    virtual const SCreateRoleParam& GetCreateRoleParam() const = 0;
    /// The selected server's record exists and has its achievement tip set (bAchTips).
    virtual bool IsSelectedServerAchTips() const = 0;
    /// Profession 70 may be created ("DarkKnightCanCrate").
    virtual bool IsDarkKnightAllowed() const = 0;
    /// The English layout's name check: whether the host reported the name as checked, and the stored flags
    /// (checked false clears it; the role-ready flag is stored only with bUpdateReady).
    virtual bool IsNameChecked() = 0;
    virtual void SetNameCheck(bool bChecked, bool bReady, bool bUpdateReady) = 0;
    /// What the English registration records for the host to read back.
    virtual void SetProfession(std::int32_t nProfession) = 0;
    virtual void SetModelFace(std::int32_t nFace) = 0;
    virtual void SetBaseInfoIndex(std::int32_t nIndex) = 0;
    /// Stores the look modulo 2.
    virtual void SetLookParity(std::int32_t nLook) = 0;

    // ---- events ----
    /// The listener must stay alive until RemoveListener or the simulator's end.
    virtual void AddListener(IScreenListener* pListener) = 0;
    virtual void RemoveListener(IScreenListener* pListener) = 0;

protected:
    ~IScreenContext() = default;
};

/// The process-wide simulator as screens see it; null before the host's query and after its destroy.
IScreenContext* ScreenContext();
