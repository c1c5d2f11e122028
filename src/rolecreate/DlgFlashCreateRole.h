// The creation screen of the standard layout: name, create button, preview.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashCreateRole : public CSimDialog {
public:
    static constexpr UINT IDD = 1008;

    CDlgFlashCreateRole();
    ~CDlgFlashCreateRole() override;
};
