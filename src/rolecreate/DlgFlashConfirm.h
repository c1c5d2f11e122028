// The message box every screen uses.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashConfirm : public CSimDialog {
public:
    static constexpr UINT IDD = 1005;

    CDlgFlashConfirm();
    ~CDlgFlashConfirm() override;
};
