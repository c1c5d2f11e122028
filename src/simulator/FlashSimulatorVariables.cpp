// The variable protocol: SetVariable and GetVariable dispatch by name, per scene, and the simulator's
// handlers.
#include <cctype>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/GameData.h"
#include "platform/Log.h"
#include "resources/TextScan.h"
#include "simulator/FlashSimulator.h"
#include "simulator/SysLog.h"

namespace {
constexpr std::size_t MAX_VARIABLE_NAME = 40; // longer than every known name, so longer ones cannot match
constexpr std::size_t GETTER_BUFFER_SIZE = 256;
constexpr std::size_t SAFE_TOKEN_BUFFER_SIZE = 256;

// Lower-cases a name into buf; false when it is too long to be a known name.
bool FoldName(const char* szName, char (&buf)[MAX_VARIABLE_NAME + 1], std::string_view& folded) {
    std::size_t n = 0;
    for (; szName[n]; ++n) {
        if (n == MAX_VARIABLE_NAME) return false;
        buf[n] = static_cast<char>(std::tolower(static_cast<unsigned char>(szName[n])));
    }
    folded = std::string_view(buf, n);
    return true;
}

bool EqualsNoCase(const char* a, const char* b) {
    for (; *a && *b; ++a, ++b)
        if (std::tolower(static_cast<unsigned char>(*a)) != std::tolower(static_cast<unsigned char>(*b)))
            return false;
    return *a == *b;
}

void LogSceneGuard(const char* szCondition, const char* szFile, int nLine) {
    LogMsg("IF_NOT(%s) in %s, %d", szCondition, _log::CutFileName(szFile), nLine);
}
} // namespace

// The two vocabularies, keyed by the lower-cased name, so that dispatch costs one hash whatever their size.
struct VariableTables {
    using Handler = CFlashSimulator::VariableHandler;
    using Table = std::unordered_map<std::string_view, Handler>;

    static const Table& Login() {
        static const Table table = {
            {"var_mainpath", &CFlashSimulator::VarMainPath},
            {"var_quicklogin", &CFlashSimulator::VarQuickLogin},
            {"var_focustoflash", &CFlashSimulator::VarFocusToFlash},
            {"var_weixin_ward_safe_token", &CFlashSimulator::VarDialogPending},
            {"var_play_login_ward_safe_token", &CFlashSimulator::VarPlayLoginWardSafeToken},
            {"var_area_ach_tips", &CFlashSimulator::VarAreaAchTips},
            {"var_cur_ver", &CFlashSimulator::VarCurVer},
            {"var_playlogin", &CFlashSimulator::VarPlayLogin},
            {"var_server_area", &CFlashSimulator::VarServerArea},
            {"var_sever_ach_tips", &CFlashSimulator::VarNoEffect},
            {"var_server_name", &CFlashSimulator::VarServerName},
            {"var_loginuser", &CFlashSimulator::VarLoginUser},
            {"var_loginpass", &CFlashSimulator::VarLoginPass},
            {"var_logprotect", &CFlashSimulator::VarLogProtect},
            {"var_loginhelmsafe", &CFlashSimulator::VarLoginHelmSafe},
            {"var_loginhelmsafe_weixin", &CFlashSimulator::VarSafeToken},
            {"var_loginhelmsafe_ward", &CFlashSimulator::VarLoginHelmSafe},
            {"var_starttoflash", &CFlashSimulator::VarStartToFlash},
            {"var_starttoflash_weixin", &CFlashSimulator::VarDialogPending},
            {"var_starttoflash_ward", &CFlashSimulator::VarDialogPending},
            {"var_endtoflash", &CFlashSimulator::VarEndToFlash},
            {"var_endtoflash_weixin", &CFlashSimulator::VarDialogPending},
            {"var_endtoflash_ward", &CFlashSimulator::VarDialogPending},
            {"var_game_backlogoin", &CFlashSimulator::VarGameBackLogin},
            {"var_enable_token", &CFlashSimulator::VarEnableToken},
            {"var_setkeydown", &CFlashSimulator::VarSetKeyDown},
            {"var_qrcode_login", &CFlashSimulator::VarQrCodeLogin},
            {"var_login_ward_safe_token_error", &CFlashSimulator::VarDialogPending},
            {"var_play_login_ward_safe_token_error", &CFlashSimulator::VarDialogPending},
            {"var_weixin_login", &CFlashSimulator::VarWeiXinLogin},
            {"var_showexit", &CFlashSimulator::VarShowExit},
            {"var_version", &CFlashSimulator::VarVersion},
            {"var_shortpwdtip", &CFlashSimulator::VarNoEffect},
            {"var_setrecaccount", &CFlashSimulator::VarSetRecAccount},
            {"var_quick_record", &CFlashSimulator::VarQuickRecord},
            {"var_serverstatus", &CFlashSimulator::VarServerStatus},
            {"var_pickey", &CFlashSimulator::VarDialogPending},
            {"var_showsoftkb", &CFlashSimulator::VarDialogPending},
            {"var_musicswitch", &CFlashSimulator::VarMusicSwitch},
            {"var_music", &CFlashSimulator::VarMusic},
            {"setloginerror", &CFlashSimulator::VarLoginError},
            {"setqrkey", &CFlashSimulator::VarDialogPending},
            {"setqrcodestatus", &CFlashSimulator::VarDialogPending},
            {"setregisteropen", &CFlashSimulator::VarSetRegisterOpen},
            {"setpwdincorrect", &CFlashSimulator::VarPwdIncorrect},
            {"resetmainpath", &CFlashSimulator::VarResetMainPath},
        };
        return table;
    }

    static const Table& RoleCreate() {
        static const Table table = {
            {"setmainpath", &CFlashSimulator::VarRoleSetMainPath},
            {"chineseswitch", &CFlashSimulator::VarDialogPending},
            {"getchineseswitch", &CFlashSimulator::VarDialogPending},
            {"setroletype", &CFlashSimulator::VarNoEffect},
            {"setexit", &CFlashSimulator::VarNoEffect},
            {"regsuccess", &CFlashSimulator::VarNoEffect},
            {"setloginerror", &CFlashSimulator::VarLoginError},
            {"darkknightcancrate", &CFlashSimulator::VarDarkKnight},
            {"showcreatewnd", &CFlashSimulator::VarShowCreateWnd},
        };
        return table;
    }
};

CFlashSimulator::VariableHandler CFlashSimulator::FindHandler(bool bLogin, const char* szName) {
    char buf[MAX_VARIABLE_NAME + 1];
    std::string_view folded;
    if (!FoldName(szName, buf, folded)) return nullptr;
    const auto& table = bLogin ? VariableTables::Login() : VariableTables::RoleCreate();
    const auto it = table.find(folded);
    return it == table.end() ? nullptr : it->second;
}

// ---- the interface
// ------------------------------------------------------------------------------------------------

void CFlashSimulator::SetVariable(const char* szName, const char* szValue) {
    if (!szName || !szValue) return;
    if (m_eSceneType == EST_LOGIN)
        OnLoginVariable(szName, szValue);
    else if (m_eSceneType == EST_ROLE_CREATE)
        OnRoleCreateVariable(szName, szValue);
}

void CFlashSimulator::OnLoginVariable(const char* szName, const char* szValue) {
    if (m_eSceneType != EST_LOGIN) return LogSceneGuard("m_eSceneType == EST_LOGIN", __FILE__, __LINE__);
    if (VariableHandler handler = FindHandler(true, szName)) (this->*handler)(szValue);
}

void CFlashSimulator::OnRoleCreateVariable(const char* szName, const char* szValue) {
    if (m_eSceneType != EST_ROLE_CREATE)
        return LogSceneGuard("m_eSceneType == EST_ROLE_CREATE", __FILE__, __LINE__);
    if (VariableHandler handler = FindHandler(false, szName)) (this->*handler)(szValue);
}

const char* CFlashSimulator::GetVariable(const char* szName) {
    if (!szName) return nullptr;
    if (m_eSceneType == EST_LOGIN) return GetLoginVariable(szName);
    if (m_eSceneType == EST_ROLE_CREATE) return "";
    return nullptr;
}

const char* CFlashSimulator::GetLoginVariable(const char* szName) {
    // One buffer for every getter: the host reads each answer before it asks the next.
    static char s_szResult[GETTER_BUFFER_SIZE];
    int nResult = 0;
    if (EqualsNoCase(szName, "VAR_INPUTSTATE"))
        nResult = m_dlgNewFlashLogin.IsWindowVisible() ? 1 : 0;
    else if (EqualsNoCase(szName, "VAR_INPUTSTATE_WEIXIN"))
        nResult = m_dlgWeiXinLogin.IsWindowVisible() ? 1 : 0;
    else if (EqualsNoCase(szName, "VAR_INPUTSTATE_WARD"))
        nResult = m_dlgWardSafeToken.IsWindowVisible() ? 1 : 0;
    else if (EqualsNoCase(szName, "VAR_FOCUS"))
        nResult = FocusedInputField();
    else if (EqualsNoCase(szName, "VAR_STARTTOVC"))
        nResult = m_dlgNewFlashLogin.GetSelectionEdge(false);
    else if (EqualsNoCase(szName, "VAR_ENDTOVC"))
        nResult = m_dlgNewFlashLogin.GetSelectionEdge(true);
    else
        return "";
    SafeItoA(nResult, s_szResult, sizeof s_szResult, 10);
    return s_szResult;
}

int CFlashSimulator::FocusedInputField() {
    if (RoleDataQueryEn()->IsInputFlagSet()) return 0;
    if (m_dlgWeiXinLogin.IsWindowVisible()) return INPUT_WEIXIN_TOKEN;
    if (m_dlgWardSafeToken.IsWindowVisible()) return INPUT_WARD_TOKEN;
    // NOTE: the security-token dialog's own selection joins VAR_STARTTOVC once that dialog exists.
    return m_dlgNewFlashLogin.GetFocusField();
}

// ---- login scene
// ------------------------------------------------------------------------------------------------------

void CFlashSimulator::VarNoEffect(const char*) {
}

void CFlashSimulator::VarDialogPending(const char*) {
    // NOTE: the name is understood; its effect lies in a login or creation dialog not built yet
    // (docs/STATUS.md).
}

void CFlashSimulator::VarMainPath(const char*) {
    if (m_nLoginStep != LOGIN_STEP_START) return;
    m_dlgBG.ShowWindow(SW_SHOW);
    if (IsGroupFirstLanguage()) {
        m_nModel = 2;
        m_dlgSelectEdition.ShowWindow(SW_HIDE);
        ClearGroups();
        m_dlgSelectGroup.ShowWindow(SW_SHOW);
        m_nLoginStep = LOGIN_STEP_GROUP;
        NotifyHost("CMD_SELECTMODEL", "2");
        m_dlgSelectGroup.RefillGroups();
        return;
    }
    int nModel = m_nModel, nGroup = m_nGroup, nServer = m_nServer;
    m_dlgNewFlashLogin.RestoreLastServer(nModel, nGroup, nServer);
    NotifyHostInt("CMD_SELECTMODEL", nModel);
    NotifyHostInt("CMD_SELECTGROUP", nGroup);
    NotifyHostInt("CMD_EX_SELECTSERVER", nServer);
    m_dlgNewFlashLogin.ShowWindow(SW_SHOW);
    m_nLoginStep = LOGIN_STEP_MAIN_LOGIN;
}

void CFlashSimulator::VarQuickLogin(const char* szValue) {
    if (!m_dlgNewFlashLogin.IsWindowEnabled()) return;
    const auto v = textscan::ReadInts(szValue, 4);
    if (v.size() != 3) return;
    m_nModel = v[0];
    NotifyHostInt("CMD_SELECTMODEL", v[0]);
    m_nGroup = v[1];
    NotifyHostIndex("CMD_SELECTGROUP", v[1]);
    m_nServer = v[2];
    NotifyHostIndex("CMD_EX_SELECTSERVER", v[2]);
    m_dlgNewFlashLogin.UpdateServerLabel();
}

void CFlashSimulator::VarPlayLogin(const char* szValue) {
    if (!m_dlgFlashLogin.IsWindowEnabled()) return;
    const auto v = textscan::ReadInts(szValue, 3);
    if (v.size() != 2) return;
    m_nGroup = v[0];
    m_dlgSelectGroup.ShowWindow(SW_HIDE);
    m_dlgSelectServer.ShowWindow(SW_SHOW);
    m_nLoginStep = LOGIN_STEP_SERVER;
    NotifyHostIndex("CMD_SELECTGROUP", v[0]);
    OnSelectServer(v[1]);
}

void CFlashSimulator::VarPlayLoginWardSafeToken(const char* szValue) {
    m_dlgBG.ShowWindow(SW_HIDE);
    m_dlgSelectEdition.ShowWindow(SW_HIDE);
    m_dlgFlashLogin.ShowWindow(SW_HIDE);
    m_dlgWardSafeToken.ShowWindow(SW_SHOW);
    VarDialogPending(szValue); // the token dialog starts its entry once it exists
}

void CFlashSimulator::VarLoginUser(const char* szValue) {
    DebugMsg("user : %s", szValue);
    m_dlgNewFlashLogin.SetInputText(szValue, INPUT_ACCOUNT);
}

void CFlashSimulator::VarLoginPass(const char* szValue) {
    // NOTE: the password is never logged.
    m_dlgNewFlashLogin.SetInputText(szValue, INPUT_PASSWORD);
}

void CFlashSimulator::VarFocusToFlash(const char* szValue) {
    // NOTE: the classic login takes the focus first once that dialog exists.
    if (m_dlgNewFlashLogin.IsWindowVisible()) m_dlgNewFlashLogin.FocusInput(SafeAtoi(szValue));
}

void CFlashSimulator::VarPwdIncorrect(const char*) {
    m_dlgNewFlashLogin.MarkPasswordIncorrect();
}

void CFlashSimulator::VarLogProtect(const char* szValue) {
    DebugMsg("logprotect : %s", szValue);
    // NOTE: the classic login's field 3 takes the text once that dialog exists.
}

void CFlashSimulator::VarSafeToken(const char* szValue) {
    DebugMsg("safetoken : %s", szValue);
    // NOTE: the WeChat dialog's field 5 takes the text once that dialog exists.
}

void CFlashSimulator::VarLoginHelmSafe(const char* szValue) {
    DebugMsg("safetoken : %s", szValue);
    // The code is shown masked, one "*" per byte, at most 255 of them.
    char masked[SAFE_TOKEN_BUFFER_SIZE];
    SafeSprintf(masked, sizeof masked, "%s", szValue);
    for (char* p = masked; *p; ++p) *p = '*';
    m_dlgNewFlashLogin.SetInputText(masked, INPUT_TOKEN);
}

void CFlashSimulator::VarStartToFlash(const char* szValue) {
    m_dlgNewFlashLogin.SetSelectionEdge(false, SafeAtoi(szValue));
}

void CFlashSimulator::VarEndToFlash(const char* szValue) {
    m_dlgNewFlashLogin.SetSelectionEdge(true, SafeAtoi(szValue));
}

void CFlashSimulator::VarGameBackLogin(const char* szValue) {
    try {
        if (m_pGuiMgr) m_pGuiMgr->Reset(0);
        m_dlgBG.ShowWindow(SW_SHOW);
        m_dlgNewFlashLogin.ShowWindow(SW_SHOW);
        m_dlgNewFlashLogin.OnBackToLogin(SafeAtoi(szValue) == 1);
    } catch (...) {
        SysLogError(__FILE__, __LINE__, "Flash VAR_GAME_BACKLOGOIN Crash!");
    }
}

void CFlashSimulator::VarEnableToken(const char* szValue) {
    m_bTokenEnabled = SafeAtoi(szValue) == 1;
    m_dlgNewFlashLogin.ShowTokenRow(m_bTokenEnabled);
}

void CFlashSimulator::VarSetKeyDown(const char* szValue) {
    if (EqualsNoCase(szValue, "1")) return OnAccountLoginKey();
    if (EqualsNoCase(szValue, "2")) return NotifyHost("CMD_ENTERGAME", "2");
    if (EqualsNoCase(szValue, "3")) return NotifyHost("CMD_ENTERGAME", "3");
    if (EqualsNoCase(szValue, "0")) {
        m_dlgFlashLoginEn.ShowWindow(SW_HIDE);
        m_dlgCharacterEn.ShowWindow(SW_HIDE);
        m_dlgConfirm.Show(CDlgFlashConfirm::TYPE_EXIT, nullptr);
    }
}

void CFlashSimulator::OnAccountLoginKey() {
    m_dlgNewFlashLogin.Login(false);
}

void CFlashSimulator::VarQrCodeLogin(const char*) {
    NotifyHost("CMD_ENTERGAME", "1");
}
void CFlashSimulator::VarWeiXinLogin(const char*) {
    NotifyHost("CMD_ENTERGAME", "2");
}
void CFlashSimulator::VarShowExit(const char*) {
    m_dlgConfirm.Show(CDlgFlashConfirm::TYPE_EXIT, nullptr);
}
void CFlashSimulator::VarLoginError(const char* szValue) {
    m_dlgConfirm.Show(CDlgFlashConfirm::TYPE_ERROR, szValue);
}
void CFlashSimulator::VarSetRegisterOpen(const char*) {
    m_bRegisterOpen = false;
}

void CFlashSimulator::VarVersion(const char* szValue) {
    m_strVersion = szValue;
    if (m_dlgSelectEdition.IsWindowVisible()) m_dlgSelectEdition.SetVersionText(szValue);
    if (m_dlgSelectGroup.IsWindowVisible()) m_dlgSelectGroup.SetVersionText(szValue);
    if (m_dlgSelectServer.IsWindowVisible()) m_dlgSelectServer.SetVersionText(szValue);
    if (m_dlgNewFlashLogin.IsWindowVisible()) m_dlgNewFlashLogin.SetVersionText(szValue);
    // NOTE: the classic login shows the new text once that screen exists.
}

void CFlashSimulator::VarSetRecAccount(const char* szValue) {
    m_vecRecAccount.clear();
    const std::string_view rest = textscan::ForEachTerminated(szValue, '|', [this](std::string_view piece) {
        m_vecRecAccount.emplace_back(piece);
        return true;
    });
    if (!rest.empty()) m_vecRecAccount.emplace_back(rest);
}

const char* CFlashSimulator::GetRecAccount(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetRecAccountCount()) return nullptr;
    return m_vecRecAccount[static_cast<std::size_t>(nIndex)].c_str();
}

void CFlashSimulator::VarMusic(const char* szValue) {
    SetMusic(!EqualsNoCase(szValue, "0"));
    if (m_dlgSelectEdition.IsWindowVisible()) m_dlgSelectEdition.SetMusicCheck(m_bMusicOn);
    if (m_dlgSelectGroup.IsWindowVisible()) m_dlgSelectGroup.SetMusicCheck(m_bMusicOn);
    if (m_dlgSelectServer.IsWindowVisible()) m_dlgSelectServer.SetMusicCheck(m_bMusicOn);
    if (m_dlgNewFlashLogin.IsWindowVisible()) m_dlgNewFlashLogin.SetMusicCheck(m_bMusicOn);
    // NOTE: the classic login sets its music check button once that screen exists.
}

void CFlashSimulator::VarMusicSwitch(const char* szValue) {
    if (EqualsNoCase(szValue, "0") && m_pGuiMgr) m_pGuiMgr->Reset(0);
}

void CFlashSimulator::VarResetMainPath(const char* szValue) {
    const auto v = textscan::ReadIntsSeparated(szValue, '-', 3);
    if (v.size() >= 1) m_nMainPathWidth = v[0];
    if (v.size() >= 2) m_nMainPathHeight = v[1];
}

// ---- role-creation scene
// ------------------------------------------------------------------------------------------

void CFlashSimulator::VarRoleSetMainPath(const char* szValue) {
    if (m_pGuiMgr) m_pGuiMgr->Reset(0);
    const bool bInternational = EqualsNoCase(RoleDataQueryEx()->GetLanguageName(), "English");
    if (!bInternational) {
        m_dlgCreateRole.ShowWindow(SW_SHOW);
        // NOTE: the creation dialog's start operation runs here once that screen exists (docs/STATUS.md).
        return;
    }
    const auto v = textscan::ReadIntsSeparated(szValue, '-', 3);
    if (v.size() >= 1) m_nMainPathWidth = v[0];
    if (v.size() >= 2) m_nMainPathHeight = v[1];
    SetNameSuggest(v.size() >= 3 ? v[2] : 0);
    // NOTE: the preview dialog is placed for the screen size once that screen exists.
    m_dlgAction.ShowWindow(SW_SHOW);
}

void CFlashSimulator::VarDarkKnight(const char* szValue) {
    if (EqualsNoCase(szValue, "1")) m_bDarkKnight = true;
    if (EqualsNoCase(szValue, "0")) m_bDarkKnight = false;
}

void CFlashSimulator::VarShowCreateWnd(const char* szValue) {
    const bool bInternational = EqualsNoCase(RoleDataQueryEx()->GetLanguageName(), "English");
    if (EqualsNoCase(szValue, "1")) {
        if (bInternational)
            m_dlgAction.ShowWindow(SW_SHOW);
        else
            m_dlgSelectPro.ShowWindow(SW_SHOW);
        return;
    }
    if (!EqualsNoCase(szValue, "0")) return;
    if (bInternational) {
        m_dlgAction.ShowWindow(SW_HIDE);
        m_dlgBaseInfo.ShowWindow(SW_HIDE);
        m_dlgProIntro.ShowWindow(SW_HIDE);
        m_dlgBack.ShowWindow(SW_HIDE);
    } else {
        m_dlgSelectHead.ShowWindow(SW_HIDE);
        m_dlgSelectPro.ShowWindow(SW_HIDE);
    }
    m_dlgSceneSelect.ShowWindow(SW_HIDE);
}
