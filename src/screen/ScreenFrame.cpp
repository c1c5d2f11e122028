// The decorations the login-scene screens share: music check, back, exit, version label, logo and panels,
// bound, handled and kept current with the host's music and version in one place.
#include "screen/ScreenFrame.h"

#include "resources/MyString.h"

CScreenFrame::CScreenFrame(CSimDialog& owner, const SScreenFrameIds& ids) : m_owner(owner), m_ids(ids) {
}

CScreenFrame::~CScreenFrame() {
    // NOTE: frames die with their dialogs inside the simulator's destruction, while it still answers.
    if (m_pSubscribedTo && ScreenContext() == m_pSubscribedTo) m_pSubscribedTo->RemoveListener(this);
}

// ---- controls ------------------------------------------------------------------------------------

void CScreenFrame::Bind(LuGui::CDataExchange* pDX) {
    auto bind = [pDX](UINT nId, LuGui::CLuCtrl& control) {
        if (nId != 0) LuGui::DDX_Control(pDX, static_cast<int>(nId), control);
    };
    bind(m_ids.nBack, m_btnBack);
    bind(m_ids.nExit, m_btnExit);
    bind(m_ids.nSound, m_chkSound);
    for (std::size_t i = 0; i < m_staPanels.size(); ++i) bind(m_ids.panels[i], m_staPanels[i]);
    bind(m_ids.nVersion, m_staVersion);
    bind(m_ids.nLogo, m_staLogo);
}

void CScreenFrame::MapHandlers() {
    if (m_ids.nSound) m_owner.PushMsgMap(WM_COMMAND, m_ids.nSound, [this] { OnSound(); });
    if (m_ids.nBack) m_owner.PushMsgMap(WM_COMMAND, m_ids.nBack, [this] { OnBack(); });
    if (m_ids.nExit) m_owner.PushMsgMap(WM_COMMAND, m_ids.nExit, [this] { OnExit(); });
}

void CScreenFrame::OnOpen() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext) return;
    if (m_pSubscribedTo != pContext) {
        pContext->AddListener(this);
        m_pSubscribedTo = pContext;
    }
    m_chkSound.SetChecked(pContext->IsMusicOn());
    SetVersionText(pContext->GetVersion());
}

void CScreenFrame::EnableNavigation(bool bEnable) {
    const BOOL b = bEnable ? TRUE : FALSE;
    m_btnBack.EnableWindow(b);
    m_btnExit.EnableWindow(b);
}

// ---- handlers ------------------------------------------------------------------------------------

void CScreenFrame::OnSound() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext || IsLocked()) return;
    pContext->SetMusic(m_chkSound.GetCheckValue());
    pContext->NotifyHost("SET_MUSIC", pContext->IsMusicOn() ? "1" : "0");
}

void CScreenFrame::OnBack() {
    IScreenContext* pContext = ScreenContext();
    if (!pContext || IsLocked()) return;
    if (m_beforeBack) m_beforeBack();
    pContext->OnReturn();
}

void CScreenFrame::OnExit() {
    IScreenContext* pContext = ScreenContext();
    if (pContext && !IsLocked()) pContext->ShowMessageBox(MSGBOX_EXIT, nullptr);
}

// ---- the host's changes --------------------------------------------------------------------------

void CScreenFrame::OnMusicChanged(bool bOn) {
    if (m_owner.IsWindowVisible()) m_chkSound.SetChecked(bOn);
}

void CScreenFrame::OnVersionChanged(const char* szVersion) {
    if (m_owner.IsWindowVisible()) SetVersionText(szVersion);
}

void CScreenFrame::SetVersionText(const char* szVersion) {
    IScreenContext* pContext = ScreenContext();
    if (!pContext || !szVersion || !*szVersion) return;
    m_staVersion.SetWindowTextA(m_pfnVersionText(*pContext, szVersion).c_str());
}

std::string CScreenFrame::VersionLabelText(IScreenContext& context, const char* szVersion) {
    return CMyString::Format(context.GetStr(STR_VERSION_FORMAT), szVersion);
}
