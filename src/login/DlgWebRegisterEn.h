// The account registration web page hosted in the client.
#pragma once

#include "controls/SimDialog.h"

class CDlgWebRegisterEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1020;

    CDlgWebRegisterEn();
    ~CDlgWebRegisterEn() override;
};
