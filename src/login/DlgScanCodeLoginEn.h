// QR-code login.
#pragma once

#include "controls/SimDialog.h"

class CDlgScanCodeLoginEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1021;

    CDlgScanCodeLoginEn();
    ~CDlgScanCodeLoginEn() override;
};
