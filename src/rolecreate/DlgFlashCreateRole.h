// The creation screen of the standard layout: name, create button, profession explanation and the preview.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimStatic.h"
#include "rolecreate/CreationVolume.h"
#include "rolecreate/RolePreview.h"

class CDlgFlashSelectPro;
class CDlgFlashSelectHead;

class CDlgFlashCreateRole : public CSimDialog {
public:
    static constexpr UINT IDD = 1008;
    static constexpr UINT IDC_NAME_LABEL = 1064;
    static constexpr UINT IDC_NAME = 1062;
    static constexpr UINT IDC_CREATE = 1063;
    static constexpr UINT IDC_EXPLAIN_BACK = 1103;
    static constexpr UINT IDC_EXPLAIN = 1104;
    static constexpr UINT IDC_UPPER_1 = 1105;
    static constexpr UINT IDC_UPPER_2 = 1107;
    static constexpr UINT IDC_LOWER_1 = 1023;
    static constexpr UINT IDC_LOWER_2 = 1024;
    static constexpr UINT IDC_PROFESSION_NAME = 1106;
    /// The name box's limit in characters.
    static constexpr int NAME_LIMIT_CHARS = 64;
    /// A name of this many bytes or more is refused.
    static constexpr int NAME_REFUSED_BYTES = 65;
    static constexpr std::uint32_t STR_NAME_TIP = 3110017;
    static constexpr std::uint32_t STR_NAME_TOO_LONG = 3110020;

    CDlgFlashCreateRole();
    ~CDlgFlashCreateRole() override;

    void Link(CDlgFlashSelectPro* pSelectPro, CDlgFlashSelectHead* pSelectHead) {
        m_pSelectPro = pSelectPro;
        m_pSelectHead = pSelectHead;
    }

    BOOL OnInitDialog() override;
    void PreSetParam() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    int Show() override;
    /// The creation choice back to its start (not the toolkit's Reset, which the manager runs for every
    /// dialog on a host reset and which must neither send nor lose the choice).
    void ResetChoice();

    void SetProfession(std::int32_t nProfession);
    void SetSex(std::int32_t nSex);
    /// The explanation panel (every call) and the preview (when something changed or forced).
    void SetProfessionAndSex(std::int32_t nProfession, std::int32_t nSex, bool bForced);
    /// Shows or hides the name row, the lower panels, the profession name and the explanation.
    void ShowCreationControls(bool bVisible);
    /// Draws the lower panels and the name row (the profession dialog draws them above itself).
    void DrawCreationControls();

    std::int32_t GetProfession() const { return m_preview.GetProfession(); }
    std::int32_t GetSex() const { return m_preview.GetSex(); }
    const CRolePreview& GetPreview() const { return m_preview; }

private:
    /// Registration: usage event, gates, then profession, look, name and sex to the host.
    void OnCreate();
    void UpdateExplanation(std::int32_t nProfession, std::int32_t nSex);
    void OnShown();
    void OnHidden();
    /// The lower panels and the name row, in drawing order.
    std::array<LuGui::CLuCtrl*, 5> CreationControls();

    CRolePreview m_preview{CRolePreview::SOptions{false, true}};
    CCreationVolume m_volume;
    CSimStatic m_staNameLabel;
    CSimEdit m_edtName;
    CSimButton m_btnCreate;
    CSimStatic m_staExplainBack;
    CSimStatic m_staExplain;
    CSimStatic m_staUpper1;
    CSimStatic m_staUpper2;
    CSimStatic m_staLower1;
    CSimStatic m_staLower2;
    CSimStatic m_staProfessionName;
    CDlgFlashSelectPro* m_pSelectPro = nullptr;
    CDlgFlashSelectHead* m_pSelectHead = nullptr;
};
