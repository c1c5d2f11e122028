// The simulator: the host's interface, the screens' context, the owner of dialogs, strings, lists and state.
#pragma once

#include <memory>
#include <vector>

#include "flashsim/IFlashSimulator.h"
#include "platform/LuGui.h"
#include "resources/FlashStringMgr.h"
#include "resources/ServerLists.h"
#include "screen/ScreenContext.h"
#include "simulator/SimulatorState.h"

class CDialogSet;

class CFlashSimulator final : public IFlashSimulator, public IScreenContext {
public:
    CFlashSimulator();
    ~CFlashSimulator();

    // ---- IFlashSimulator (slot order) ------------------------------------------------------------
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

    // ---- IScreenContext (what IFlashSimulator does not already declare) --------------------------
    bool HasStr(std::uint32_t nId) const override { return m_strMgr.HasStr(nId); }
    const SCfgGroup* GetCfgGroup(int nModel, int nGroup) const override;
    void NotifyHost(const char* szCommand, const char* szArgument) override;
    bool IsPlatformModeB() const override { return m_state.m_bPlatformModeB; }
    bool IsTokenEnabled() const override { return m_state.m_bTokenEnabled; }
    bool IsClassicTokenOnly() const override { return m_state.m_bClassicTokenOnly; }
    bool IsRegisterOpen() const override { return m_state.m_bRegisterOpen; }
    void SetRegisterOpen(bool bOpen) override { m_state.m_bRegisterOpen = bOpen; }
    int GetMainPathWidth() const override { return m_state.m_nMainPathWidth; }
    int GetMainPathHeight() const override { return m_state.m_nMainPathHeight; }
    int GetModel() const override { return m_state.m_nModel; }
    int GetCurGroup() const override { return m_state.m_nGroup; }
    int GetCurServer() const override { return m_state.m_nServer; }
    void StoreCurGroup(int nGroup) override { m_state.m_nGroup = nGroup; }
    void SetGroup(int nGroup) override;
    void OnSelectModel(int nModel) override;
    void OnSelectGroup(int nGroup) override;
    void OnSelectServer(int nServer) override;
    void QuickSelect(int nModel, int nGroup, int nServer) override;
    void OnReturn() override;
    int GetGroupCount() const override { return m_lists.GetGroupCount(); }
    const char* GetGroupName(int nGroup) const override { return m_lists.GetGroupName(nGroup); }
    int GetServerCount() const override { return m_lists.GetServerCount(m_state.m_nGroup); }
    const char* GetServerName(int nGroup, int nServer) const override;
    const char* GetCurGroupName() const override;
    const char* GetCurServerName() const override;
    float GetServerLoad(int nServer) const override;
    bool IsGroupAchTip(int nGroup) const override { return m_lists.IsGroupAchTip(nGroup); }
    bool IsServerAchTip(int nServer) const override;
    int GetQuickEntryCount() const override { return static_cast<int>(m_state.m_vecQuickEntry.size()); }
    const SQuickEntry* GetQuickEntry(int nIndex) const override;
    void DeleteQuickEntry(int nIndex) override;
    void ReplaceQuickEntry(const SQuickEntry& entry, int nReplaceIndex) override;
    void FillQuickEntry(SQuickEntry& entry) const override;
    int AddQuickEntry(const SQuickEntry& entry) override;
    int GetRecAccountCount() const override { return static_cast<int>(m_state.m_vecRecAccount.size()); }
    const char* GetRecAccount(int nIndex) const override;
    bool IsMusicOn() const override { return m_state.m_bMusicOn; }
    void SetMusic(bool bOn) override;
    const char* GetVersion() const override { return m_state.m_strVersion.c_str(); }
    void ShowMessageBox(int nKind, const char* szText) override;
    void ShowScreen(UINT nTemplateId, bool bShow) override;
    void OpenWebAddress(const char* szAddress) override;
    void OpenWebRegisterPage(int nKind, int nLayoutId, const char* szUrl) override;
    int GetServerCountOf(int nGroup) const override { return m_lists.GetServerCount(nGroup); }
    float GetServerLoadOf(int nGroup, int nServer) const override {
        return m_lists.GetServerLoad(nGroup, nServer);
    }
    bool IsServerAchTipOf(int nGroup, int nServer) const override {
        return m_lists.IsServerAchTip(nGroup, nServer);
    }
    void SelectServer(int nServer) override { SetServer(nServer, false); }
    void RememberSelection(int nGroup, int nServer) override { SetSelection(true, nGroup, nServer); }
    bool GetRememberedSelection(int& nGroup, int& nServer) const override;
    void ShowChosenServer(int nGroup, int nServer) override;
    void RefreshServerLabel() override;
    void ShowServerRoleList(int nGroup, int nServer) override;
    const SCreateRoleParam& GetCreateRoleParam() const override { return m_state.m_createRoleParam; }
    bool IsSelectedServerAchTips() const override;
    bool IsDarkKnightAllowed() const override { return m_state.m_bDarkKnight; }
    void AddListener(IScreenListener* pListener) override;
    void RemoveListener(IScreenListener* pListener) override;

    // ---- the simulator's own parts (variable protocol, scene driver, tests) -----------------------
    void SetServer(int nServer, bool bOutside);
    bool IsGroupFirstLanguage() const;
    bool IsAchServer() const;
    int GetForcedTypeIndex() const;
    CDialogSet& Dialogs() { return *m_pDialogs; }
    SSimulatorState& State() { return m_state; }
    CServerLists& Lists() { return m_lists; }
    CFlashStringMgr& GetStringMgr() { return m_strMgr; }
    LuGui::ILuGuiMgr* GetGuiMgr() const { return m_pGuiMgr; }
    const std::vector<IScreenListener*>& Listeners() const { return m_vecListeners; }

private:
    // NOTE: dialogs are built first and destroyed last; the listeners outlive the frames that leave them.
    std::vector<IScreenListener*> m_vecListeners;
    std::unique_ptr<CDialogSet, void (*)(CDialogSet*)> m_pDialogs;
    LuGui::ILuGuiMgr* m_pGuiMgr;
    SSimulatorState m_state;
    CServerLists m_lists;
    CFlashStringMgr m_strMgr;
};

/// The process-wide simulator, or null before FlashSimulatorQuery and after FlashSimulatorDestroy.
CFlashSimulator* FlashSim();
/// Creates the simulator on first use (zero-filled, then constructed); null when allocation fails.
CFlashSimulator* FlashSimQuery();
/// Destroys the simulator; nothing when there is none.
void FlashSimDestroy();
