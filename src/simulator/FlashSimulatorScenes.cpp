// The login chain: selection of model, group and server, the return path and the special-server signal.
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
// Whether the last chosen server carried a special mark; lives as long as the library.
bool g_bSpecialServer = false;

constexpr int GROUP_FIRST_LANGUAGES[] = {1007, 1008, 2001};

// The host hears "1" once when the player moves onto specially marked servers and "0" once when moving off
// them.
void SendSpecialServerSignal(CFlashSimulator& sim, int nServer) {
    const SCfgServer* cfg = sim.GetStringMgr().GetCfgServer(sim.GetModel(), sim.GetCurGroup(), nServer);
    const bool bMarked = cfg && cfg->bSpecialMark;
    if (bMarked == g_bSpecialServer) return;
    g_bSpecialServer = bMarked;
    sim.NotifyHost("CMD_RELOAD_INI", bMarked ? "1" : "0");
}

// The group screen for the current model, with the host told which model it lists.
void ShowGroupsOfModel(CFlashSimulator& sim) {
    sim.Lists().Clear();
    sim.Dialogs().m_dlgSelectGroup.ShowWindow(SW_SHOW);
    sim.State().m_nLoginStep = LOGIN_STEP_GROUP;
    sim.NotifyHostInt("CMD_SELECTMODEL", sim.State().m_nModel);
    sim.Dialogs().m_dlgSelectGroup.RefillGroups();
}
} // namespace

bool CFlashSimulator::IsGroupFirstLanguage() const {
    for (int language : GROUP_FIRST_LANGUAGES)
        if (m_state.m_nLanguage == language) return true;
    return false;
}

void CFlashSimulator::OnSelectModel(int nModel) {
    m_state.m_nModel = nModel;
    m_pDialogs->m_dlgSelectEdition.ShowWindow(SW_HIDE);
    ShowGroupsOfModel(*this);
}

void CFlashSimulator::OnSelectGroup(int nGroup) {
    m_state.m_nGroup = nGroup;
    m_pDialogs->m_dlgSelectGroup.ShowWindow(SW_HIDE);
    m_pDialogs->m_dlgSelectServer.ShowWindow(SW_SHOW);
    m_state.m_nLoginStep = LOGIN_STEP_SERVER;
    NotifyHostIndex("CMD_SELECTGROUP", nGroup);
}

void CFlashSimulator::OnSelectServer(int nServer) {
    m_state.m_nServer = nServer;
    m_pDialogs->m_dlgSelectServer.ShowWindow(SW_HIDE);
    NotifyHostIndex("CMD_SELECTSERVER", nServer);
    m_pDialogs->m_dlgFlashLogin.ShowWindow(SW_SHOW);
    m_state.m_nLoginStep = LOGIN_STEP_CLASSIC_LOGIN;
    SendSpecialServerSignal(*this, nServer);
}

void CFlashSimulator::SetGroup(int nGroup) {
    m_state.m_nGroup = nGroup;
    NotifyHostIndex("CMD_SELECTGROUP", nGroup);
}

void CFlashSimulator::SetServer(int nServer, bool bOutside) {
    m_state.m_nServer = nServer;
    NotifyHostIndex(bOutside ? "CMD_EX_SELECTSERVER" : "CMD_SELECTSERVER", nServer);
}

void CFlashSimulator::QuickSelect(int nModel, int nGroup, int nServer) {
    m_state.m_nModel = nModel;
    NotifyHostInt("CMD_SELECTMODEL", nModel);
    m_state.m_nGroup = nGroup;
    NotifyHostIndex("CMD_SELECTGROUP", nGroup);
    OnSelectServer(nServer);
}

void CFlashSimulator::OnReturn() {
    switch (m_state.m_nLoginStep) {
    case LOGIN_STEP_GROUP:
        if (IsGroupFirstLanguage()) {
            NotifyHost("CMD_RETURN", "");
            return;
        }
        m_pDialogs->m_dlgSelectGroup.ShowWindow(SW_HIDE);
        m_pDialogs->m_dlgSelectEdition.ShowWindow(SW_SHOW);
        m_state.m_nLoginStep = LOGIN_STEP_START;
        return;
    case LOGIN_STEP_SERVER:
        m_pDialogs->m_dlgSelectServer.ShowWindow(SW_HIDE);
        ShowGroupsOfModel(*this);
        return;
    case LOGIN_STEP_CLASSIC_LOGIN:
        m_pDialogs->m_dlgFlashLogin.ShowWindow(SW_HIDE);
        m_pDialogs->m_dlgSelectServer.ShowWindow(SW_SHOW);
        m_state.m_nLoginStep = LOGIN_STEP_SERVER;
        NotifyHost("KILL_All_TIMER", "");
        return;
    case LOGIN_STEP_MAIN_LOGIN:
        m_pDialogs->m_dlgNewFlashLogin.ShowWindow(SW_HIDE);
        m_lists.Clear();
        NotifyHost("CMD_RETURNLOGIN", "");
        return;
    default:
        NotifyHost("CMD_RETURNLOGIN", "");
        return;
    }
}
