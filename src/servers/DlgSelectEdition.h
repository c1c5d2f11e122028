// The edition screen: five editions and up to three quick-entry records.
#pragma once

#include "controls/SimDialog.h"

class CDlgSelectEdition : public CSimDialog {
public:
    static constexpr UINT IDD = 1000;

    CDlgSelectEdition();
    ~CDlgSelectEdition() override;
};
