// The dialog manager of the widget toolkit: layout, dialog creation, z-order, message routing, focus,
// activation and tips.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "LayoutFile.h"
#include "LuGui.h"

namespace LuGui {

class CGuiMgr final : public ILuGuiMgr {
public:
    CGuiMgr();

    bool Init(HINSTANCE hInstance, std::uint64_t hHost, std::uint32_t nHostValue,
              const char* szLayoutFile) override;
    void Release() override;
    /// Init with the text of a layout file instead of the file (for a caller that holds it); szName names it
    /// in messages.
    void InitFromText(std::uint64_t hHost, std::string_view text, const char* szName);
    void SetSoundCallBack(PFN_SoundCallBack pfn) override;
    bool RegisterDialog(CLuDialog* pDialog, int nReserved1, int nReserved2) override;
    void Process() override;
    void Show() override;
    void Reset(int nReserved) override;
    LRESULT MsgProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void RegisterRangedString(std::int64_t nKey, const char* szText) override;
    void ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    void ShowTip(const char* szText, int x, int y, DWORD dwColor) override;
    CLuEdit* GetFocusEdit() const override { return m_pFocusEdit; }
    void SetFocusEdit(CLuEdit* pEdit) override { m_pFocusEdit = pEdit; }
    const CLuLayoutRecord* FindLayout(const char* szSection) const override;
    HWND GetHostWindow() const override { return m_hHostWnd; }

    // ---- what dialogs report --------------------------------------------------------------------

    /// A dialog was shown or hidden: activation after "OpenInactive", and a hidden dialog drops the focus,
    /// the capture and the attention.
    void OnDialogShown(CLuDialog* pDialog, bool bShown);
    /// Moves a dialog to the top of the drawing order (below the top-most ones unless it is one).
    void BringToTop(CLuDialog* pDialog);
    /// A registered dialog is being destroyed: the manager forgets it and its controls.
    void ForgetDialog(CLuDialog* pDialog);

    /// The registered dialog with that template id, null when none.
    CLuDialog* FindDialog(UINT nTemplateId) const;
    /// The process's live manager (the last one created), for the host's inspection.
    static CGuiMgr* Current();
    /// The registered dialogs in drawing order, bottom first (for the host's inspection).
    const std::vector<CLuDialog*>& DrawingOrder() const { return m_vecDialogs; }
    /// The dialog that receives a press at a screen point, null when none (for the host's inspection).
    CLuDialog* DialogUnder(POINT pt) const { return DialogAt(pt); }

    /// The top-most visible, enabled dialog under a screen point (a dialog counts where it or one of its
    /// controls lies; a click-through dialog only where one of its controls lies).
    CLuDialog* DialogAt(POINT pt) const;

private:
    ~CGuiMgr();

    struct STip {
        std::string strText;
        POINT pt;
        DWORD dwColor;
    };
    struct SPendingActivation {
        CLuDialog* pDialog;
        DWORD dwShownAt;
    };

    /// What every Init does before reading the layout: the journal line and the host's window.
    void BeginInit(std::uint64_t hHost, const std::string& strFile);
    /// Where keyboard messages go: the focused edit's dialog, else the dialog last pressed, else the top-most
    /// visible one.
    CLuDialog* KeyboardTarget();
    static bool IsMouseMessage(UINT uMsg);
    static bool IsKeyMessage(UINT uMsg);
    void NotifyLostFocus(CLuDialog* pPressed);
    void ShowHoverTip();
    /// Hands the messages posted to this manager's windows to their WindowProc.
    void DeliverPostedMessages();
    void DrawTips();

    CLayoutFile m_layout;
    HWND m_hHostWnd = nullptr;
    /// The layout file's name without ".ini" and language suffix ("FlashGui"); empty when the layout came
    /// from text, which no language change replaces.
    std::string m_strLayoutBase;
    /// The language position seen at the last frame, for the reset after a change.
    int m_nLanguage = 0;
    bool m_bLanguageSeen = false;
    void ResetAfterLanguageChange();
    /// Reads the layout file of a language (falling back to the base file, logging what is missing) into
    /// layout; false when neither can be read.
    static bool LoadLayout(CLayoutFile& layout, const std::string& strFile, const std::string& strFallback);
    /// Replaces the layout by the language's file and points every window at its new record; the old layout
    /// stays when the new one cannot be read.
    void ReloadLayoutForLanguage(int nLanguageIndex);
    PFN_SoundCallBack m_pfnSound = nullptr;
    /// Moves the top-most dialogs after the others, keeping the order within each kind.
    void KeepTopMostOnTop();

    std::vector<CLuDialog*> m_vecDialogs; ///< drawing order, bottom first, top-most dialogs last
    std::vector<SPendingActivation> m_vecPending;
    std::vector<STip> m_vecTips;
    CLuEdit* m_pFocusEdit = nullptr;
    CLuDialog* m_pCaptureDialog = nullptr;
    CLuDialog* m_pAttentionDialog = nullptr; ///< the dialog the last left press landed on
};

} // namespace LuGui
