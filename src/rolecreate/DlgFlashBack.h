// The back button of the English creation layout.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashBack : public CSimDialog {
public:
    static constexpr UINT IDD = 1019;

    CDlgFlashBack();
    ~CDlgFlashBack() override;
};
