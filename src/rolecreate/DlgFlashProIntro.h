// The profession introduction panel of the English creation layout.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashProIntro : public CSimDialog {
public:
    static constexpr UINT IDD = 1016;

    CDlgFlashProIntro();
    ~CDlgFlashProIntro() override;
};
