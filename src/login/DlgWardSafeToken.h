// The security-token code dialog.
#pragma once

#include "controls/SimDialog.h"

class CDlgWardSafeToken : public CSimDialog {
public:
    static constexpr UINT IDD = 1015;

    CDlgWardSafeToken();
    ~CDlgWardSafeToken() override;
};
