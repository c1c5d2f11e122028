// The base class of every dialog of the front end: a widget-library dialog built from a template id.
#pragma once

#include "platform/LuDialog.h"

class CSimDialog : public LuGui::CLuDialog {
public:
    /// The parent is accepted for the dialogs' sake but never passed on: every dialog is top-level.
    explicit CSimDialog(UINT nIDTemplate, LuGui::CLuBaseWindow* pParent = nullptr);
    ~CSimDialog() override;

    BOOL PreInitData() override;
    /// Brings the dialog in front of the others.
    virtual void BringToTop();
};
