// The widget toolkit's dialog (LuGui::CLuDialog): a window built from a template of the layout file, with
// bound controls and a message map.
#pragma once

#include <functional>
#include <vector>

#include "LuBaseWindow.h"

namespace LuGui {

class CLuCtrl;
class CLuDialog;

/// Message the toolkit sends a dialog that opened inactive once it becomes active.
inline constexpr UINT LU_MSG_ACTIVATE = 10027;
/// Message the toolkit sends a dialog that had the player's attention when a press lands elsewhere.
inline constexpr UINT LU_MSG_LOSE_FOCUS = 10029;

/// The context of DoDataExchange: the dialog whose controls are being bound.
class CDataExchange {
public:
    explicit CDataExchange(CLuDialog* pDialog) : m_pDialog(pDialog) {}
    CLuDialog* GetDialog() const { return m_pDialog; }

private:
    CLuDialog* m_pDialog;
};

/// Binds rControl to control nIDC of the dialog: attaches its layout record (none when the layout does not
/// describe it), applies the layout, then runs the control's PreInitData and InitData.
void DDX_Control(CDataExchange* pDX, int nIDC, CLuCtrl& rControl);

class CLuDialog : public CLuBaseWindow, public IMyMsgCallBack {
public:
    /// A handler of the message map: no argument, one per control id.
    using MsgHandler = std::function<void()>;

    explicit CLuDialog(UINT nIDTemplate, CLuBaseWindow* pParent = nullptr);
    ~CLuDialog() override;

    UINT GetTemplateId() const { return m_nIDTemplate; }

    // ---- overridable, in slot order -----------------------------------------------------------

    /// At creation, with the layout record attached.
    BOOL PreInitData() override;
    /// Background, then every visible control in binding order.
    int Show() override;
    /// Mouse messages go to the control under the point (or the one holding the press), keys to the
    /// focused edit, command 273 to the message map.
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    /// Runs before WindowProc for mouse and key messages; non-zero stops the message there.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// The manager's reset.
    virtual void Reset();
    /// After the controls are bound, and again each time the dialog is shown with SW_SHOW.
    virtual BOOL OnInitDialog();
    /// Before the controls are bound.
    virtual void PreSetParam();
    /// Binds the controls (DDX_Control).
    virtual void DoDataExchange(CDataExchange* pDX);
    /// Registers the handlers (PushMsgMap).
    virtual void MessageMap();

    /// SW_SHOW runs OnInitDialog each time and sends message 24 (WM_SHOWWINDOW) when the visibility changes.
    BOOL ShowWindow(int nCmdShow) override;
    /// Controls report through here: the dialog's WindowProc receives the notification.
    LRESULT OnCtrlMsg(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    /// Registers the handler of message uMsg from control nId (a second handler for the same pair replaces
    /// the first).
    void PushMsgMap(UINT uMsg, UINT nId, MsgHandler handler);
    template <class TDialog> void PushMsgMap(UINT uMsg, UINT nId, void (TDialog::*pfn)()) {
        TDialog* self = static_cast<TDialog*>(this);
        PushMsgMap(uMsg, nId, MsgHandler([self, pfn] { (self->*pfn)(); }));
    }
    /// Runs the handler of (uMsg, nId); false when there is none.
    bool DispatchMsgMap(UINT uMsg, UINT nId);

    /// Brings the dialog in front of the other dialogs of its manager.
    void BringWindowToTop();
    /// Whether the dialog opens inactive (layout key "OpenInactive") and has not been activated since it was
    /// last shown.
    bool IsOpenInactive() const { return m_bInactive; }
    /// Whether the dialog stays above the others (layout key "TopMost").
    bool IsTopMost() const { return m_bTopMost; }
    /// Layout key "ClickThrough": the mouse reaches the dialogs below wherever this one has no control (a
    /// panel drawn over a screen whose own controls stay usable).
    bool IsClickThrough() const { return m_bClickThrough; }

    /// The bound control with that id (GetDlgItem), null when none is bound.
    CLuCtrl* GetControl(UINT nId) const;

protected:
    void ShowBackGround() override;

private:
    /// The toolkit's own bookkeeping (bound controls, creation, activation, hit tests).
    friend class CLuToolkit;

    struct SMsgEntry {
        UINT uMsg;
        UINT nId;
        MsgHandler handler;
    };

    /// The top-most visible, enabled control at a screen point that takes presses (bAnyControl: any control,
    /// for tool tips).
    CLuCtrl* ControlAt(POINT ptScreen, bool bAnyControl = false) const;
    LRESULT RouteMouse(UINT uMsg, WPARAM wParam, LPARAM lParam);
    LRESULT RouteKey(UINT uMsg, WPARAM wParam, LPARAM lParam);

    UINT m_nIDTemplate;
    std::vector<CLuCtrl*> m_vecCtrls;
    std::vector<SMsgEntry> m_vecMsgMap;
    CLuCtrl* m_pCapture = nullptr;
    bool m_bTopMost = false;
    bool m_bClickThrough = false;
    bool m_bInactive = false;
    DWORD m_dwOpenInactiveMs = 0;
};

} // namespace LuGui
