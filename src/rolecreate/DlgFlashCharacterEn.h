// The roles an account already has on the chosen international server.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashCharacterEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1024;

    CDlgFlashCharacterEn();
    ~CDlgFlashCharacterEn() override;
};
