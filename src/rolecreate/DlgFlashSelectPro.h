// Profession, sex and head choice of the standard creation layout.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimCheck.h"
#include "controls/SimDialog.h"
#include "controls/SimImage.h"
#include "controls/SimStatic.h"
#include "platform/GameBase.h"
#include "rolecreate/ProfessionTable.h"

class CDlgFlashCreateRole;
class CDlgFlashSelectHead;

class CDlgFlashSelectPro : public CSimDialog {
public:
    static constexpr UINT IDD = 1009;
    static constexpr UINT PROFESSION_IDS[CProfessionTable::STANDARD_COUNT] = {1049, 1050, 1051, 1052,
                                                                              1053, 1057, 1058};
    static constexpr UINT IDC_MALE = 1054;
    static constexpr UINT IDC_FEMALE = 1055;
    static constexpr UINT IDC_HEAD = 1056;
    static constexpr UINT IDC_BACK = 1021;
    static constexpr UINT IDC_HEAD_FRAME = 1106;
    static constexpr UINT IDC_FLAG = 1124;
    static constexpr UINT IDC_CHANGE_FLAG = 1125;
    static constexpr UINT IDC_MASK = 1126;
    static constexpr UINT IDC_MORE = 1059;
    /// The host shell's message that opens the nationality choice.
    static constexpr int SHELL_NATIONALITY = 6754;
    static constexpr DWORD EFFECT_DELAY_MS = 400;

    CDlgFlashSelectPro();
    ~CDlgFlashSelectPro() override;

    void Link(CDlgFlashCreateRole* pCreateRole, CDlgFlashSelectHead* pSelectHead) {
        m_pCreateRole = pCreateRole;
        m_pSelectHead = pSelectHead;
    }

    BOOL OnInitDialog() override;
    void PreSetParam() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    int Show() override;
    /// The creation choice back to its start (not the toolkit's Reset, which the manager runs for every
    /// dialog on a host reset and which must neither send nor lose the choice).
    void ResetChoice();

    /// Selects a profession button (0 to 7; others ignored) and tells the creation dialog and the host.
    void Select(int nIndex);
    std::int32_t GetProfession() const { return CProfessionTable::IdOf(m_nSel); }
    std::int32_t GetSex() const { return m_nSex; }
    int GetSel() const { return m_nSel; }
    bool IsShow80() const { return m_bShow80; }
    /// The head picture shows the head dialog's face for its head index.
    void RefreshHead();
    /// The server facts: whether profession 80 is shown and how it is marked.
    void SetServerInfo(std::int32_t nFirst, bool bSecondOpen, bool bThirdOpen, bool bShow80);
    /// Clears the two profession-80 effects (the creation screen closes).
    void ClearEffects();
    /// Test access to the effects (A: new or lock mark, B: glow).
    const CMyGame3DEffectEx& GetEffectA() const { return m_effectA; }
    const CMyGame3DEffectEx& GetEffectB() const { return m_effectB; }

private:
    /// The place of each profession box for the server facts or the forced profession.
    void Layout();
    void MarkSelection();
    void ApplyEffects(std::int32_t nFirst, bool bSecondOpen, bool bThirdOpen);
    void SetOffsetFrom(CMyGame3DEffectEx& effect, std::uint32_t nStrId);
    void OnProfession(int nIndex);
    void OnSex(std::int32_t nSex);
    void OnHead();
    void OnBack();
    void OnChangeFlag();
    void UpdateFlag(bool bFallback);
    /// The forced profession's button index, -1 without one.
    int ForcedIndex() const;
    void SetBoxEffect(int nIndex, bool bOn);

    int m_nSel = 0;
    std::int32_t m_nSex = CProfessionTable::SEX_MALE;
    bool m_bHeadClickable = false;
    bool m_bShow80 = false;
    bool m_bInitialising = false;
    std::array<CSimCheck, CProfessionTable::COUNT> m_chkProfessions;
    CSimCheck m_chkMale;
    CSimCheck m_chkFemale;
    CSimImage m_imgHead;
    CSimButton m_btnBack;
    CSimStatic m_staHeadFrame;
    CSimImage m_imgFlag;
    CSimButton m_btnChangeFlag;
    CSimStatic m_staMask;
    CSimImage m_imgMore;
    DWORD m_dwEffectDue = 0;
    CMyGame3DEffectEx m_effectA{false};
    CMyGame3DEffectEx m_effectB{false};
    CDlgFlashCreateRole* m_pCreateRole = nullptr;
    CDlgFlashSelectHead* m_pSelectHead = nullptr;
};
