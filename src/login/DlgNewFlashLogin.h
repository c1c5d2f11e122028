// The main login screen.
#pragma once

#include "controls/SimDialog.h"

class CDlgNewFlashLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1013;

    CDlgNewFlashLogin();
    ~CDlgNewFlashLogin() override;
};
