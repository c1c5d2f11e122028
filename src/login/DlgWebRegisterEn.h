// The account registration web page hosted in the client: a framed dialog, centred on the screen, around the
// simulator's embedded browser and a close button.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"

class CWebBrowserEn;

class CDlgWebRegisterEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1020;
    static constexpr UINT IDC_CLOSE = 1021;
    /// The kind of page that opens the embedded browser.
    static constexpr int PAGE_KIND_BROWSER = 7;
    /// The role data's text with the frame numbers (extra width, extra height, close distance, close top,
    /// lift).
    static constexpr std::uint32_t ROLETEXT_FRAME = 1010113;
    static constexpr std::array<int, 5> FRAME_DEFAULTS = {24, 45, 45, 2, 15};

    CDlgWebRegisterEn();
    ~CDlgWebRegisterEn() override;

    /// The browser the dialog hosts (the simulator's); null leaves the page out.
    void SetBrowser(CWebBrowserEn* pBrowser) { m_pBrowser = pBrowser; }
    /// Sizes and places the dialog around the page of a layout record and, for kind 7, opens the page.
    void OpenPage(int nKind, int nLayoutId, const char* szUrl);
    /// The host's pre-translation of a message: keys go to the page, then to the toolkit.
    BOOL PreTranslateHostMessage(MSG* pMsg);
    POINT GetPos() const { return m_ptPos; }

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;
    int Show() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;

private:
    void OnClose();
    void OnShownOrHidden(bool bShown);
    /// Dialog size and place from the record and the frame numbers; false without the record.
    bool PlaceAroundPage(int nLayoutId);

    POINT m_ptPos{0, 0};
    CWebBrowserEn* m_pBrowser = nullptr;
    CSimButton m_btnClose;
};
