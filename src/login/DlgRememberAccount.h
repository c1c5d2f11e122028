// The dialog that offers to remember or bind the account.
#pragma once

#include "controls/SimDialog.h"

class CDlgRememberAccount : public CSimDialog {
public:
    static constexpr UINT IDD = 1006;

    CDlgRememberAccount();
    ~CDlgRememberAccount() override;
};
