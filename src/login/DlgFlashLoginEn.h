// The international server and character picker.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashLoginEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1023;

    CDlgFlashLoginEn();
    ~CDlgFlashLoginEn() override;
};
