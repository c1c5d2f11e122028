// The start choice of profession 100 in the English creation layout: a high-level or a normal start, with
// the opening time of the high-level start while it is not yet open.
#pragma once

#include <cstdint>
#include <string>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"

class CDlgFlashSceneSelect : public CSimDialog {
public:
    static constexpr UINT IDD = 1022;
    static constexpr UINT IDC_HIGH_LEVEL = 1293;
    static constexpr UINT IDC_NORMAL = 1294;
    static constexpr std::uint32_t STR_CONFIRM_HIGH_LEVEL = 4027921;
    static constexpr std::uint32_t STR_CONFIRM_NORMAL = 4027925;
    static constexpr std::uint32_t STR_OPENING_TIME = 55000014;
    /// The longest opening-time tip (bytes).
    static constexpr std::size_t TIP_MAX = 255;

    CDlgFlashSceneSelect();
    ~CDlgFlashSceneSelect() override;

    BOOL OnInitDialog() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    int Show() override;

    /// The opening time YYMMDDhhmm (read unsigned) as the five numbers filled into a format with five "%d".
    static std::string FormatOpeningTime(const char* szFormat, std::uint32_t nTime);

private:
    void OnHighLevel();
    void OnNormal();
    void ShowOpeningTimeTip();

    CSimButton m_btnHighLevel;
    CSimButton m_btnNormal;
};
