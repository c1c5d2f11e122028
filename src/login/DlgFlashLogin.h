// The classic login dialog shown after a server choice.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1003;

    CDlgFlashLogin();
    ~CDlgFlashLogin() override;
};
