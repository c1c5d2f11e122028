// The profession column of the English creation layout: eight profession buttons, the lock over profession 80
// and the model values the English registration sends.
#pragma once

#include <array>
#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimCheck.h"
#include "controls/SimDialog.h"
#include "controls/SimImage.h"
#include "rolecreate/ProfessionTable.h"

class CDlgFlashAction;
class CDlgFlashProIntro;

class CDlgFlashBaseInfo : public CSimDialog {
public:
    static constexpr UINT IDD = 1017;
    static constexpr UINT PROFESSION_IDS[CProfessionTable::COUNT] = {1049, 1050, 1051, 1052,
                                                                     1053, 1057, 1058, 1061};
    static constexpr UINT IDC_LOCK = 1059;
    static constexpr UINT IDC_NEW = 2001;
    static constexpr std::int32_t MODEL_FACE = 600;
    static constexpr std::int32_t MODEL = 0;

    CDlgFlashBaseInfo();
    ~CDlgFlashBaseInfo() override;

    void Link(CDlgFlashAction* pAction, CDlgFlashProIntro* pProIntro) {
        m_pAction = pAction;
        m_pProIntro = pProIntro;
    }

    BOOL OnInitDialog() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    int Show() override;

    /// Selects a profession (0 to 7; others ignored) and tells the preview, the panel and the host.
    void Select(int nIndex);
    /// The server facts (only while the column is visible): profession 80 shown, new or locked.
    void SetServerInfo(std::int32_t nFirst, bool bSecondOpen, bool bThirdOpen, bool bShow80);
    void SetSex(std::int32_t nSex) { m_nSex = nSex; }

    int GetSel() const { return m_nSel; }
    std::int32_t GetModelFace() const { return m_nModelFace; }
    std::int32_t GetModel() const { return m_nModel; }
    int GetHead() const { return m_nHead; }
    bool IsLocked() const { return m_bLocked; }
    /// The look of a head index for the selected profession and the sex: face id - 10000, never below 0.
    std::int32_t GetLook(int nHead) const;

private:
    void MarkSelection();
    CSimCheck& Box(int nIndex) { return m_chkProfessions[static_cast<std::size_t>(nIndex)]; }

    int m_nSel = -1;
    std::int32_t m_nSex = CProfessionTable::SEX_MALE;
    int m_nHead = 0;
    bool m_bLocked = false;
    std::int32_t m_nModelFace = MODEL_FACE;
    std::int32_t m_nModel = MODEL;
    bool m_bFirstSwitch = true;
    std::array<CSimCheck, CProfessionTable::COUNT> m_chkProfessions;
    CSimButton m_btnLock;
    CSimImage m_imgNew;
    CDlgFlashAction* m_pAction = nullptr;
    CDlgFlashProIntro* m_pProIntro = nullptr;
};
