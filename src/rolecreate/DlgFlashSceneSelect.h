// The start-scene choice offered for profession 100.
#pragma once

#include "controls/SimDialog.h"

class CDlgFlashSceneSelect : public CSimDialog {
public:
    static constexpr UINT IDD = 1022;

    CDlgFlashSceneSelect();
    ~CDlgFlashSceneSelect() override;
};
