// The 3D preview and frame of the English creation layout: the figure, three action buttons, and the
// placement of the profession column, the introduction panel and the back dialog.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimCheck.h"
#include "controls/SimDialog.h"
#include "controls/SimImage.h"
#include "controls/SimStatic.h"
#include "rolecreate/CreationVolume.h"
#include "rolecreate/RolePreview.h"

class CDlgFlashBaseInfo;
class CDlgFlashProIntro;
class CDlgFlashBack;

class CDlgFlashAction : public CSimDialog {
public:
    static constexpr UINT IDD = 1018;
    static constexpr int ACTION_BUTTONS = 3;
    static constexpr UINT ACTION_IDS[ACTION_BUTTONS] = {1283, 1284, 1285};
    static constexpr UINT LABEL_IDS[ACTION_BUTTONS] = {1286, 1287, 1288};
    static constexpr UINT IDC_MODEL_AREA = 1289;
    static constexpr UINT IDC_LEFT_PICTURE = 1291;
    static constexpr UINT IDC_RIGHT_PICTURE = 1290;
    static constexpr UINT IDC_FRAME = 1292;
    /// Where the introduction panel and the profession column go: three numbers each (grow x, grow y, gap
    /// to the bottom).
    static constexpr std::uint32_t STR_PANEL_PLACE = 9000016;
    static constexpr std::uint32_t STR_COLUMN_PLACE = 9000017;

    CDlgFlashAction();
    ~CDlgFlashAction() override;

    void Link(CDlgFlashBaseInfo* pBaseInfo, CDlgFlashProIntro* pProIntro, CDlgFlashBack* pBack) {
        m_pBaseInfo = pBaseInfo;
        m_pProIntro = pProIntro;
        m_pBack = pBack;
    }

    BOOL OnInitDialog() override;
    void PreSetParam() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    int Show() override;
    /// Profession 100, sex 1, camera start 0, scale 100 (not the toolkit's Reset, which the manager runs for
    /// every dialog on a host reset).
    void ResetChoice();

    /// Places the frame for the stored main-window size (from its layout record) and shows it, which places
    /// and shows the column, the panel and the back dialog.
    void Open();
    void SetProfession(std::int32_t nProfession) { m_preview.SetProfession(nProfession); }
    void SetSex(std::int32_t nSex) { m_preview.SetSex(nSex); }
    std::int32_t GetProfession() const { return m_preview.GetProfession(); }
    std::int32_t GetSex() const { return m_preview.GetSex(); }
    const CRolePreview& GetPreview() const { return m_preview; }

private:
    void OnAction(int nButton);
    void MarkAction(int nButton, DWORD dwPressedColour);
    void PlaceSides();

    CRolePreview m_preview{CRolePreview::SOptions{true, false, true}};
    CCreationVolume m_volume;
    std::array<CSimCheck, ACTION_BUTTONS> m_chkActions;
    std::array<CSimStatic, ACTION_BUTTONS> m_staLabels;
    CSimButton m_btnModelArea;
    CSimImage m_imgLeft;
    CSimImage m_imgRight;
    CSimImage m_imgFrame;
    CDlgFlashBaseInfo* m_pBaseInfo = nullptr;
    CDlgFlashProIntro* m_pProIntro = nullptr;
    CDlgFlashBack* m_pBack = nullptr;
};
