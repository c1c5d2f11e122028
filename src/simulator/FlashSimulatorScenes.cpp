// The login chain: selection of model, group and server, the return path and the special-server signal.
#include "simulator/FlashSimulator.h"

#include <string>

namespace {
// Whether the last chosen server carried a special mark; lives as long as the library.
bool g_bSpecialServer = false;

constexpr int GROUP_FIRST_LANGUAGES[] = {1007, 1008, 2001};
} // namespace

bool CFlashSimulator::IsGroupFirstLanguage() const {
    for (int language : GROUP_FIRST_LANGUAGES)
        if (m_nLanguage == language) return true;
    return false;
}

void CFlashSimulator::NotifyHostInt(const char* szCommand, int nValue) {
    char buf[32];
    NotifyHost(szCommand, SafeItoA(nValue, buf, sizeof buf, 10));
}

void CFlashSimulator::NotifyHostIndex(const char* szCommand, int nIndex) {
    NotifyHost(szCommand, std::to_string(static_cast<long long>(nIndex) + 1).c_str());
}

void CFlashSimulator::OnSelectModel(int nModel) {
    m_nModel = nModel;
    m_dlgSelectEdition.ShowWindow(SW_HIDE);
    ClearGroups();
    m_dlgSelectGroup.ShowWindow(SW_SHOW);
    m_nLoginStep = LOGIN_STEP_GROUP;
    NotifyHostInt("CMD_SELECTMODEL", nModel);
    m_dlgSelectGroup.RefillGroups();
}

void CFlashSimulator::OnSelectGroup(int nGroup) {
    m_nGroup = nGroup;
    m_dlgSelectGroup.ShowWindow(SW_HIDE);
    m_dlgSelectServer.ShowWindow(SW_SHOW);
    m_nLoginStep = LOGIN_STEP_SERVER;
    NotifyHostIndex("CMD_SELECTGROUP", nGroup);
}

void CFlashSimulator::OnSelectServer(int nServer) {
    m_nServer = nServer;
    m_dlgSelectServer.ShowWindow(SW_HIDE);
    NotifyHostIndex("CMD_SELECTSERVER", nServer);
    m_dlgFlashLogin.ShowWindow(SW_SHOW);
    m_nLoginStep = LOGIN_STEP_CLASSIC_LOGIN;
    SendSpecialServerSignal(nServer);
}

// The host hears "1" once when the player moves onto specially marked servers and "0" once when moving off
// them.
void CFlashSimulator::SendSpecialServerSignal(int nServer) {
    const SCfgServer* cfg = m_strMgr.GetCfgServer(m_nModel, m_nGroup, nServer);
    const bool bMarked = cfg && cfg->bSpecialMark;
    if (bMarked == g_bSpecialServer) return;
    g_bSpecialServer = bMarked;
    NotifyHost("CMD_RELOAD_INI", bMarked ? "1" : "0");
}

void CFlashSimulator::SetGroup(int nGroup) {
    m_nGroup = nGroup;
    NotifyHostIndex("CMD_SELECTGROUP", nGroup);
}

void CFlashSimulator::SetServer(int nServer, bool bOutside) {
    m_nServer = nServer;
    NotifyHostIndex(bOutside ? "CMD_EX_SELECTSERVER" : "CMD_SELECTSERVER", nServer);
}

void CFlashSimulator::QuickSelect(int nModel, int nGroup, int nServer) {
    m_nModel = nModel;
    NotifyHostInt("CMD_SELECTMODEL", nModel);
    m_nGroup = nGroup;
    NotifyHostIndex("CMD_SELECTGROUP", nGroup);
    OnSelectServer(nServer);
}

void CFlashSimulator::OnReturn() {
    switch (m_nLoginStep) {
    case LOGIN_STEP_GROUP:
        if (IsGroupFirstLanguage()) {
            NotifyHost("CMD_RETURN", "");
            return;
        }
        m_dlgSelectGroup.ShowWindow(SW_HIDE);
        m_dlgSelectEdition.ShowWindow(SW_SHOW);
        m_nLoginStep = LOGIN_STEP_START;
        return;
    case LOGIN_STEP_SERVER:
        m_dlgSelectServer.ShowWindow(SW_HIDE);
        ClearGroups();
        m_dlgSelectGroup.ShowWindow(SW_SHOW);
        m_nLoginStep = LOGIN_STEP_GROUP;
        NotifyHostInt("CMD_SELECTMODEL", m_nModel);
        m_dlgSelectGroup.RefillGroups();
        return;
    case LOGIN_STEP_CLASSIC_LOGIN:
        m_dlgFlashLogin.ShowWindow(SW_HIDE);
        m_dlgSelectServer.ShowWindow(SW_SHOW);
        m_nLoginStep = LOGIN_STEP_SERVER;
        NotifyHost("KILL_All_TIMER", "");
        return;
    case LOGIN_STEP_MAIN_LOGIN:
        m_dlgNewFlashLogin.ShowWindow(SW_HIDE);
        ClearGroups();
        NotifyHost("CMD_RETURNLOGIN", "");
        return;
    default:
        NotifyHost("CMD_RETURNLOGIN", "");
        return;
    }
}
