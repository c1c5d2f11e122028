// The simulator object: creation, per-frame calls, the interface operations, commands to the host,
// destruction.
#include "simulator/FlashSimulator.h"

#include <cstring>
#include <new>

#include "platform/BaseLib.h"
#include "platform/GameData.h"
#include "platform/Log.h"
#include "platform/RoleLib.h"
#include "platform/Sound.h"
#include "simulator/MirageApp.h"
#include "simulator/SysLog.h"

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

constexpr int FORCED_TYPE_FIRST = 7;
constexpr int FORCED_TYPE_LAST = 13;
constexpr int PROFESSION_WITH_SCENE_CHOICE = 100;
constexpr WORD WINSOCK_VERSION_1_1 = 0x0101;
constexpr int SHOW_NORMAL = 5;
} // namespace

CFlashSimulator* FlashSim() {
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
    : m_bCreated(false), m_pGuiMgr(LuGui::CreateNewGuiMgr()), m_pfnCallBack(nullptr),
      m_pfnCallBackEx(nullptr), m_nFillGroup(-1), m_nModel(0), m_nGroup(-1), m_nServer(-1), m_nLoginStep(0),
      m_bNameChecked(false), m_bRoleReady(false), m_nSelFirst(0), m_nSelSecond(0), m_bSelSet(false),
      m_eSceneType(EST_LOGIN), m_bMusicOn(false), m_nLanguage(0), m_nProfession(0), m_nModelFace(0),
      m_nLookParity(0), m_nBaseInfoIndex(0), m_nLoginOption(0), m_bNameSuggest(false), m_bDarkKnight(false),
      m_nNewServer(0), m_nSwitchA(0), m_nSwitchB(0), m_nForcedType(0), m_nMainPathWidth(0),
      m_nMainPathHeight(0), m_bClassicTokenOnly(false), m_bPlatformModeB(false), m_bPlatformModeA(false),
      m_bTokenEnabled(true), m_nPlayerListArg(1), m_bRegisterOpen(false), m_bSceneSelectOption(false),
      m_nExtra1(0), m_nExtra2(0) {
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
    if (m_bCreated) return;
    m_bCreated = true;
    m_nLanguage = nLanguage;

    char szLayout[LAYOUT_NAME_SIZE];
    if (nLanguage < 1)
        SafeSprintf(szLayout, sizeof szLayout, "%s.ini", LAYOUT_BASE_NAME);
    else
        SafeSprintf(szLayout, sizeof szLayout, "%s_%d.ini", LAYOUT_BASE_NAME, nLanguage);
    if (m_pGuiMgr) m_pGuiMgr->Init(TheApp().m_hInstance, hHost, nHostValue, szLayout);

    m_strMgr.Load();
    RegisterRangedStrings();
    if (!bRegister) return;
    if (m_pGuiMgr) m_pGuiMgr->SetSoundCallBack(&CFlashSimulator::OnGuiSound);
    RegisterDialogs();
    SwitchGuiHelper();
}

void CFlashSimulator::RegisterDialogs() {
    if (!m_pGuiMgr) return;
    // NOTE: the role-creation dialog is registered twice (fifth and tenth); the manager decides what that
    // means.
    LuGui::CLuDialog* const order[] = {
        &m_dlgBG,
        &m_dlgSelectEdition,
        &m_dlgSelectGroup,
        &m_dlgSelectServer,
        &m_dlgCreateRole,
        &m_dlgFlashLogin,
        &m_dlgConfirm,
        &m_dlgRememberAccount,
        &m_dlgAddQuickEntry,
        &m_dlgCreateRole,
        &m_dlgSelectPro,
        &m_dlgSelectHead,
        &m_dlgWeiXinLogin,
        &m_dlgNewFlashLogin,
        &m_dlgWardSafeToken,
        &m_dlgBaseInfo,
        &m_dlgBack,
        &m_dlgAction,
        &m_dlgProIntro,
        &m_dlgWebRegister,
        &m_dlgScanCodeLogin,
        &m_dlgSwitchLanguage,
        &m_dlgSceneSelect,
        &m_dlgFlashLoginEn,
        &m_dlgCharacterEn,
    };
    for (LuGui::CLuDialog* dialog : order) m_pGuiMgr->RegisterDialog(dialog, 0, 0);
}

void CFlashSimulator::SwitchGuiHelper() {
    LuGui::IGuiHelper* helper = LuGui::GetGuiHelper();
    if (helper && GetStrInt(STR_GUI_HELPER_SWITCH) != 0) helper->Start();
}

bool CFlashSimulator::OnGuiSound(const char* szName, std::int32_t n1, std::int32_t n2, std::int32_t n3,
                                 std::int32_t n4) {
    if (!TestSoundFormat(szName)) {
        RoleDataQuery()->PlaySoundByName(szName);
        return true;
    }
    return DXPlaySound(szName, n1, n2, n3, n4, "", true) != nullptr;
}

// ---- callbacks and commands ----------------------------------------------------------------------

void CFlashSimulator::SetCallBack(FlashCallBack pfn) {
    if (m_bCreated) m_pfnCallBack = pfn;
}

void CFlashSimulator::SetCallBackEx(FlashCallBack pfn) {
    m_pfnCallBackEx = pfn;
}

void CFlashSimulator::NotifyHost(const char* szCommand, const char* szArgument) {
    if (!szCommand || !szArgument) return;
    if (m_pfnCallBack) m_pfnCallBack(szCommand, szArgument);
    if (m_pfnCallBackEx) m_pfnCallBackEx(szCommand, szArgument);
}

// ---- per-frame calls and messages ----------------------------------------------------------------

void CFlashSimulator::Process() {
    g_nDumpStep = DUMP_PROCESS_BEGIN;
    if (m_pGuiMgr) m_pGuiMgr->Process();
    g_nDumpStep = DUMP_PROCESS_TIPS;
    m_dlgSelectGroup.ShowMarkTips();
    m_dlgSelectServer.ShowMarkTips();
    g_nDumpStep = DUMP_PROCESS_SOUND;
    if (m_bMusicOn) ProcressSound();
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
    if (!m_dlgWebRegister.IsWindowVisible()) return 1;
    return m_dlgWebRegister.PreTranslateMessage(pMsg);
}

bool CFlashSimulator::IsWebRegisterVisible() {
    return m_dlgWebRegister.IsWindowVisible() != FALSE;
}

void CFlashSimulator::ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (m_pGuiMgr) m_pGuiMgr->ManagerCall(uMsg, wParam, lParam);
}

// ---- variables and scenes ------------------------------------------------------------------------

void CFlashSimulator::SetSceneType(std::int32_t eScene) {
    m_eSceneType = static_cast<ESceneType>(eScene);
}

void CFlashSimulator::ShowMessage(std::uint32_t nStrId) {
    m_dlgConfirm.Show(CDlgFlashConfirm::TYPE_ERROR, GetStr(nStrId));
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
        m_nForcedType = nForcedType;
        nNewServer = nSwitchA = nSwitchB = nArcher = 0;
    } else {
        m_nForcedType = 0;
    }
    m_bSceneSelectOption = bSceneSelect;
    m_nExtra1 = nExtra1;
    m_nExtra2 = nExtra2;
    m_nNewServer = nNewServer;
    m_nSwitchA = nSwitchA;
    m_nSwitchB = nSwitchB;
    // NOTE: passed to the profession dialog and column once they exist (docs/STATUS.md).
    (void)nArcher;
}

int CFlashSimulator::GetForcedTypeIndex() const {
    static constexpr int kForcedTypes[] = {8, 7, 11, 9, 10, 12, 13};
    for (int i = 0; i < static_cast<int>(std::size(kForcedTypes)); ++i)
        if (kForcedTypes[i] == m_nForcedType) return i;
    return 0;
}

void CFlashSimulator::SetClassicTokenOnly(bool bOnly) {
    m_bClassicTokenOnly = bOnly;
}
void CFlashSimulator::SetPlatformModeA(bool bOn) {
    m_bPlatformModeA = bOn;
}

void CFlashSimulator::SetPlatformModeB(bool bOn) {
    m_bPlatformModeB = bOn;
    RoleDataQueryEn()->SetPlatformModeB(static_cast<WORD>(bOn));
}

bool CFlashSimulator::IsPlatformModeA() {
    return m_bPlatformModeA;
}
bool CFlashSimulator::IsNameChecked() {
    return m_bNameChecked;
}
bool CFlashSimulator::IsRoleReady() {
    return m_bRoleReady;
}

void CFlashSimulator::SetNameCheck(bool bChecked, bool bReady, bool bUpdateReady) {
    m_bNameChecked = bChecked;
    if (bUpdateReady) m_bRoleReady = bReady;
    if (!(bChecked && bReady)) return;

    const bool unchanged = IsNameUnchanged();
    if (unchanged && g_bOnceEvent411) {
        NotifyHost("BURYING_POINT", "411");
        g_bOnceEvent411 = false;
    } else if (!unchanged && g_bOnceEvent412) {
        NotifyHost("BURYING_POINT", "412");
        g_bOnceEvent412 = false;
    }
    // NOTE: registration (or the scene choice for profession 100) follows once the introduction panel exists.
    (void)PROFESSION_WITH_SCENE_CHOICE;
}

void CFlashSimulator::SetProfession(std::int32_t nProfession) {
    m_nProfession = nProfession;
}
std::int32_t CFlashSimulator::GetProfession() {
    return m_nProfession;
}
void CFlashSimulator::SetModelFace(std::int32_t nFace) {
    m_nModelFace = nFace;
}
std::int32_t CFlashSimulator::GetModelFace() {
    return m_nModelFace;
}
void CFlashSimulator::SetLookParity(std::int32_t nLook) {
    m_nLookParity = nLook % 2;
}
std::int32_t CFlashSimulator::GetLookParity() {
    return m_nLookParity;
}
void CFlashSimulator::SetBaseInfoIndex(std::int32_t nIndex) {
    m_nBaseInfoIndex = nIndex;
}
std::int32_t CFlashSimulator::GetBaseInfoIndex() {
    return m_nBaseInfoIndex;
}
void CFlashSimulator::SetLoginOption(std::int32_t nOption) {
    m_nLoginOption = nOption;
}
std::int32_t CFlashSimulator::GetLoginOption() {
    return m_nLoginOption;
}

bool CFlashSimulator::SetNameSuggest(std::int32_t nValue) {
    m_bNameSuggest = nValue > 0;
    return m_bNameSuggest;
}

bool CFlashSimulator::GetNameSuggest() {
    return m_bNameSuggest;
}

void CFlashSimulator::FocusAccountField() {
    // NOTE: moves the main login dialog's focus once that dialog exists (docs/STATUS.md).
}

void CFlashSimulator::SetRandomName(const char* szName, std::int32_t nLength) {
    // NOTE: fills the introduction panel's name field once that panel exists (docs/STATUS.md).
    (void)szName;
    (void)nLength;
}

bool CFlashSimulator::IsNameUnchanged() {
    // NOTE: compares the introduction panel's name field with its stored name once that panel exists.
    return false;
}

bool CFlashSimulator::GetSelection(std::int32_t* pFirst, std::int32_t* pSecond) {
    if (pFirst) *pFirst = m_nSelFirst;
    if (pSecond) *pSecond = m_nSelSecond;
    return m_bSelSet;
}

void CFlashSimulator::SetSelection(bool bSet, std::int32_t nFirst, std::int32_t nSecond) {
    m_bSelSet = bSet;
    m_nSelFirst = nFirst;
    m_nSelSecond = nSecond;
}

void CFlashSimulator::SetPlayerListArg(std::int32_t nArg) {
    m_nPlayerListArg = nArg;
}
std::int32_t CFlashSimulator::GetPlayerListArg() {
    return m_nPlayerListArg;
}

void CFlashSimulator::ShowSwitchLanguage() {
    m_dlgSwitchLanguage.EnableWindow(TRUE);
    m_dlgSwitchLanguage.ShowWindow(SHOW_NORMAL);
}

void CFlashSimulator::RegisterRole() {
    // NOTE: starts the introduction panel's registration once that panel exists (docs/STATUS.md).
}

// ---- music ---------------------------------------------------------------------------------------

void CFlashSimulator::SetMusic(bool bOn) {
    m_bMusicOn = bOn;
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
    void* param = reinterpret_cast<void*>(static_cast<std::intptr_t>(m_nPlayerListArg));
    return CHandleHelper::CreateThreadProxy(nullptr, 0, &CFlashSimulator::PlayerListThread, param, 0,
                                            nullptr);
}

DWORD CFlashSimulator::PlayerListThread(void* pParam) {
    // NOTE: machine faults cannot be caught portably here; the Windows build wraps this in a structured
    // handler that reports through LogMsgError.
    try {
        CHttpGetSvrPlayerList downloader;
        WSADATA wsa{};
        if (WSAStartup(WINSOCK_VERSION_1_1, &wsa) == 0) {
            CFlashSimulator* sim = FlashSim();
            const std::string address = sim ? sim->GetStr(STR_PLAYER_LIST_ADDRESS) : "";
            const int number = sim ? sim->GetStrInt(STR_PLAYER_LIST_NUMBER) : 0;
            downloader.DownloadFile(address.c_str(), number,
                                    static_cast<int>(reinterpret_cast<std::intptr_t>(pParam)));
            WSACleanup();
        }
    } catch (...) {
        SysLogError(__FILE__, __LINE__, "Catch HttpSocketMsgRecThread");
    }
    return 0;
}
