// The profession column of the English creation layout.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashBaseInfo : public CSimDialog {
public:
    static constexpr UINT IDD = 1017;

    CDlgFlashBaseInfo();
    ~CDlgFlashBaseInfo() override;
};
