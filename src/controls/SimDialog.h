// The base class of every dialog of the front end: a widget-library dialog built from a template id.
#pragma once

#include "platform/LuDialog.h"

/// Every dialog derives from this class and overrides the operations below (slot order of the toolkit).
class CSimDialog : public LuGui::CLuDialog {
public:
    /// The parent is accepted for the dialogs' sake but never passed on: every dialog is top-level.
    explicit CSimDialog(UINT nIDTemplate, LuGui::CLuBaseWindow* pParent = nullptr);
    ~CSimDialog() override;

    BOOL PreInitData() override;
    int Show() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    void Reset() override;
    BOOL OnInitDialog() override;
    void PreSetParam() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;

    /// Brings the dialog in front of the others (dialogs call it from OnInitDialog when they must).
    virtual void BringToTop();
};
