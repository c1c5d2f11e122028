// The curtain shown while the client switches its language.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashSwitchLanguageEn : public CSimDialog {
public:
    static constexpr UINT IDD = 2000;

    CDlgFlashSwitchLanguageEn();
    ~CDlgFlashSwitchLanguageEn() override;
};
