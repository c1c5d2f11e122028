// The quick-entry editor: which record a new quick entry replaces.
#pragma once

#include "controls/SimDialog.h"

class CDlgAddQuickEntry : public CSimDialog {
public:
    static constexpr UINT IDD = 1007;

    CDlgAddQuickEntry();
    ~CDlgAddQuickEntry() override;
};
