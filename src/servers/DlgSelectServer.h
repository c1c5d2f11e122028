// The server screen: up to 15 servers of the chosen group with their load bars.
#pragma once

#include "controls/SimDialog.h"

class CDlgSelectServer : public CSimDialog {
public:
    static constexpr UINT IDD = 1002;

    CDlgSelectServer();
    ~CDlgSelectServer() override;
};
