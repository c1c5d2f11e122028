// The simulator object: owns every dialog, the dialog manager, the string table and the state the host
// drives.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "controls/WebBrowserEn.h"
#include "flashsim/IFlashSimulator.h"
#include "login/DlgFlashLogin.h"
#include "login/DlgFlashLoginEn.h"
#include "login/DlgFlashSwitchLanguageEn.h"
#include "login/DlgNewFlashLogin.h"
#include "login/DlgRememberAccount.h"
#include "login/DlgScanCodeLoginEn.h"
#include "login/DlgWardSafeToken.h"
#include "login/DlgWebRegisterEn.h"
#include "login/DlgWeiXinLogin.h"
#include "platform/LuGui.h"
#include "platform/ZrString.h"
#include "resources/FlashStringMgr.h"
#include "rolecreate/DlgFlashAction.h"
#include "rolecreate/DlgFlashBG.h"
#include "rolecreate/DlgFlashBack.h"
#include "rolecreate/DlgFlashBaseInfo.h"
#include "rolecreate/DlgFlashCharacterEn.h"
#include "rolecreate/DlgFlashConfirm.h"
#include "rolecreate/DlgFlashCreateRole.h"
#include "rolecreate/DlgFlashProIntro.h"
#include "rolecreate/DlgFlashSceneSelect.h"
#include "rolecreate/DlgFlashSelectHead.h"
#include "rolecreate/DlgFlashSelectPro.h"
#include "servers/DlgAddQuickEntry.h"
#include "servers/DlgSelectEdition.h"
#include "servers/DlgSelectGroup.h"
#include "servers/DlgSelectServer.h"
#include "simulator/ServerTypes.h"

class CFlashSimulator final : public IFlashSimulator {
public:
    static constexpr const char* LAYOUT_BASE_NAME = "FlashGui";
    static constexpr std::size_t LAYOUT_NAME_SIZE = 260;
    static constexpr std::uint32_t STR_GUI_HELPER_SWITCH = 3500000;
    static constexpr std::uint32_t STR_PLAYER_LIST_ADDRESS = 8000176;
    static constexpr std::uint32_t STR_PLAYER_LIST_NUMBER = 8000177;
    static constexpr const char* MUSIC_FILE = "Sound/backGround.mp3";
    static constexpr const char* MUSIC_VOLUME_SETTING = "gMusicVolume";
    static constexpr std::uint32_t STR_AGREEMENT_NOT_TICKED = 8000102;

    static constexpr int LOGIN_STEP_START = 0;
    static constexpr int LOGIN_STEP_GROUP = 1;
    static constexpr int LOGIN_STEP_SERVER = 2;
    static constexpr int LOGIN_STEP_CLASSIC_LOGIN = 3;
    static constexpr int LOGIN_STEP_MAIN_LOGIN = 4;

    CFlashSimulator();
    ~CFlashSimulator();

    // ---- IFlashSimulator -------------------------------------------------------------------------
    void Create(std::uint64_t hHost, std::uint32_t nHostValue, std::int32_t nLanguage,
                bool bRegister) override;
    void SetCallBack(FlashCallBack pfn) override;
    void SetCallBackEx(FlashCallBack pfn) override;
    void SetVariable(const char* szName, const char* szValue) override;
    void ShowMessage(std::uint32_t nStrId) override;
    const char* GetVariable(const char* szName) override;
    void Process() override;
    void Show() override;
    LRESULT WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    std::int32_t PreTranslateMessage(MSG* pMsg) override;
    bool IsWebRegisterVisible() override;
    void SetSceneType(std::int32_t eScene) override;
    const char* GetStr(std::uint32_t nId) override;
    std::int32_t GetStrInt(std::uint32_t nId) override;
    void SetCreateRoleParam(std::int32_t nNewServer, std::int32_t nSwitchA, std::int32_t nSwitchB,
                            std::int32_t nArcher, std::int32_t nForcedType, bool bSceneSelect,
                            std::int32_t nExtra1, std::int32_t nExtra2) override;
    void SetClassicTokenOnly(bool bOnly) override;
    void SetPlatformModeA(bool bOn) override;
    void SetPlatformModeB(bool bOn) override;
    bool IsPlatformModeA() override;
    bool IsNameChecked() override;
    bool IsRoleReady() override;
    void SetNameCheck(bool bChecked, bool bReady, bool bUpdateReady) override;
    void SetProfession(std::int32_t nProfession) override;
    std::int32_t GetProfession() override;
    void SetModelFace(std::int32_t nFace) override;
    std::int32_t GetModelFace() override;
    void SetLookParity(std::int32_t nLook) override;
    std::int32_t GetLookParity() override;
    void SetBaseInfoIndex(std::int32_t nIndex) override;
    std::int32_t GetBaseInfoIndex() override;
    void SetLoginOption(std::int32_t nOption) override;
    std::int32_t GetLoginOption() override;
    bool SetNameSuggest(std::int32_t nValue) override;
    bool GetNameSuggest() override;
    void FocusAccountField() override;
    void SetRandomName(const char* szName, std::int32_t nLength) override;
    bool IsNameUnchanged() override;
    HANDLE StartPlayerListThread() override;
    bool GetSelection(std::int32_t* pFirst, std::int32_t* pSecond) override;
    void SetSelection(bool bSet, std::int32_t nFirst, std::int32_t nSecond) override;
    void SetPlayerListArg(std::int32_t nArg) override;
    std::int32_t GetPlayerListArg() override;
    void ShowSwitchLanguage() override;
    void ReloadStrings() override;
    void RegisterRangedStrings() override;
    void ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void RegisterRole() override;

    // ---- operations for the dialogs --------------------------------------------------------------
    /// Hands a command to the primary, then the secondary callback; nothing when either text is null.
    void NotifyHost(const char* szCommand, const char* szArgument);
    /// NotifyHost with a number as decimal text.
    void NotifyHostInt(const char* szCommand, int nValue);
    /// NotifyHost with the one-based number of a 0-based index (host indices may be any int).
    void NotifyHostIndex(const char* szCommand, int nIndex);

    // Live server lists (indices out of range answer 0, null or false).
    int GetGroupCount() const;
    const char* GetGroupName(int nGroup) const;
    /// Servers of the current group.
    int GetServerCount() const;
    int GetServerCountOf(int nGroup) const;
    const char* GetServerName(int nGroup, int nServer) const;
    /// Server of the current group.
    const char* GetServerNameInGroup(int nServer) const;
    const char* GetCurGroupName() const;
    const char* GetCurServerName() const;
    const SServerGroup* GetGroup(int nGroup) const;
    const SServerItem* GetServer(int nGroup, int nServer) const;
    /// Players x 100 / capacity of the current server; -1 in maintenance; 0 when none is selected.
    float GetCurServerLoad() const;
    /// The same for server n of the current group.
    float GetServerLoad(int nServer) const;
    /// Achievement window state of live server (g, s) at the local time: 0 before, 1 inside, 2 after or
    /// invalid.
    int GetAchState(int nGroup, int nServer) const;
    /// Group g shows its achievement tip: its flag is set and one of its servers is inside its window.
    bool IsGroupAchTip(int nGroup) const;
    /// Server s of the current group shows its achievement tip.
    bool IsServerAchTip(int nServer) const;
    /// The current server exists, carries an achievement tip and switch A is on.
    bool IsAchServer() const;
    /// Empties every group's servers, then the group list.
    void ClearGroups();

    // Scene driver.
    bool IsGroupFirstLanguage() const;
    void OnSelectModel(int nModel);
    void OnSelectGroup(int nGroup);
    void OnSelectServer(int nServer);
    void SetGroup(int nGroup);
    void SetServer(int nServer, bool bOutside);
    void QuickSelect(int nModel, int nGroup, int nServer);
    void OnReturn();
    int GetModel() const { return m_nModel; }
    int GetCurGroup() const { return m_nGroup; }
    /// Stores the current group without telling the host.
    void StoreCurGroup(int nGroup) { m_nGroup = nGroup; }
    int GetCurServer() const { return m_nServer; }
    int GetLoginStep() const { return m_nLoginStep; }

    // Quick entries.
    /// 0 added, 1 already present, 2 list full.
    int AddQuickEntry(const SQuickEntry& entry);
    void ReplaceQuickEntry(const SQuickEntry& entry, int nReplaceIndex);
    void DeleteQuickEntry(int nIndex);
    void FillQuickEntry(SQuickEntry& entry) const;
    int GetQuickEntryCount() const { return static_cast<int>(m_vecQuickEntry.size()); }
    const SQuickEntry* GetQuickEntry(int nIndex) const;

    // Remembered accounts, version, register-open state.
    int GetRecAccountCount() const { return static_cast<int>(m_vecRecAccount.size()); }
    const char* GetRecAccount(int nIndex) const;
    const char* GetVersion() const { return m_strVersion.c_str(); }
    bool IsRegisterOpen() const { return m_bRegisterOpen; }
    void SetRegisterOpen(bool bOpen) { m_bRegisterOpen = bOpen; }
    int GetMainPathWidth() const { return m_nMainPathWidth; }
    int GetMainPathHeight() const { return m_nMainPathHeight; }
    CDlgFlashConfirm& GetConfirmDialog() { return m_dlgConfirm; }
    CDlgFlashBack& GetBackDialog() { return m_dlgBack; }
    CDlgSelectEdition& GetEditionDialog() { return m_dlgSelectEdition; }
    CDlgWebRegisterEn& GetWebRegisterDialog() { return m_dlgWebRegister; }
    CDlgScanCodeLoginEn& GetScanCodeDialog() { return m_dlgScanCodeLogin; }
    CDlgFlashLoginEn& GetServerPickerDialog() { return m_dlgFlashLoginEn; }
    CDlgWeiXinLogin& GetWeiXinDialog() { return m_dlgWeiXinLogin; }
    CDlgAddQuickEntry& GetAddQuickEntryDialog() { return m_dlgAddQuickEntry; }
    CDlgSelectGroup& GetGroupDialog() { return m_dlgSelectGroup; }
    CDlgSelectServer& GetServerDialog() { return m_dlgSelectServer; }
    CDlgFlashBG& GetBackdropDialog() { return m_dlgBG; }
    CDlgNewFlashLogin& GetNewFlashLoginDialog() { return m_dlgNewFlashLogin; }
    /// Switches the login music on or off (the track restarts when switched on).
    void SetMusic(bool bOn);
    bool IsMusicOn() const { return m_bMusicOn; }
    /// Opens a non-empty web address with the system's shell.
    void OpenWebAddress(const char* szAddress);

    int GetNewServerValue() const { return m_nNewServer; }
    bool IsSwitchB() const { return m_nSwitchB > 0; }
    /// The forced profession type as a column index: 8, 7, 11, 9, 10, 12, 13 give 0 to 6; anything else 0.
    int GetForcedTypeIndex() const;
    bool IsDarkKnightOn() const { return m_bDarkKnight; }
    bool IsTokenEnabled() const { return m_bTokenEnabled; }
    bool IsClassicTokenOnly() const { return m_bClassicTokenOnly; }
    bool IsPlatformModeB() const { return m_bPlatformModeB; }
    int GetLanguage() const { return m_nLanguage; }
    ESceneType GetSceneType() const { return m_eSceneType; }
    LuGui::ILuGuiMgr* GetGuiMgr() const { return m_pGuiMgr; }
    CFlashStringMgr& GetStringMgr() { return m_strMgr; }

private:
    // Variable protocol.
    using VariableHandler = void (CFlashSimulator::*)(const char* szValue);
    void OnLoginVariable(const char* szName, const char* szValue);
    void OnRoleCreateVariable(const char* szName, const char* szValue);
    const char* GetLoginVariable(const char* szName);
    static VariableHandler FindHandler(bool bLogin, const char* szName);
    friend struct VariableTables;

    void VarMainPath(const char* szValue);
    void VarLoginPass(const char* szValue);
    void VarFocusToFlash(const char* szValue);
    void VarPwdIncorrect(const char* szValue);
    /// The field number VAR_FOCUS answers.
    int FocusedInputField();
    void VarQuickLogin(const char* szValue);
    void VarPlayLogin(const char* szValue);
    void VarAreaAchTips(const char* szValue);
    void VarCurVer(const char* szValue);
    void VarServerArea(const char* szValue);
    void VarServerName(const char* szValue);
    void VarServerStatus(const char* szValue);
    void VarQuickRecord(const char* szValue);
    void VarSetRecAccount(const char* szValue);
    void VarVersion(const char* szValue);
    void VarMusic(const char* szValue);
    void VarMusicSwitch(const char* szValue);
    void VarSetKeyDown(const char* szValue);
    void VarQrCodeLogin(const char* szValue);
    void VarWeiXinLogin(const char* szValue);
    void VarShowExit(const char* szValue);
    void VarEnableToken(const char* szValue);
    void VarGameBackLogin(const char* szValue);
    void VarLoginError(const char* szValue);
    void VarSetRegisterOpen(const char* szValue);
    void VarResetMainPath(const char* szValue);
    void VarLoginUser(const char* szValue);
    void VarLogProtect(const char* szValue);
    void VarSafeToken(const char* szValue);
    void VarLoginHelmSafe(const char* szValue);
    void VarNoEffect(const char* szValue);
    void VarDialogPending(const char* szValue);
    void VarPlayLoginWardSafeToken(const char* szValue);
    void VarStartToFlash(const char* szValue);
    void VarEndToFlash(const char* szValue);
    void VarRoleSetMainPath(const char* szValue);
    void VarDarkKnight(const char* szValue);
    void VarShowCreateWnd(const char* szValue);
    void OnAccountLoginKey();

    void SendSpecialServerSignal(int nServer);

    void RegisterDialogs();
    void SwitchGuiHelper();
    static bool OnGuiSound(const char* szName, std::int32_t n1, std::int32_t n2, std::int32_t n3,
                           std::int32_t n4);
    static DWORD PlayerListThread(void* pParam);

    // Dialogs, in construction order (destroyed in the reverse order).
    CDlgFlashBG m_dlgBG;
    CDlgSelectEdition m_dlgSelectEdition;
    CDlgSelectGroup m_dlgSelectGroup;
    CDlgSelectServer m_dlgSelectServer;
    CDlgFlashLogin m_dlgFlashLogin;
    CDlgFlashConfirm m_dlgConfirm;
    CDlgRememberAccount m_dlgRememberAccount;
    CDlgAddQuickEntry m_dlgAddQuickEntry;
    CDlgFlashCreateRole m_dlgCreateRole;
    CDlgFlashSelectPro m_dlgSelectPro;
    CDlgFlashSelectHead m_dlgSelectHead;
    CDlgWeiXinLogin m_dlgWeiXinLogin;
    CDlgNewFlashLogin m_dlgNewFlashLogin;
    CDlgFlashLoginEn m_dlgFlashLoginEn;
    CDlgFlashCharacterEn m_dlgCharacterEn;
    CDlgWardSafeToken m_dlgWardSafeToken;
    CDlgFlashAction m_dlgAction;
    CDlgFlashBaseInfo m_dlgBaseInfo;
    CDlgFlashProIntro m_dlgProIntro;
    CDlgFlashBack m_dlgBack;
    CDlgWebRegisterEn m_dlgWebRegister;
    CDlgScanCodeLoginEn m_dlgScanCodeLogin;
    CWebBrowserEn m_webBrowser;
    CDlgFlashSwitchLanguageEn m_dlgSwitchLanguage;
    CDlgFlashSceneSelect m_dlgSceneSelect;

    bool m_bCreated;
    LuGui::ILuGuiMgr* m_pGuiMgr;
    FlashCallBack m_pfnCallBack;
    FlashCallBack m_pfnCallBackEx;
    std::vector<SServerGroup> m_vecServerGroup;
    std::int32_t m_nFillGroup;
    std::int32_t m_nModel;
    std::int32_t m_nGroup;
    std::int32_t m_nServer;
    std::int32_t m_nLoginStep;
    std::vector<CZrString> m_vecRecAccount;
    std::vector<SQuickEntry> m_vecQuickEntry;
    std::string m_strVersion;
    bool m_bNameChecked;
    bool m_bRoleReady;
    std::int32_t m_nSelFirst;
    std::int32_t m_nSelSecond;
    bool m_bSelSet;
    CFlashStringMgr m_strMgr;
    ESceneType m_eSceneType;
    bool m_bMusicOn;
    std::int32_t m_nLanguage;
    std::int32_t m_nProfession;
    std::int32_t m_nModelFace;
    std::int32_t m_nLookParity;
    std::int32_t m_nBaseInfoIndex;
    std::int32_t m_nLoginOption;
    bool m_bNameSuggest;
    bool m_bDarkKnight;
    std::int32_t m_nNewServer;
    std::int32_t m_nSwitchA;
    std::int32_t m_nSwitchB;
    std::int32_t m_nForcedType;
    std::int32_t m_nMainPathWidth;
    std::int32_t m_nMainPathHeight;
    bool m_bClassicTokenOnly;
    bool m_bPlatformModeB;
    bool m_bPlatformModeA;
    bool m_bTokenEnabled;
    std::int32_t m_nPlayerListArg;
    bool m_bRegisterOpen;
    bool m_bSceneSelectOption;
    std::int32_t m_nExtra1;
    std::int32_t m_nExtra2;
};

/// The process-wide simulator, or null before FlashSimulatorQuery and after FlashSimulatorDestroy.
CFlashSimulator* FlashSim();
/// Creates the simulator on first use (zero-filled, then constructed); null when allocation fails.
CFlashSimulator* FlashSimQuery();
/// Destroys the simulator; nothing when there is none.
void FlashSimDestroy();
