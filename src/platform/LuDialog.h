// The widget library's window and dialog classes (LuGui::CLuBaseWindow, LuGui::CLuDialog) that every dialog
// derives.
#pragma once

#include "BaseLib.h"

namespace LuGui {

class CDataExchange;

/// Receives the widget library's notifications for a window.
class HOSTLIB_API IMyMsgCallBack {
public:
    virtual ~IMyMsgCallBack() = default;
};

/// A window of the widget library: visibility and enabled state.
class HOSTLIB_API CLuBaseWindow {
public:
    CLuBaseWindow() = default;
    virtual ~CLuBaseWindow() = default;
    CLuBaseWindow(const CLuBaseWindow&) = delete;
    CLuBaseWindow& operator=(const CLuBaseWindow&) = delete;

    virtual BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const { return m_bVisible; }
    void EnableWindow(BOOL bEnable) { m_bEnabled = bEnable != FALSE; }
    BOOL IsWindowEnabled() const { return m_bEnabled; }

protected:
    bool m_bVisible = false;
    bool m_bEnabled = true;
};

/// A dialog built from a template of the layout file.
class HOSTLIB_API CLuDialog : public CLuBaseWindow, public IMyMsgCallBack {
public:
    explicit CLuDialog(UINT nIDTemplate, CLuBaseWindow* pParent = nullptr);
    ~CLuDialog() override = default;

    UINT GetTemplateId() const { return m_nIDTemplate; }

    /// Showing (5) runs OnInitDialog again each time the dialog opens.
    BOOL ShowWindow(int nCmdShow) override;

    virtual BOOL PreInitData();
    virtual int Show();
    virtual LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam);
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual void Reset();
    virtual BOOL OnInitDialog();
    virtual void PreSetParam();
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual void MessageMap();

private:
    UINT m_nIDTemplate;
};

} // namespace LuGui
