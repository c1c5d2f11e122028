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

class CFlashSimulator final : public IFlashSimulator {
public:
    static constexpr const char* LAYOUT_BASE_NAME = "FlashGui";
    static constexpr std::size_t LAYOUT_NAME_SIZE = 260;
    static constexpr std::uint32_t STR_GUI_HELPER_SWITCH = 3500000;
    static constexpr std::uint32_t STR_PLAYER_LIST_ADDRESS = 8000176;
    static constexpr std::uint32_t STR_PLAYER_LIST_NUMBER = 8000177;
    static constexpr const char* MUSIC_FILE = "Sound/backGround.mp3";
    static constexpr const char* MUSIC_VOLUME_SETTING = "gMusicVolume";

    CFlashSimulator();
    ~CFlashSimulator();

    // ---- IFlashSimulator
    // --------------------------------------------------------------------------------------
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

    // ---- operations for the dialogs
    // ---------------------------------------------------------------------------
    /// Hands a command to the primary, then the secondary callback; nothing when either text is null.
    void NotifyHost(const char* szCommand, const char* szArgument);
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
    std::int32_t m_nFillGroup;
    std::int32_t m_nModel;
    std::int32_t m_nGroup;
    std::int32_t m_nServer;
    std::int32_t m_nLoginStep;
    std::vector<CZrString> m_vecRecAccount;
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
