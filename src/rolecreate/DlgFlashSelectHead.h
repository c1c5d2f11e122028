// The head (face picture) grid of the standard creation layout.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashSelectHead : public CSimDialog {
public:
    static constexpr UINT IDD = 1010;

    CDlgFlashSelectHead();
    ~CDlgFlashSelectHead() override;
};
