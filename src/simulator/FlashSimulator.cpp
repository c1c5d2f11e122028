// The simulator object: creation, per-frame calls, the interface operations, commands to the host,
// destruction.
//
// Index: singleton and helpers; construction and destruction; creation; callbacks and commands; per-frame
// calls and messages; variables and scenes; strings; creation parameters and stored values; music; player
// list; the screens' context.
#include "simulator/FlashSimulator.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

#include "common/SysLog.h"
#include "platform/BaseLib.h"
#include "platform/GameData.h"
#include "platform/Log.h"
#include "platform/RoleLib.h"
#include "platform/Sound.h"
#include "simulator/DialogSet.h"
#include "simulator/MirageApp.h"
#include "simulator/VariableProtocol.h"

namespace {
CFlashSimulator* g_pFlashSimulator = nullptr;

// Statistics events sent once per process, whatever simulator objects come and go.
bool g_bOnceEvent411 = true;
bool g_bOnceEvent412 = true;

constexpr int DUMP_PROCESS_BEGIN = 5004230;
constexpr int DUMP_PROCESS_TIPS = 5004231;
constexpr int DUMP_PROCESS_SOUND = 5004232;
constexpr int DUMP_PROCESS_END = 5004233;
constexpr int DUMP_SHOW_BEGIN = 5004234;
constexpr int DUMP_SHOW_END = 5004235;

constexpr const char* LAYOUT_BASE_NAME = "FlashGui";
constexpr std::size_t LAYOUT_NAME_SIZE = 260;
constexpr std::uint32_t STR_GUI_HELPER_SWITCH = 3500000;
constexpr std::uint32_t STR_PLAYER_LIST_ADDRESS = 8000176;
constexpr std::uint32_t STR_PLAYER_LIST_NUMBER = 8000177;
constexpr const char* MUSIC_FILE = "Sound/backGround.mp3";
constexpr const char* MUSIC_VOLUME_SETTING = "gMusicVolume";

constexpr int FORCED_TYPE_FIRST = 7;
constexpr int FORCED_TYPE_LAST = 13;
constexpr int PROFESSION_WITH_SCENE_CHOICE = 100;
constexpr WORD WINSOCK_VERSION_1_1 = 0x0101;
constexpr int SHOW_NORMAL = 5;

// Zero-filled like the simulator itself: the dialogs were members of that zero-filled object.
CDialogSet* NewZeroFilledDialogs() {
    void* memory = ::operator new(sizeof(CDialogSet));
    std::memset(memory, 0, sizeof(CDialogSet));
    try {
        return new (memory) CDialogSet();
    } catch (...) {
        ::operator delete(memory);
        throw;
    }
}

void DeleteZeroFilledDialogs(CDialogSet* pDialogs) {
    pDialogs->~CDialogSet();
    ::operator delete(pDialogs);
}

bool OnGuiSound(const char* szName, std::int32_t n1, std::int32_t n2, std::int32_t n3, std::int32_t n4) {
    if (!TestSoundFormat(szName)) {
        RoleDataQuery()->PlaySoundByName(szName);
        return true;
    }
    return DXPlaySound(szName, n1, n2, n3, n4, "", true) != nullptr;
}

// What the player-list worker needs, copied for it: it shares nothing with the host's thread.
struct SPlayerListJob {
    std::string strAddress;
    int nNumber = 0;
    int nArg = 0;
};

DWORD WINAPI PlayerListThread(void* pParam);
} // namespace

CFlashSimulator* FlashSim() {
    return g_pFlashSimulator;
}

IScreenContext* ScreenContext() {
    return g_pFlashSimulator;
}

CFlashSimulator* FlashSimQuery() {
    if (g_pFlashSimulator) return g_pFlashSimulator;
    void* memory = ::operator new(sizeof(CFlashSimulator), std::nothrow);
    if (!memory) return nullptr;
    // The host relies on every value the constructor does not set being zero.
    std::memset(memory, 0, sizeof(CFlashSimulator));
    try {
        g_pFlashSimulator = new (memory) CFlashSimulator();
    } catch (...) {
        ::operator delete(memory);
        g_pFlashSimulator = nullptr;
    }
    return g_pFlashSimulator;
}

void FlashSimDestroy() {
    if (!g_pFlashSimulator) return;
    CFlashSimulator* sim = g_pFlashSimulator;
    sim->~CFlashSimulator();
    ::operator delete(sim);
    g_pFlashSimulator = nullptr;
}

// ---- construction and destruction ----------------------------------------------------------------

CFlashSimulator::CFlashSimulator()
    : m_pDialogs(NewZeroFilledDialogs(), &DeleteZeroFilledDialogs), m_pGuiMgr(LuGui::CreateNewGuiMgr()) {
}

CFlashSimulator::~CFlashSimulator() {
    if (m_pGuiMgr) {
        m_pGuiMgr->Release();
        m_pGuiMgr = nullptr;
    }
    // The remaining members (strings, lists, then the dialogs in reverse order) go with the object.
}

// ---- creation ------------------------------------------------------------------------------------

void CFlashSimulator::Create(std::uint64_t hHost, std::uint32_t nHostValue, std::int32_t nLanguage,
                             bool bRegister) {
    if (m_state.m_bCreated) return;
    m_state.m_bCreated = true;
    m_state.m_nLanguage = nLanguage;

    char szLayout[LAYOUT_NAME_SIZE];
    if (nLanguage < 1)
        SafeSprintf(szLayout, sizeof szLayout, "%s.ini", LAYOUT_BASE_NAME);
    else
        SafeSprintf(szLayout, sizeof szLayout, "%s_%d.ini", LAYOUT_BASE_NAME, nLanguage);
    if (m_pGuiMgr) m_pGuiMgr->Init(TheApp().m_hInstance, hHost, nHostValue, szLayout);

    m_strMgr.Load();
    RegisterRangedStrings();
    if (!bRegister) return;
    if (!m_pGuiMgr) return;
    m_pGuiMgr->SetSoundCallBack(&OnGuiSound);
    m_pDialogs->RegisterAll(*m_pGuiMgr);
    LuGui::IGuiHelper* helper = LuGui::GetGuiHelper();
    if (helper && GetStrInt(STR_GUI_HELPER_SWITCH) != 0) helper->Start();
}

// ---- callbacks and commands ----------------------------------------------------------------------

void CFlashSimulator::SetCallBack(FlashCallBack pfn) {
    if (m_state.m_bCreated) m_state.m_pfnCallBack = pfn;
}

void CFlashSimulator::SetCallBackEx(FlashCallBack pfn) {
    m_state.m_pfnCallBackEx = pfn;
}

void CFlashSimulator::NotifyHost(const char* szCommand, const char* szArgument) {
    if (!szCommand || !szArgument) return;
    if (m_state.m_pfnCallBack) m_state.m_pfnCallBack(szCommand, szArgument);
    if (m_state.m_pfnCallBackEx) m_state.m_pfnCallBackEx(szCommand, szArgument);
}

// ---- per-frame calls and messages ----------------------------------------------------------------

void CFlashSimulator::Process() {
    g_nDumpStep = DUMP_PROCESS_BEGIN;
    if (m_pGuiMgr) m_pGuiMgr->Process();
    g_nDumpStep = DUMP_PROCESS_TIPS;
    m_pDialogs->m_dlgSelectGroup.ShowMarkTips();
    m_pDialogs->m_dlgSelectServer.ShowMarkTips();
    g_nDumpStep = DUMP_PROCESS_SOUND;
    if (m_state.m_bMusicOn) ProcressSound();
    g_nDumpStep = DUMP_PROCESS_END;
}

void CFlashSimulator::Show() {
    g_nDumpStep = DUMP_SHOW_BEGIN;
    if (m_pGuiMgr) m_pGuiMgr->Show();
    g_nDumpStep = DUMP_SHOW_END;
}

LRESULT CFlashSimulator::WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return m_pGuiMgr ? m_pGuiMgr->MsgProc(hWnd, uMsg, wParam, lParam) : 0;
}

std::int32_t CFlashSimulator::PreTranslateMessage(MSG* pMsg) {
    CDlgWebRegisterEn& page = m_pDialogs->m_dlgWebRegister;
    return page.IsWindowVisible() ? page.PreTranslateHostMessage(pMsg) : 1;
}

bool CFlashSimulator::IsWebRegisterVisible() {
    return m_pDialogs->m_dlgWebRegister.IsWindowVisible() != FALSE;
}

void CFlashSimulator::ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (m_pGuiMgr) m_pGuiMgr->ManagerCall(uMsg, wParam, lParam);
}

// ---- variables and scenes ------------------------------------------------------------------------

void CFlashSimulator::SetVariable(const char* szName, const char* szValue) {
    SetSimulatorVariable(*this, szName, szValue);
}

const char* CFlashSimulator::GetVariable(const char* szName) {
    return GetSimulatorVariable(*this, szName);
}

void CFlashSimulator::SetSceneType(std::int32_t eScene) {
    m_state.m_eSceneType = static_cast<ESceneType>(eScene);
}

void CFlashSimulator::ShowMessage(std::uint32_t nStrId) {
    ShowMessageBox(MSGBOX_ERROR, GetStr(nStrId));
}

// ---- strings -------------------------------------------------------------------------------------

const char* CFlashSimulator::GetStr(std::uint32_t nId) {
    return m_strMgr.GetStr(nId);
}

std::int32_t CFlashSimulator::GetStrInt(std::uint32_t nId) {
    return m_strMgr.GetStrInt(nId);
}

void CFlashSimulator::ReloadStrings() {
    m_strMgr.Clear();
    m_strMgr.Load();
}

void CFlashSimulator::RegisterRangedStrings() {
    if (!m_pGuiMgr) return;
    m_strMgr.ForEachRanged(
        [this](std::int64_t key, const char* text) { m_pGuiMgr->RegisterRangedString(key, text); });
}

// ---- creation parameters and stored values -------------------------------------------------------

void CFlashSimulator::SetCreateRoleParam(std::int32_t nNewServer, std::int32_t nSwitchA,
                                         std::int32_t nSwitchB, std::int32_t nArcher,
                                         std::int32_t nForcedType, bool bSceneSelect, std::int32_t nExtra1,
                                         std::int32_t nExtra2) {
    if (nForcedType >= FORCED_TYPE_FIRST && nForcedType <= FORCED_TYPE_LAST) {
        // A forced profession hides every server-specific choice.
        m_state.m_nForcedType = nForcedType;
        nNewServer = nSwitchA = nSwitchB = nArcher = 0;
    } else {
        m_state.m_nForcedType = 0;
    }
    m_state.m_bSceneSelectOption = bSceneSelect;
    m_state.m_nExtra1 = nExtra1;
    m_state.m_nExtra2 = nExtra2;
    m_state.m_nNewServer = nNewServer;
    m_state.m_nSwitchA = nSwitchA;
    m_state.m_nSwitchB = nSwitchB;
    m_state.m_createRoleParam = SCreateRoleParam{
        nNewServer, nSwitchA, nSwitchB, nArcher, m_state.m_nForcedType, bSceneSelect, nExtra1, nExtra2};
    const bool bSecondOpen = nSwitchA > 0 && IsSelectedServerAchTips();
    m_pDialogs->m_dlgSelectPro.SetServerInfo(nNewServer, bSecondOpen, nSwitchB > 0, nArcher > 0);
    m_pDialogs->m_dlgBaseInfo.SetServerInfo(nNewServer, bSecondOpen, nSwitchB > 0, nArcher > 0);
}

bool CFlashSimulator::IsSelectedServerAchTips() const {
    const SServerItem* pServer = m_lists.GetServer(m_state.m_nGroup, m_state.m_nServer);
    return pServer && pServer->bAchTips;
}

// The forced profession type as a column index: 8, 7, 11, 9, 10, 12, 13 give 0 to 6; anything else 0.
int CFlashSimulator::GetForcedTypeIndex() const {
    static constexpr int FORCED_TYPES[] = {8, 7, 11, 9, 10, 12, 13};
    for (int i = 0; i < static_cast<int>(std::size(FORCED_TYPES)); ++i)
        if (FORCED_TYPES[i] == m_state.m_nForcedType) return i;
    return 0;
}

void CFlashSimulator::SetClassicTokenOnly(bool bOnly) {
    m_state.m_bClassicTokenOnly = bOnly;
}
void CFlashSimulator::SetPlatformModeA(bool bOn) {
    m_state.m_bPlatformModeA = bOn;
}

void CFlashSimulator::SetPlatformModeB(bool bOn) {
    m_state.m_bPlatformModeB = bOn;
    RoleDataQueryEn()->SetPlatformModeB(static_cast<WORD>(bOn));
}

bool CFlashSimulator::IsPlatformModeA() {
    return m_state.m_bPlatformModeA;
}
bool CFlashSimulator::IsNameChecked() {
    return m_state.m_bNameChecked;
}
bool CFlashSimulator::IsRoleReady() {
    return m_state.m_bRoleReady;
}

void CFlashSimulator::SetNameCheck(bool bChecked, bool bReady, bool bUpdateReady) {
    m_state.m_bNameChecked = bChecked;
    if (bUpdateReady) m_state.m_bRoleReady = bReady;
    if (!(bChecked && bReady)) return;

    const bool unchanged = IsNameUnchanged();
    if (unchanged && g_bOnceEvent411) {
        NotifyHost("BURYING_POINT", "411");
        g_bOnceEvent411 = false;
    } else if (!unchanged && g_bOnceEvent412) {
        NotifyHost("BURYING_POINT", "412");
        g_bOnceEvent412 = false;
    }
    // NOTE: only an open English screen registers or offers the scene choice; for a closed one the flags are
    // stored and nothing is sent (docs/DECISIONS.md).
    CDlgFlashProIntro& panel = m_pDialogs->m_dlgProIntro;
    if (!panel.IsWindowVisible()) return;
    if (panel.GetProfession() != PROFESSION_WITH_SCENE_CHOICE) {
        m_pDialogs->m_dlgSceneSelect.ShowWindow(SW_HIDE);
        panel.Register(true);
        return;
    }
    m_state.m_bNameChecked = false;
    m_pDialogs->m_dlgSceneSelect.ShowWindow(SW_SHOW);
}

void CFlashSimulator::SetProfession(std::int32_t nProfession) {
    m_state.m_nProfession = nProfession;
}
std::int32_t CFlashSimulator::GetProfession() {
    return m_state.m_nProfession;
}
void CFlashSimulator::SetModelFace(std::int32_t nFace) {
    m_state.m_nModelFace = nFace;
}
std::int32_t CFlashSimulator::GetModelFace() {
    return m_state.m_nModelFace;
}
void CFlashSimulator::SetLookParity(std::int32_t nLook) {
    m_state.m_nLookParity = nLook % 2;
}
std::int32_t CFlashSimulator::GetLookParity() {
    return m_state.m_nLookParity;
}
void CFlashSimulator::SetBaseInfoIndex(std::int32_t nIndex) {
    m_state.m_nBaseInfoIndex = nIndex;
}
std::int32_t CFlashSimulator::GetBaseInfoIndex() {
    return m_state.m_nBaseInfoIndex;
}
void CFlashSimulator::SetLoginOption(std::int32_t nOption) {
    m_state.m_nLoginOption = nOption;
}
std::int32_t CFlashSimulator::GetLoginOption() {
    return m_state.m_nLoginOption;
}

bool CFlashSimulator::SetNameSuggest(std::int32_t nValue) {
    m_state.m_bNameSuggest = nValue > 0;
    return m_state.m_bNameSuggest;
}

bool CFlashSimulator::GetNameSuggest() {
    return m_state.m_bNameSuggest;
}

void CFlashSimulator::FocusAccountField() {
    m_pDialogs->m_dlgNewFlashLogin.SetCurrentField(INPUT_ACCOUNT);
}

void CFlashSimulator::SetRandomName(const char* szName, std::int32_t nLength) {
    m_pDialogs->m_dlgProIntro.SetSuggestedName(szName, nLength);
}

bool CFlashSimulator::IsNameUnchanged() {
    return m_pDialogs->m_dlgProIntro.IsNameUnchanged();
}

bool CFlashSimulator::GetSelection(std::int32_t* pFirst, std::int32_t* pSecond) {
    if (pFirst) *pFirst = m_state.m_nSelFirst;
    if (pSecond) *pSecond = m_state.m_nSelSecond;
    return m_state.m_bSelSet;
}

void CFlashSimulator::SetSelection(bool bSet, std::int32_t nFirst, std::int32_t nSecond) {
    m_state.m_bSelSet = bSet;
    m_state.m_nSelFirst = nFirst;
    m_state.m_nSelSecond = nSecond;
}

void CFlashSimulator::SetPlayerListArg(std::int32_t nArg) {
    m_state.m_nPlayerListArg = nArg;
}
std::int32_t CFlashSimulator::GetPlayerListArg() {
    return m_state.m_nPlayerListArg;
}

void CFlashSimulator::ShowSwitchLanguage() {
    m_pDialogs->m_dlgSwitchLanguage.EnableWindow(TRUE);
    m_pDialogs->m_dlgSwitchLanguage.ShowWindow(SHOW_NORMAL);
}

void CFlashSimulator::RegisterRole() {
    // NOTE: as for SetNameCheck, a register request for a closed English screen sends nothing.
    if (m_pDialogs->m_dlgProIntro.IsWindowVisible()) m_pDialogs->m_dlgProIntro.Register(true);
}

// ---- music ---------------------------------------------------------------------------------------

void CFlashSimulator::SetMusic(bool bOn) {
    m_state.m_bMusicOn = bOn;
    try {
        if (bOn) DXPlayMedia(MUSIC_FILE, -1, "", true);
        DXSetMusicVolume(bOn ? 100 : 0, MUSIC_VOLUME_SETTING);
    } catch (...) {
        SysLogError(__FILE__, __LINE__, "LuSound Crash!");
    }
}

void CFlashSimulator::OpenWebAddress(const char* szAddress) {
    if (!szAddress || !*szAddress) return;
    ShellExecuteA(nullptr, "open", szAddress, nullptr, nullptr, SHOW_NORMAL);
}

// ---- player list ---------------------------------------------------------------------------------

HANDLE CFlashSimulator::StartPlayerListThread() {
    // NOTE: the worker gets copies of the two texts it needs, read here on the host's thread, so that a
    // reload of the strings or the simulator's end while it runs leaves it nothing freed to read.
    auto job = std::make_unique<SPlayerListJob>(SPlayerListJob{
        GetStr(STR_PLAYER_LIST_ADDRESS), GetStrInt(STR_PLAYER_LIST_NUMBER), m_state.m_nPlayerListArg});
    HANDLE hThread = CHandleHelper::CreateThreadProxy(nullptr, 0, &PlayerListThread, job.get(), 0, nullptr);
    if (hThread) job.release(); // the worker owns it now
    return hThread;
}

namespace {
DWORD WINAPI PlayerListThread(void* pParam) {
    const std::unique_ptr<SPlayerListJob> job(static_cast<SPlayerListJob*>(pParam));
    // NOTE: machine faults cannot be caught portably here; the Windows build wraps this in a structured
    // handler that reports through LogMsgError.
    try {
        CHttpGetSvrPlayerList downloader;
        WSADATA wsa{};
        if (WSAStartup(WINSOCK_VERSION_1_1, &wsa) == 0) {
            downloader.DownloadFile(job->strAddress.c_str(), job->nNumber, job->nArg);
            WSACleanup();
        }
    } catch (...) {
        SysLogError(__FILE__, __LINE__, "Catch HttpSocketMsgRecThread");
    }
    return 0;
}
} // namespace

// ---- the screens' context ------------------------------------------------------------------------

const SCfgGroup* CFlashSimulator::GetCfgGroup(int nModel, int nGroup) const {
    return m_strMgr.GetCfgGroup(nModel, nGroup);
}

void CFlashSimulator::ShowMessageBox(int nKind, const char* szText) {
    m_pDialogs->m_dlgConfirm.Show(nKind, szText);
}

void CFlashSimulator::ShowScreen(UINT nTemplateId, bool bShow) {
    // NOTE: opening the WeChat login also picks its page and tells the host to lay its web page over it.
    if (nTemplateId == CDlgWeiXinLogin::IDD && bShow) return m_pDialogs->m_dlgWeiXinLogin.Open();
    CSimDialog* pDialog = m_pDialogs->Find(nTemplateId);
    if (!pDialog) return;
    // The picker and the role list are disabled while closed; opening them enables them again.
    if (nTemplateId == CDlgFlashLoginEn::IDD || nTemplateId == CDlgFlashCharacterEn::IDD)
        pDialog->EnableWindow(bShow ? TRUE : FALSE);
    pDialog->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
}

bool CFlashSimulator::GetRememberedSelection(int& nGroup, int& nServer) const {
    nGroup = m_state.m_nSelFirst;
    nServer = m_state.m_nSelSecond;
    return m_state.m_bSelSet;
}

void CFlashSimulator::ShowChosenServer(int nGroup, int nServer) {
    m_pDialogs->m_dlgNewFlashLogin.ShowChosenServer(nGroup, nServer);
}

void CFlashSimulator::RefreshServerLabel() {
    m_pDialogs->m_dlgNewFlashLogin.UpdateServerLabel();
}

void CFlashSimulator::ShowServerRoleList(int nGroup, int nServer) {
    CDlgFlashCharacterEn& list = m_pDialogs->m_dlgCharacterEn;
    list.SetGroupServer(nGroup, nServer);
    list.EnableWindow(TRUE);
    list.ShowWindow(SW_SHOW);
}

void CFlashSimulator::OpenWebRegisterPage(int nKind, int nLayoutId, const char* szUrl) {
    m_pDialogs->m_dlgWebRegister.OpenPage(nKind, nLayoutId, szUrl);
    m_pDialogs->m_dlgWebRegister.ShowWindow(SW_SHOW);
}

void CFlashSimulator::AddListener(IScreenListener* pListener) {
    if (pListener &&
        std::find(m_vecListeners.begin(), m_vecListeners.end(), pListener) == m_vecListeners.end())
        m_vecListeners.push_back(pListener);
}

void CFlashSimulator::RemoveListener(IScreenListener* pListener) {
    std::erase(m_vecListeners, pListener);
}

const char* CFlashSimulator::GetServerName(int nGroup, int nServer) const {
    return m_lists.GetServerName(nGroup, nServer);
}

const char* CFlashSimulator::GetCurGroupName() const {
    return m_lists.GetGroupName(m_state.m_nGroup);
}

const char* CFlashSimulator::GetCurServerName() const {
    return m_lists.GetServerName(m_state.m_nGroup, m_state.m_nServer);
}

float CFlashSimulator::GetServerLoad(int nServer) const {
    return m_lists.GetServerLoad(m_state.m_nGroup, nServer);
}

bool CFlashSimulator::IsServerAchTip(int nServer) const {
    return m_lists.IsServerAchTip(m_state.m_nGroup, nServer);
}

// The current server exists, carries an achievement tip and switch A is on.
bool CFlashSimulator::IsAchServer() const {
    const SServerItem* pServer = m_lists.GetServer(m_state.m_nGroup, m_state.m_nServer);
    return pServer && pServer->bAchTips && m_state.m_nSwitchA > 0;
}

const char* CFlashSimulator::GetRecAccount(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetRecAccountCount()) return nullptr;
    return m_state.m_vecRecAccount[static_cast<std::size_t>(nIndex)].c_str();
}
