// The server-group screen: up to 80 group buttons of the chosen edition.
#pragma once

#include "controls/SimDialog.h"

class CDlgSelectGroup : public CSimDialog {
public:
    static constexpr UINT IDD = 1001;

    CDlgSelectGroup();
    ~CDlgSelectGroup() override;

    /// Fills the group buttons from the simulator's live list and refreshes the achievement tips.
    void RefillGroups();
};
