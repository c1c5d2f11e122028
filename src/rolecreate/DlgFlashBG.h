// The full-screen backdrop of the login and creation scenes; its picture comes from its layout record.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashBG : public CSimDialog {
public:
    static constexpr UINT IDD = 1004;

    CDlgFlashBG();
    ~CDlgFlashBG() override;

    /// Places the 3D camera at the screen's centre, then draws the backdrop of the layout record.
    int Show() override;
};
