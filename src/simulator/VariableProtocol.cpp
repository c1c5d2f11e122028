// The variable protocol: the host's named variables, dispatched by name per scene, and what each one does.
//
// Index: name folding; login scene; role-creation scene; live server lists; quick entries; getters; the two
// vocabularies and the dispatch.
#include <cctype>
#include <string>
#include <string_view>
#include <unordered_map>

#include "common/SysLog.h"
#include "platform/GameData.h"
#include "platform/Log.h"
#include "resources/TextScan.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"
#include "simulator/VariableProtocol.h"

namespace {
constexpr std::size_t MAX_VARIABLE_NAME = 40; // longer than every known name, so longer ones cannot match
constexpr std::size_t GETTER_BUFFER_SIZE = 256;
constexpr std::size_t SAFE_TOKEN_BUFFER_SIZE = 256;
constexpr std::size_t MIN_TRAILING_RECORD_LENGTH = 6;

using Handler = void (*)(CFlashSimulator& sim, const char* szValue);

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

// ---- login scene ---------------------------------------------------------------------------------

void VarNoEffect(CFlashSimulator& sim, const char*) {
}

void VarMainPath(CFlashSimulator& sim, const char*) {
    if (sim.State().m_nLoginStep != LOGIN_STEP_START) return;
    sim.Dialogs().m_dlgBG.ShowWindow(SW_SHOW);
    if (sim.IsGroupFirstLanguage()) {
        sim.State().m_nModel = 2;
        sim.Dialogs().m_dlgSelectEdition.ShowWindow(SW_HIDE);
        sim.Lists().Clear();
        sim.Dialogs().m_dlgSelectGroup.ShowWindow(SW_SHOW);
        sim.State().m_nLoginStep = LOGIN_STEP_GROUP;
        sim.NotifyHost("CMD_SELECTMODEL", "2");
        sim.Dialogs().m_dlgSelectGroup.RefillGroups();
        return;
    }
    int nModel = sim.State().m_nModel, nGroup = sim.State().m_nGroup, nServer = sim.State().m_nServer;
    sim.Dialogs().m_dlgNewFlashLogin.RestoreLastServer(nModel, nGroup, nServer);
    sim.NotifyHostInt("CMD_SELECTMODEL", nModel);
    sim.NotifyHostInt("CMD_SELECTGROUP", nGroup);
    sim.NotifyHostInt("CMD_EX_SELECTSERVER", nServer);
    sim.Dialogs().m_dlgNewFlashLogin.ShowWindow(SW_SHOW);
    sim.State().m_nLoginStep = LOGIN_STEP_MAIN_LOGIN;
}

void VarQuickLogin(CFlashSimulator& sim, const char* szValue) {
    if (!sim.Dialogs().m_dlgNewFlashLogin.IsWindowEnabled()) return;
    const auto v = textscan::ReadInts(szValue, 4);
    if (v.size() != 3) return;
    sim.State().m_nModel = v[0];
    sim.NotifyHostInt("CMD_SELECTMODEL", v[0]);
    sim.State().m_nGroup = v[1];
    sim.NotifyHostIndex("CMD_SELECTGROUP", v[1]);
    sim.State().m_nServer = v[2];
    sim.NotifyHostIndex("CMD_EX_SELECTSERVER", v[2]);
    sim.Dialogs().m_dlgNewFlashLogin.UpdateServerLabel();
}

void VarPlayLogin(CFlashSimulator& sim, const char* szValue) {
    if (!sim.Dialogs().m_dlgFlashLogin.IsWindowEnabled()) return;
    const auto v = textscan::ReadInts(szValue, 3);
    if (v.size() != 2) return;
    sim.State().m_nGroup = v[0];
    sim.Dialogs().m_dlgSelectGroup.ShowWindow(SW_HIDE);
    sim.Dialogs().m_dlgSelectServer.ShowWindow(SW_SHOW);
    sim.State().m_nLoginStep = LOGIN_STEP_SERVER;
    sim.NotifyHostIndex("CMD_SELECTGROUP", v[0]);
    sim.OnSelectServer(v[1]);
}

void VarPlayLoginWardSafeToken(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgBG.ShowWindow(SW_HIDE);
    sim.Dialogs().m_dlgSelectEdition.ShowWindow(SW_HIDE);
    sim.Dialogs().m_dlgFlashLogin.ShowWindow(SW_HIDE);
    sim.Dialogs().m_dlgWardSafeToken.ShowWindow(SW_SHOW);
    sim.Dialogs().m_dlgWardSafeToken.StartEntry();
}

void VarPlayLoginWardSafeTokenError(CFlashSimulator& sim, const char*) {
    sim.Dialogs().m_dlgWardSafeToken.ShowTokenError();
}

void VarWeiXinWardSafeToken(CFlashSimulator& sim, const char*) {
    sim.Dialogs().m_dlgWeiXinLogin.AskForToken();
}

void VarLoginWardSafeTokenError(CFlashSimulator& sim, const char*) {
    sim.Dialogs().m_dlgWeiXinLogin.ShowTokenError();
}

void VarLoginUser(CFlashSimulator& sim, const char* szValue) {
    DebugMsg("user : %s", szValue);
    sim.Dialogs().m_dlgNewFlashLogin.SetInputText(szValue, INPUT_ACCOUNT);
}

void VarLoginPass(CFlashSimulator& sim, const char* szValue) {
    // NOTE: the password is never logged.
    sim.Dialogs().m_dlgNewFlashLogin.SetInputText(szValue, INPUT_PASSWORD);
}

void VarFocusToFlash(CFlashSimulator& sim, const char* szValue) {
    CDialogSet& dialogs = sim.Dialogs();
    if (dialogs.m_dlgFlashLogin.IsWindowVisible())
        dialogs.m_dlgFlashLogin.FocusInput(SafeAtoi(szValue));
    else if (dialogs.m_dlgNewFlashLogin.IsWindowVisible())
        dialogs.m_dlgNewFlashLogin.FocusInput(SafeAtoi(szValue));
}

void VarPwdIncorrect(CFlashSimulator& sim, const char*) {
    sim.Dialogs().m_dlgNewFlashLogin.MarkPasswordIncorrect();
}

void VarLogProtect(CFlashSimulator& sim, const char* szValue) {
    DebugMsg("logprotect : %s", szValue);
    sim.Dialogs().m_dlgFlashLogin.SetInputText(szValue, INPUT_PROTECT);
}

void VarPicKey(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgFlashLogin.SetPicKey(szValue);
}

void VarShowSoftKb(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgFlashLogin.SetSoftKeyAllowed(!EqualsNoCase(szValue, "0"));
}

void VarLoginHelmSafeWeiXin(CFlashSimulator& sim, const char* szValue) {
    DebugMsg("safetoken : %s", szValue);
    sim.Dialogs().m_dlgWeiXinLogin.TokenField().SetHostText(szValue, INPUT_WEIXIN_TOKEN);
}

// The code as shown: one "*" per byte, at most 255 of them.
struct SMaskedToken {
    explicit SMaskedToken(const char* szValue) {
        SafeSprintf(text, sizeof text, "%s", szValue);
        for (char* p = text; *p; ++p) *p = '*';
    }
    char text[SAFE_TOKEN_BUFFER_SIZE];
};

void VarLoginHelmSafe(CFlashSimulator& sim, const char* szValue) {
    DebugMsg("safetoken : %s", szValue);
    sim.Dialogs().m_dlgNewFlashLogin.SetInputText(SMaskedToken(szValue).text, INPUT_TOKEN);
}

void VarLoginHelmSafeWard(CFlashSimulator& sim, const char* szValue) {
    DebugMsg("safetoken : %s", szValue);
    sim.Dialogs().m_dlgWardSafeToken.TokenField().SetHostText(SMaskedToken(szValue).text, INPUT_WARD_TOKEN);
}

void VarStartToFlash(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgNewFlashLogin.SetSelectionEdge(false, SafeAtoi(szValue));
}

void VarEndToFlash(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgNewFlashLogin.SetSelectionEdge(true, SafeAtoi(szValue));
}

void VarStartToFlashWeiXin(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgWeiXinLogin.TokenField().SetSelectionEdge(false, SafeAtoi(szValue));
}

void VarEndToFlashWeiXin(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgWeiXinLogin.TokenField().SetSelectionEdge(true, SafeAtoi(szValue));
}

void VarStartToFlashWard(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgWardSafeToken.TokenField().SetSelectionEdge(false, SafeAtoi(szValue));
}

void VarEndToFlashWard(CFlashSimulator& sim, const char* szValue) {
    sim.Dialogs().m_dlgWardSafeToken.TokenField().SetSelectionEdge(true, SafeAtoi(szValue));
}

void VarGameBackLogin(CFlashSimulator& sim, const char* szValue) {
    try {
        if (sim.GetGuiMgr()) sim.GetGuiMgr()->Reset(0);
        sim.Dialogs().m_dlgBG.ShowWindow(SW_SHOW);
        sim.Dialogs().m_dlgNewFlashLogin.ShowWindow(SW_SHOW);
        sim.Dialogs().m_dlgNewFlashLogin.OnBackToLogin(SafeAtoi(szValue) == 1);
    } catch (...) {
        SysLogError(__FILE__, __LINE__, "Flash VAR_GAME_BACKLOGOIN Crash!");
    }
}

void VarEnableToken(CFlashSimulator& sim, const char* szValue) {
    sim.State().m_bTokenEnabled = SafeAtoi(szValue) == 1;
    sim.Dialogs().m_dlgNewFlashLogin.ShowTokenRow(sim.State().m_bTokenEnabled);
}

void VarSetKeyDown(CFlashSimulator& sim, const char* szValue) {
    if (EqualsNoCase(szValue, "1")) return sim.Dialogs().m_dlgNewFlashLogin.Login(false);
    if (EqualsNoCase(szValue, "2")) return sim.NotifyHost("CMD_ENTERGAME", "2");
    if (EqualsNoCase(szValue, "3")) return sim.NotifyHost("CMD_ENTERGAME", "3");
    if (EqualsNoCase(szValue, "0")) {
        sim.Dialogs().m_dlgFlashLoginEn.ShowWindow(SW_HIDE);
        sim.Dialogs().m_dlgCharacterEn.ShowWindow(SW_HIDE);
        sim.ShowMessageBox(MSGBOX_EXIT, nullptr);
    }
}

void VarQrCodeLogin(CFlashSimulator& sim, const char*) {
    sim.NotifyHost("CMD_ENTERGAME", "1");
}
void VarSetQRKey(CFlashSimulator& sim, const char* szValue) {
    // Both dialogs get every key, shown or not, so that either can show the code when it opens.
    CDialogSet& dialogs = sim.Dialogs();
    dialogs.m_dlgFlashLogin.SetQRKey(szValue, CQRCodeRenderer::SCALE);
    dialogs.m_dlgScanCodeLogin.SetQRKey(szValue, CQRCodeRenderer::SCALE);
    dialogs.m_dlgFlashLogin.SetQRStatus(CDlgScanCodeLoginEn::QR_SHOWN);
    dialogs.m_dlgScanCodeLogin.SetQRStatus(CDlgScanCodeLoginEn::QR_SHOWN);
}
void VarSetQRCodeStatus(CFlashSimulator& sim, const char* szValue) {
    const int nStatus = SafeAtoi(szValue);
    sim.Dialogs().m_dlgFlashLogin.SetQRStatus(nStatus);
    sim.Dialogs().m_dlgScanCodeLogin.SetQRStatus(nStatus);
}
void VarWeiXinLogin(CFlashSimulator& sim, const char*) {
    sim.NotifyHost("CMD_ENTERGAME", "2");
}
void VarShowExit(CFlashSimulator& sim, const char*) {
    sim.ShowMessageBox(MSGBOX_EXIT, nullptr);
}
void VarLoginError(CFlashSimulator& sim, const char* szValue) {
    sim.ShowMessageBox(MSGBOX_ERROR, szValue);
}
void VarSetRegisterOpen(CFlashSimulator& sim, const char*) {
    sim.State().m_bRegisterOpen = false;
}

void VarVersion(CFlashSimulator& sim, const char* szValue) {
    sim.State().m_strVersion = szValue;
    for (IScreenListener* pListener : sim.Listeners()) pListener->OnVersionChanged(szValue);
}

void VarSetRecAccount(CFlashSimulator& sim, const char* szValue) {
    sim.State().m_vecRecAccount.clear();
    const std::string_view rest = textscan::ForEachTerminated(szValue, '|', [&sim](std::string_view piece) {
        sim.State().m_vecRecAccount.emplace_back(piece);
        return true;
    });
    if (!rest.empty()) sim.State().m_vecRecAccount.emplace_back(rest);
}

void VarMusic(CFlashSimulator& sim, const char* szValue) {
    sim.SetMusic(!EqualsNoCase(szValue, "0"));
    const bool bOn = sim.IsMusicOn();
    for (IScreenListener* pListener : sim.Listeners()) pListener->OnMusicChanged(bOn);
}

void VarMusicSwitch(CFlashSimulator& sim, const char* szValue) {
    if (EqualsNoCase(szValue, "0") && sim.GetGuiMgr()) sim.GetGuiMgr()->Reset(0);
}

void VarResetMainPath(CFlashSimulator& sim, const char* szValue) {
    const auto v = textscan::ReadIntsSeparated(szValue, '-', 3);
    if (v.size() >= 1) sim.State().m_nMainPathWidth = v[0];
    if (v.size() >= 2) sim.State().m_nMainPathHeight = v[1];
}

// ---- role-creation scene -------------------------------------------------------------------------

void VarRoleSetMainPath(CFlashSimulator& sim, const char* szValue) {
    if (sim.GetGuiMgr()) sim.GetGuiMgr()->Reset(0);
    const bool bInternational = EqualsNoCase(RoleDataQueryEx()->GetLanguageName(), "English");
    if (!bInternational) {
        // Showing runs the creation dialog's start (OnInitDialog), which selects a profession again.
        sim.Dialogs().m_dlgCreateRole.ShowWindow(SW_SHOW);
        sim.Dialogs().m_dlgCreateRole.ShowCreationControls(true);
        return;
    }
    const auto v = textscan::ReadIntsSeparated(szValue, '-', 3);
    if (v.size() >= 1) sim.State().m_nMainPathWidth = v[0];
    if (v.size() >= 2) sim.State().m_nMainPathHeight = v[1];
    sim.SetNameSuggest(v.size() >= 3 ? v[2] : 0);
    sim.Dialogs().m_dlgAction.Open();
}

void VarChineseSwitch(CFlashSimulator& sim, const char*) {
    sim.Dialogs().m_dlgProIntro.EnableChineseInput();
}

void VarGetChineseSwitch(CFlashSimulator& sim, const char*) {
    sim.Dialogs().m_dlgProIntro.QueryChineseInput();
}

void VarDarkKnight(CFlashSimulator& sim, const char* szValue) {
    if (EqualsNoCase(szValue, "1")) sim.State().m_bDarkKnight = true;
    if (EqualsNoCase(szValue, "0")) sim.State().m_bDarkKnight = false;
}

void VarShowCreateWnd(CFlashSimulator& sim, const char* szValue) {
    const bool bInternational = EqualsNoCase(RoleDataQueryEx()->GetLanguageName(), "English");
    if (EqualsNoCase(szValue, "1")) {
        // NOTE: the English screen is placed for the size "SetMainPath" stored, never for the "1" of this
        // value (docs/DECISIONS.md).
        if (bInternational)
            sim.Dialogs().m_dlgAction.Open();
        else {
            sim.Dialogs().m_dlgSelectPro.ShowWindow(SW_SHOW);
            sim.Dialogs().m_dlgCreateRole.ShowCreationControls(true);
        }
        return;
    }
    if (!EqualsNoCase(szValue, "0")) return;
    if (bInternational) {
        sim.Dialogs().m_dlgAction.ShowWindow(SW_HIDE);
        sim.Dialogs().m_dlgBaseInfo.ShowWindow(SW_HIDE);
        sim.Dialogs().m_dlgProIntro.ShowWindow(SW_HIDE);
        sim.Dialogs().m_dlgBack.ShowWindow(SW_HIDE);
    } else {
        sim.Dialogs().m_dlgSelectPro.ClearEffects();
        sim.Dialogs().m_dlgSelectHead.ShowWindow(SW_HIDE);
        sim.Dialogs().m_dlgSelectPro.ShowWindow(SW_HIDE);
        sim.Dialogs().m_dlgCreateRole.ShowCreationControls(false);
    }
    sim.Dialogs().m_dlgSceneSelect.ShowWindow(SW_HIDE);
}

// ---- live server lists ---------------------------------------------------------------------------

void VarServerArea(CFlashSimulator& sim, const char* szValue) {
    if (!sim.Lists().SetGroups(szValue)) return;
    CDlgSelectGroup& groups = sim.Dialogs().m_dlgSelectGroup;
    if (sim.IsGroupFirstLanguage() && groups.IsWindowVisible()) groups.RefillGroups();
}

void VarServerName(CFlashSimulator& sim, const char* szValue) {
    sim.Lists().FillNextGroup(szValue);
}

void VarServerStatus(CFlashSimulator& sim, const char* szValue) {
    sim.Lists().SetStatus(szValue);
}

void VarAreaAchTips(CFlashSimulator& sim, const char* szValue) {
    if (!sim.Lists().SetGroupAchTips(szValue)) return;
    CDlgSelectGroup& groups = sim.Dialogs().m_dlgSelectGroup;
    if (sim.IsGroupFirstLanguage() && groups.IsWindowVisible()) groups.RefreshGroupMarks();
}

void VarCurVer(CFlashSimulator& sim, const char* szValue) {
    if (sim.IsGroupFirstLanguage()) return;
    if (const CfgGroupMap* groups = sim.GetStringMgr().GetCfgGroups(SafeAtoi(szValue)))
        sim.Lists().ApplyConfig(*groups);
}

// ---- quick entries -------------------------------------------------------------------------------

constexpr std::size_t QUICK_NAME_SIZE = 260;
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

// Reads one record as "%d_%d_%d_%[^$]$%s" would, each name cut to the 260-byte buffer it was read into.
bool ParseQuickRecord(std::string_view text, SQuickEntry& entry) {
    std::size_t pos = 0;
    std::int32_t numbers[3];
    for (int i = 0; i < 3; ++i) {
        const auto v = textscan::ReadInt(text, pos);
        if (!v) return false;
        numbers[i] = *v;
        if (i < 2) {
            if (pos >= text.size() || text[pos] != '_') return false;
            ++pos;
        }
    }
    entry = SQuickEntry{};
    entry.nModel = numbers[0];
    entry.nGroup = numbers[1];
    entry.nServer = numbers[2];
    if (pos >= text.size() || text[pos] != '_') return true;
    ++pos;
    const std::size_t dollar = text.find('$', pos);
    const std::size_t groupEnd = dollar == std::string_view::npos ? text.size() : dollar;
    if (groupEnd == pos) return true; // "%[^$]" needs one character at least
    entry.strGroupName = text.substr(pos, std::min(groupEnd - pos, QUICK_NAME_SIZE - 1));
    if (dollar == std::string_view::npos) return true;
    pos = dollar + 1;
    while (pos < text.size() && IsBlank(text[pos])) ++pos;
    std::size_t end = pos;
    while (end < text.size() && !IsBlank(text[end])) ++end;
    entry.strServerName = text.substr(pos, std::min(end - pos, QUICK_NAME_SIZE - 1));
    return true;
}

void VarQuickRecord(CFlashSimulator& sim, const char* szValue) {
    const std::string_view value(szValue);
    const std::size_t bar = value.find('|');
    if (bar == std::string_view::npos || SafeAtoi(std::string(value.substr(0, bar)).c_str()) < 1) return;
    sim.State().m_vecQuickEntry.clear();
    auto add = [&sim](std::string_view piece) {
        SQuickEntry entry;
        if (ParseQuickRecord(piece, entry)) sim.State().m_vecQuickEntry.push_back(std::move(entry));
        return true;
    };
    const std::string_view rest = textscan::ForEachTerminated(value.substr(bar + 1), '*', add);
    if (rest.size() >= MIN_TRAILING_RECORD_LENGTH) add(rest);
}

// ---- getters -------------------------------------------------------------------------------------

int FocusedInputField(CFlashSimulator& sim) {
    CDialogSet& dialogs = sim.Dialogs();
    if (RoleDataQueryEn()->IsInputFlagSet()) return 0;
    if (dialogs.m_dlgWeiXinLogin.IsWindowVisible()) return INPUT_WEIXIN_TOKEN;
    if (dialogs.m_dlgWardSafeToken.IsWindowVisible()) return INPUT_WARD_TOKEN;
    return dialogs.m_dlgNewFlashLogin.GetFocusField();
}

const char* GetLoginVariable(CFlashSimulator& sim, const char* szName) {
    // One buffer for every getter: the host reads each answer before it asks the next.
    static char s_szResult[GETTER_BUFFER_SIZE];
    CDialogSet& dialogs = sim.Dialogs();
    int nResult = 0;
    if (EqualsNoCase(szName, "VAR_INPUTSTATE"))
        nResult = dialogs.m_dlgNewFlashLogin.IsWindowVisible() ? 1 : 0;
    else if (EqualsNoCase(szName, "VAR_INPUTSTATE_WEIXIN"))
        nResult = dialogs.m_dlgWeiXinLogin.IsWindowVisible() ? 1 : 0;
    else if (EqualsNoCase(szName, "VAR_INPUTSTATE_WARD"))
        nResult = dialogs.m_dlgWardSafeToken.IsWindowVisible() ? 1 : 0;
    else if (EqualsNoCase(szName, "VAR_FOCUS"))
        nResult = FocusedInputField(sim);
    else if (EqualsNoCase(szName, "VAR_STARTTOVC") || EqualsNoCase(szName, "VAR_ENDTOVC")) {
        const bool bEnd = EqualsNoCase(szName, "VAR_ENDTOVC");
        nResult = dialogs.m_dlgWardSafeToken.IsWindowVisible()
                      ? dialogs.m_dlgWardSafeToken.TokenField().GetSelectionEdge(bEnd)
                      : dialogs.m_dlgNewFlashLogin.GetSelectionEdge(bEnd);
    } else
        return "";
    SafeItoA(nResult, s_szResult, sizeof s_szResult, 10);
    return s_szResult;
}

// ---- the two vocabularies and the dispatch -------------------------------------------------------

// The two vocabularies, keyed by the lower-cased name, so that dispatch costs one hash whatever their size.
struct VariableTables {
    using Table = std::unordered_map<std::string_view, Handler>;

    static const Table& Login() {
        static const Table table = {
            {"var_mainpath", &VarMainPath},
            {"var_quicklogin", &VarQuickLogin},
            {"var_focustoflash", &VarFocusToFlash},
            {"var_weixin_ward_safe_token", &VarWeiXinWardSafeToken},
            {"var_play_login_ward_safe_token", &VarPlayLoginWardSafeToken},
            {"var_area_ach_tips", &VarAreaAchTips},
            {"var_cur_ver", &VarCurVer},
            {"var_playlogin", &VarPlayLogin},
            {"var_server_area", &VarServerArea},
            {"var_sever_ach_tips", &VarNoEffect},
            {"var_server_name", &VarServerName},
            {"var_loginuser", &VarLoginUser},
            {"var_loginpass", &VarLoginPass},
            {"var_logprotect", &VarLogProtect},
            {"var_loginhelmsafe", &VarLoginHelmSafe},
            {"var_loginhelmsafe_weixin", &VarLoginHelmSafeWeiXin},
            {"var_loginhelmsafe_ward", &VarLoginHelmSafeWard},
            {"var_starttoflash", &VarStartToFlash},
            {"var_starttoflash_weixin", &VarStartToFlashWeiXin},
            {"var_starttoflash_ward", &VarStartToFlashWard},
            {"var_endtoflash", &VarEndToFlash},
            {"var_endtoflash_weixin", &VarEndToFlashWeiXin},
            {"var_endtoflash_ward", &VarEndToFlashWard},
            {"var_game_backlogoin", &VarGameBackLogin},
            {"var_enable_token", &VarEnableToken},
            {"var_setkeydown", &VarSetKeyDown},
            {"var_qrcode_login", &VarQrCodeLogin},
            {"var_login_ward_safe_token_error", &VarLoginWardSafeTokenError},
            {"var_play_login_ward_safe_token_error", &VarPlayLoginWardSafeTokenError},
            {"var_weixin_login", &VarWeiXinLogin},
            {"var_showexit", &VarShowExit},
            {"var_version", &VarVersion},
            {"var_shortpwdtip", &VarNoEffect},
            {"var_setrecaccount", &VarSetRecAccount},
            {"var_quick_record", &VarQuickRecord},
            {"var_serverstatus", &VarServerStatus},
            {"var_pickey", &VarPicKey},
            {"var_showsoftkb", &VarShowSoftKb},
            {"var_musicswitch", &VarMusicSwitch},
            {"var_music", &VarMusic},
            {"setloginerror", &VarLoginError},
            {"setqrkey", &VarSetQRKey},
            {"setqrcodestatus", &VarSetQRCodeStatus},
            {"setregisteropen", &VarSetRegisterOpen},
            {"setpwdincorrect", &VarPwdIncorrect},
            {"resetmainpath", &VarResetMainPath},
        };
        return table;
    }

    static const Table& RoleCreate() {
        static const Table table = {
            {"setmainpath", &VarRoleSetMainPath},
            {"chineseswitch", &VarChineseSwitch},
            {"getchineseswitch", &VarGetChineseSwitch},
            {"setroletype", &VarNoEffect},
            {"setexit", &VarNoEffect},
            {"regsuccess", &VarNoEffect},
            {"setloginerror", &VarLoginError},
            {"darkknightcancrate", &VarDarkKnight},
            {"showcreatewnd", &VarShowCreateWnd},
        };
        return table;
    }
};

Handler FindHandler(bool bLogin, const char* szName) {
    char buf[MAX_VARIABLE_NAME + 1];
    std::string_view folded;
    if (!FoldName(szName, buf, folded)) return nullptr;
    const auto& table = bLogin ? VariableTables::Login() : VariableTables::RoleCreate();
    const auto it = table.find(folded);
    return it == table.end() ? nullptr : it->second;
}
} // namespace

void SetSimulatorVariable(CFlashSimulator& sim, const char* szName, const char* szValue) {
    if (!szName || !szValue) return;
    const ESceneType eScene = sim.State().m_eSceneType;
    if (eScene != EST_LOGIN && eScene != EST_ROLE_CREATE) return;
    if (Handler handler = FindHandler(eScene == EST_LOGIN, szName)) handler(sim, szValue);
}

const char* GetSimulatorVariable(CFlashSimulator& sim, const char* szName) {
    if (!szName) return nullptr;
    if (sim.State().m_eSceneType == EST_LOGIN) return GetLoginVariable(sim, szName);
    if (sim.State().m_eSceneType == EST_ROLE_CREATE) return "";
    return nullptr;
}
