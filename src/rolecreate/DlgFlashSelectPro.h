// Profession, sex and head choice of the standard creation layout.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashSelectPro : public CSimDialog {
public:
    static constexpr UINT IDD = 1009;

    CDlgFlashSelectPro();
    ~CDlgFlashSelectPro() override;
};
