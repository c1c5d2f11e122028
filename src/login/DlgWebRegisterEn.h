// The account registration web page hosted in the client.
#pragma once

#include <string>

#include "controls/SimDialog.h"

class CDlgWebRegisterEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1020;

    CDlgWebRegisterEn();
    ~CDlgWebRegisterEn() override;

    /// Shows the dialog for a page address with the browser's layout record and a reserved value.
    void OpenPage(const char* szUrl, int nLayoutId, int nReserved);
    const char* GetPageUrl() const { return m_strUrl.c_str(); }

private:
    // NOTE: the embedded page itself (browser wrapper, input forwarding) comes with the web registration
    // screen (docs/STATUS.md); the address is kept for it.
    std::string m_strUrl;
};
