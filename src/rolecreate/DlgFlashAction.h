// The 3D preview and frame of the English creation layout.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashAction : public CSimDialog {
public:
    static constexpr UINT IDD = 1018;

    CDlgFlashAction();
    ~CDlgFlashAction() override;
};
