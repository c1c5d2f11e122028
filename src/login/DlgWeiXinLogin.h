// WeChat login: the QR page and the security-code pages.
#pragma once

#include "controls/SimDialog.h"

class CDlgWeiXinLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1011;

    CDlgWeiXinLogin();
    ~CDlgWeiXinLogin() override;
};
