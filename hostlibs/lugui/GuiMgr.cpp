// The dialog manager: creates registered dialogs from the layout, routes the host's messages, activates
// dialogs that open inactive, draws dialogs and tips.
#include "GuiMgr.h"

#include <strings.h>

#include <algorithm>
#include <string>

#include "BaseLib.h"
#include "Graphics.h"
#include "Input.h"
#include "Log.h"
#include "LuCtrl.h"
#include "LuDialog.h"
#include "LuEdit.h"
#include "LuGui_internal.h"
#include "PostedMessages.h"
#include "WindowClip.h"
#include "hostlibs/HostEnv.h"
#include "hostlibs/HostMisses.h"

namespace LuGui {
namespace {

constexpr const char* DEFAULT_LAYOUT_FILE = "FlashGui.ini";
constexpr std::string_view LAYOUT_EXTENSION = ".ini";
constexpr DWORD TIP_BACK_COLOUR = 0xC0000000;
constexpr int TIP_PADDING = 3;

CGuiMgr* g_pCurrent = nullptr;

// "FlashGui_2.ini" and "FlashGui.ini" are both of the base "FlashGui"; other names have no language variants.
std::string LayoutBaseOf(std::string_view file) {
    if (file.size() <= LAYOUT_EXTENSION.size() ||
        ::strncasecmp(file.data() + file.size() - LAYOUT_EXTENSION.size(), LAYOUT_EXTENSION.data(),
                      LAYOUT_EXTENSION.size()) != 0)
        return {};
    std::string_view base = file.substr(0, file.size() - LAYOUT_EXTENSION.size());
    const std::size_t underscore = base.rfind('_');
    if (underscore != std::string_view::npos && underscore + 1 < base.size() &&
        base.find_first_not_of("0123456789", underscore + 1) == std::string_view::npos)
        base = base.substr(0, underscore);
    return std::string(base);
}

// The same rule as the client's first choice of a layout: index 0 (or below) reads the base file.
std::string LayoutFileOf(const std::string& strBase, int nLanguageIndex) {
    return nLanguageIndex < 1
               ? strBase + std::string(LAYOUT_EXTENSION)
               : strBase + "_" + std::to_string(nLanguageIndex) + std::string(LAYOUT_EXTENSION);
}

} // namespace

CGuiMgr::CGuiMgr() {
    g_pCurrent = this;
}

CGuiMgr::~CGuiMgr() {
    if (g_pCurrent == this) g_pCurrent = nullptr;
}

CGuiMgr* CGuiMgr::Current() {
    return g_pCurrent;
}

bool CGuiMgr::Init(HINSTANCE, std::uint64_t hHost, std::uint32_t, const char* szLayoutFile) {
    const std::string file = szLayoutFile && *szLayoutFile ? szLayoutFile : DEFAULT_LAYOUT_FILE;
    BeginInit(hHost, file);
    m_strLayoutBase = LayoutBaseOf(file);
    return LoadLayout(m_layout, file, DEFAULT_LAYOUT_FILE);
}

bool CGuiMgr::LoadLayout(CLayoutFile& layout, const std::string& strFile, const std::string& strFallback) {
    if (layout.Load(strFile.c_str())) return true;
    if (strFile != strFallback) {
        LogMsg("layout %s missing, reading %s", strFile.c_str(), strFallback.c_str());
        if (layout.Load(strFallback.c_str())) return true;
    }
    LogMsg("layout %s missing", strFallback.c_str());
    return false;
}

void CGuiMgr::ReloadLayoutForLanguage(int nLanguageIndex) {
    if (m_strLayoutBase.empty()) return;
    CLayoutFile fresh;
    if (!LoadLayout(fresh, LayoutFileOf(m_strLayoutBase, nLanguageIndex), LayoutFileOf(m_strLayoutBase, 0)))
        return;
    host::Journal("gui.layout", {{"language", std::to_string(nLanguageIndex)}});
    // NOTE: moving an unordered_map keeps its records where they are, so the windows' old records stay
    // readable (for their texts) until every window points at its new one.
    const CLayoutFile old = std::move(m_layout);
    m_layout = std::move(fresh);
    for (CLuDialog* pDialog : m_vecDialogs) {
        const UINT nTemplate = pDialog->GetTemplateId();
        CLuToolkit::Relink(*pDialog, m_layout.Find(CLayoutFile::DialogSection(nTemplate)));
        for (CLuCtrl* pCtrl : CLuToolkit::Controls(*pDialog))
            CLuToolkit::Relink(*pCtrl,
                               m_layout.Find(CLayoutFile::ControlSection(nTemplate, pCtrl->GetDlgCtrlID())));
    }
}

void CGuiMgr::InitFromText(std::uint64_t hHost, std::string_view text, const char* szName) {
    const std::string name = szName ? szName : "";
    BeginInit(hHost, name);
    m_layout.Parse(text, name.c_str());
}

void CGuiMgr::BeginInit(std::uint64_t hHost, const std::string& strFile) {
    host::Journal("gui.init", {{"file", strFile}});
    m_hHostWnd = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(hHost));
}

void CGuiMgr::Release() {
    host::Journal("gui.release");
    // The dialogs are the caller's and outlive the manager: they must not keep pointing at it, nor at the
    // layout records it owns.
    for (CLuDialog* pDialog : m_vecDialogs) {
        for (CLuCtrl* pCtrl : CLuToolkit::Controls(*pDialog))
            CLuToolkit::Attach(*pCtrl, nullptr, pDialog, pCtrl->GetDlgCtrlID(), nullptr);
        CLuToolkit::Attach(*pDialog, nullptr, nullptr, pDialog->GetTemplateId(), nullptr);
    }
    delete this;
}

void CGuiMgr::SetSoundCallBack(PFN_SoundCallBack pfn) {
    m_pfnSound = pfn;
    host::Journal("gui.soundcb");
}

const CLuLayoutRecord* CGuiMgr::FindLayout(const char* szSection) const {
    return szSection ? m_layout.Find(szSection) : nullptr;
}

// ---- creation ------------------------------------------------------------------------------------

bool CGuiMgr::RegisterDialog(CLuDialog* pDialog, int, int) {
    if (!pDialog) return false;
    host::Journal("gui.register", {{"id", std::to_string(pDialog->GetTemplateId())}});
    CLuToolkit::ClearForCreation(*pDialog);
    const std::string section = CLayoutFile::DialogSection(pDialog->GetTemplateId());
    const CLuLayoutRecord* pLayout = m_layout.Find(section);
    if (!pLayout) host::NoteMiss("dialog-layout", section);
    CLuToolkit::Attach(*pDialog, this, nullptr, pDialog->GetTemplateId(), pLayout);
    pDialog->CLuBaseWindow::ShowWindow(SW_HIDE);
    if (std::find(m_vecDialogs.begin(), m_vecDialogs.end(), pDialog) == m_vecDialogs.end())
        m_vecDialogs.push_back(pDialog);
    pDialog->PreSetParam();
    pDialog->PreInitData();
    CDataExchange dx(pDialog);
    pDialog->DoDataExchange(&dx);
    pDialog->MessageMap();
    KeepTopMostOnTop(); // the layout's flag is known from PreInitData on
    // NOTE: OnInitDialog runs when the dialog is shown, not here: dialogs start hidden, and their
    // initialisation reads live state and talks to the host, which cannot answer before Create returns.
    return true;
}

// ---- per frame -----------------------------------------------------------------------------------

void CGuiMgr::Process() {
    ResetAfterLanguageChange();
    DeliverPostedMessages();
    const DWORD dwNow = TimeGet();
    // Activation may show or hide dialogs, which edits the list: take the due ones out first.
    std::vector<CLuDialog*> due;
    std::erase_if(m_vecPending, [&](const SPendingActivation& p) {
        if (dwNow - p.dwShownAt < CLuToolkit::OpenInactiveMs(*p.pDialog)) return false;
        due.push_back(p.pDialog);
        return true;
    });
    for (CLuDialog* pDialog : due)
        if (pDialog->IsWindowVisible()) CLuToolkit::Activate(*pDialog);
    ShowHoverTip();
}

void CGuiMgr::ResetAfterLanguageChange() {
    // NOTE: the client's toolkit reloads its texts and resets every dialog on the frame after the language
    // changed; dialogs rely on it (the language curtain starts its timer in its Reset).
    const int nLanguage = g_objMultiLang.GetCurIndex();
    const bool bChanged = m_bLanguageSeen && nLanguage != m_nLanguage;
    m_nLanguage = nLanguage;
    m_bLanguageSeen = true;
    if (!bChanged) return;
    if (const SLanguageInfo* pInfo = g_objMultiLang.GetInfo(nLanguage))
        ReloadLayoutForLanguage(pInfo->nIndex);
    Reset(0);
}

void CGuiMgr::DeliverPostedMessages() {
    // NOTE: one at a time, at most as many as were queued when the frame began: a handler may post again
    // (that waits for the next frame) or destroy a window, which drops its queued messages.
    CPostedMessages::SPosted msg{};
    for (std::size_t n = CPostedMessages::Count(); n > 0 && CPostedMessages::TakeOneFor(this, msg); --n)
        msg.pWnd->WindowProc(msg.uMsg, msg.wParam, msg.lParam);
}

void CGuiMgr::KeepTopMostOnTop() {
    std::stable_partition(m_vecDialogs.begin(), m_vecDialogs.end(),
                          [](const CLuDialog* pDialog) { return !pDialog->IsTopMost(); });
}

void CGuiMgr::Show() {
    for (CLuDialog* pDialog : m_vecDialogs) {
        if (!pDialog->IsWindowVisible()) continue;
        // A dialog draws its controls and then what it adds itself; all of it stays inside the dialog. Tips
        // are the manager's and may cross dialogs.
        const WindowClip clip(*pDialog);
        pDialog->Show();
    }
    DrawTips();
}

void CGuiMgr::ShowTip(const char* szText, int x, int y, DWORD dwColor) {
    if (!szText || !*szText) return;
    m_vecTips.push_back(STip{szText, POINT{x, y}, dwColor});
}

void CGuiMgr::ShowHoverTip() {
    POINT pt{};
    GetCursorPos(&pt);
    CLuDialog* pDialog = DialogAt(pt);
    CLuCtrl* pCtrl = pDialog ? CLuToolkit::ControlAt(*pDialog, pt, true) : nullptr;
    if (!pCtrl || !*pCtrl->GetTipText()) return;
    const RECT rc = pCtrl->GetWindowRect();
    ShowTip(pCtrl->GetTipText(), rc.left, rc.bottom + TIP_PADDING, pCtrl->GetTipColor());
}

void CGuiMgr::DrawTips() {
    const int nFont = CMyBitmap::GetFontSize();
    for (const STip& tip : m_vecTips) {
        const int nWidth = CMyBitmap::GetStringWidth(tip.strText.c_str(), nFont);
        const RECT rcBack{tip.pt.x - TIP_PADDING, tip.pt.y - TIP_PADDING, tip.pt.x + nWidth + TIP_PADDING,
                          tip.pt.y + nFont + TIP_PADDING};
        CMyBitmap::ShowBlock(rcBack, TIP_BACK_COLOUR);
        CMyBitmap::ShowString(tip.pt.x, tip.pt.y, tip.dwColor, tip.strText.c_str(),
                              CMyBitmap::GetDefaultFontName(), nFont);
    }
    m_vecTips.clear();
}

void CGuiMgr::Reset(int) {
    host::Journal("gui.reset");
    m_pFocusEdit = nullptr;
    m_pCaptureDialog = nullptr;
    m_pAttentionDialog = nullptr;
    m_vecTips.clear();
    for (CLuDialog* pDialog : std::vector<CLuDialog*>(m_vecDialogs)) pDialog->Reset();
}

// ---- dialogs -------------------------------------------------------------------------------------

void CGuiMgr::OnDialogShown(CLuDialog* pDialog, bool bShown) {
    std::erase_if(m_vecPending, [&](const SPendingActivation& p) { return p.pDialog == pDialog; });
    if (bShown) {
        if (CLuToolkit::OpenInactiveMs(*pDialog) > 0)
            m_vecPending.push_back(SPendingActivation{pDialog, TimeGet()});
        return;
    }
    if (m_pFocusEdit && m_pFocusEdit->GetParentDialog() == pDialog) m_pFocusEdit = nullptr;
    if (m_pCaptureDialog == pDialog) m_pCaptureDialog = nullptr;
    if (m_pAttentionDialog == pDialog) m_pAttentionDialog = nullptr;
}

void CGuiMgr::BringToTop(CLuDialog* pDialog) {
    const auto it = std::find(m_vecDialogs.begin(), m_vecDialogs.end(), pDialog);
    if (it == m_vecDialogs.end()) return;
    m_vecDialogs.erase(it);
    m_vecDialogs.push_back(pDialog);
    KeepTopMostOnTop();
}

void CGuiMgr::ForgetDialog(CLuDialog* pDialog) {
    std::erase(m_vecDialogs, pDialog);
    std::erase_if(m_vecPending, [&](const SPendingActivation& p) { return p.pDialog == pDialog; });
    if (m_pFocusEdit && m_pFocusEdit->GetParentDialog() == pDialog) m_pFocusEdit = nullptr;
    if (m_pCaptureDialog == pDialog) m_pCaptureDialog = nullptr;
    if (m_pAttentionDialog == pDialog) m_pAttentionDialog = nullptr;
}

CLuDialog* CGuiMgr::FindDialog(UINT nTemplateId) const {
    for (CLuDialog* pDialog : m_vecDialogs)
        if (pDialog->GetTemplateId() == nTemplateId) return pDialog;
    return nullptr;
}

CLuDialog* CGuiMgr::DialogAt(POINT pt) const {
    for (auto it = m_vecDialogs.rbegin(); it != m_vecDialogs.rend(); ++it) {
        CLuDialog* pDialog = *it;
        if (!pDialog->IsWindowVisible() || !pDialog->IsWindowEnabled() || pDialog->IsHideState()) continue;
        if (CLuToolkit::ControlAt(*pDialog, pt, true)) return pDialog;
        if (pDialog->HitTest(pt) && !pDialog->IsClickThrough()) return pDialog;
    }
    return nullptr;
}

// ---- messages ------------------------------------------------------------------------------------

bool CGuiMgr::IsMouseMessage(UINT uMsg) {
    return uMsg >= WM_MOUSEMOVE && uMsg <= WM_MOUSEWHEEL;
}

bool CGuiMgr::IsKeyMessage(UINT uMsg) {
    // Keys, characters, system keys, the input method's messages and the mouse leaving the window: what has
    // no point of its own goes where the keyboard goes.
    constexpr UINT FIRST_KEY = 256, LAST_KEY = 264;
    constexpr UINT FIRST_IME = 269, LAST_IME = 271, IME_SET_CONTEXT = 641, MOUSE_LEAVE = 675;
    return (uMsg >= FIRST_KEY && uMsg <= LAST_KEY) || (uMsg >= FIRST_IME && uMsg <= LAST_IME) ||
           uMsg == IME_SET_CONTEXT || uMsg == MOUSE_LEAVE;
}

CLuDialog* CGuiMgr::KeyboardTarget() {
    if (m_pFocusEdit && (!m_pFocusEdit->IsWindowVisible() || !m_pFocusEdit->IsWindowEnabled()))
        m_pFocusEdit = nullptr;
    CLuDialog* pTop = nullptr;
    for (auto it = m_vecDialogs.rbegin(); it != m_vecDialogs.rend() && !pTop; ++it)
        if ((*it)->IsWindowVisible() && (*it)->IsWindowEnabled()) pTop = *it;
    // NOTE: a top-most dialog over the focused field takes the keyboard: typing into a page must never reach
    // a login field beneath it.
    if (pTop && pTop->IsTopMost()) return pTop;
    if (m_pFocusEdit && m_pFocusEdit->GetParentDialog()) return m_pFocusEdit->GetParentDialog();
    if (m_pAttentionDialog && m_pAttentionDialog->IsWindowVisible()) return m_pAttentionDialog;
    return pTop;
}

void CGuiMgr::NotifyLostFocus(CLuDialog* pPressed) {
    CLuDialog* pPrevious = m_pAttentionDialog;
    m_pAttentionDialog = pPressed;
    if (pPrevious && pPrevious != pPressed && pPrevious->IsWindowVisible())
        pPrevious->WindowProc(LU_MSG_LOSE_FOCUS, 0, 0);
}

LRESULT CGuiMgr::MsgProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    CLuDialog* pTarget = nullptr;
    if (IsMouseMessage(uMsg)) {
        const POINT pt{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        const bool bCaptured = m_pCaptureDialog && (uMsg == WM_MOUSEMOVE || uMsg == WM_LBUTTONUP);
        pTarget = bCaptured ? m_pCaptureDialog : DialogAt(pt);
        if (uMsg == WM_LBUTTONDOWN && pTarget && pTarget->IsOpenInactive()) {
            // NOTE: a press into a dialog still waiting for its activation activates it first, so that the
            // press acts (its controls are enabled by the activation).
            std::erase_if(m_vecPending, [&](const SPendingActivation& p) { return p.pDialog == pTarget; });
            CLuToolkit::Activate(*pTarget);
        }
        if (uMsg == WM_LBUTTONDOWN) {
            NotifyLostFocus(pTarget);
            m_pCaptureDialog = pTarget;
        }
        if (uMsg == WM_LBUTTONUP) m_pCaptureDialog = nullptr;
    } else if (IsKeyMessage(uMsg)) {
        pTarget = KeyboardTarget();
    }
    if (!pTarget) return 0;
    MSG msg{hWnd, uMsg, wParam, lParam, TimeGet(), POINT{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}};
    if (!IsMouseMessage(uMsg)) GetCursorPos(&msg.pt);
    if (pTarget->PreTranslateMessage(&msg)) return 1;
    pTarget->WindowProc(uMsg, wParam, lParam);
    return 1;
}

void CGuiMgr::RegisterRangedString(std::int64_t nKey, const char* szText) {
    host::Journal("gui.ranged", {{"key", std::to_string(nKey)}, {"text", szText ? szText : ""}});
}

void CGuiMgr::ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    host::Journal("gui.call", {{"msg", std::to_string(uMsg)},
                               {"wparam", std::to_string(wParam)},
                               {"lparam", std::to_string(lParam)}});
}

// ---- creation of the manager ---------------------------------------------------------------------

namespace {
class CGuiHelper final : public IGuiHelper {
public:
    void Start() override { host::Journal("gui.helper"); }
};
} // namespace

ILuGuiMgr* CreateNewGuiMgr() {
    return new CGuiMgr();
}

IGuiHelper* GetGuiHelper() {
    static CGuiHelper helper;
    return host::GetDataInt("gui.nohelper", 0) ? nullptr : &helper;
}

} // namespace LuGui
