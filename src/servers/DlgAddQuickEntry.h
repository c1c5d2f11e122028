// The quick-entry editor: which of the three records the current server replaces.
#pragma once

#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "resources/ServerTypes.h"

class CDlgAddQuickEntry : public CSimDialog {
public:
    static constexpr UINT IDD = 1007;

    static constexpr UINT IDC_TITLE = 1024;
    static constexpr UINT IDC_FULL = 1029;
    static constexpr UINT IDC_EXPLAIN = 1028;
    static constexpr UINT IDC_REPLACED = 1042;
    static constexpr UINT IDC_NEW_RECORD = 1043;
    static constexpr UINT IDC_ROW_EDITION_FIRST = 1030;
    static constexpr UINT IDC_ROW_GROUP_FIRST = 1033;
    static constexpr UINT IDC_ROW_SERVER_FIRST = 1036;
    static constexpr UINT IDC_REPLACE_FIRST = 1039;
    static constexpr UINT IDC_AUTO_REPLACE = 1044;
    static constexpr UINT IDC_CANCEL = 1019;
    static constexpr UINT IDC_BG = 1121;

    static constexpr std::uint32_t STR_TITLE = 3110009;
    static constexpr std::uint32_t STR_FULL = 3110010;
    static constexpr std::uint32_t STR_EXPLAIN = 3110011;
    /// Edition names are this id plus the edition.
    static constexpr std::uint32_t STR_EDITION_NAME_BASE = 3110011;

    CDlgAddQuickEntry();
    ~CDlgAddQuickEntry() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;

    const CSimStatic& GetReplacedText() const { return m_staReplaced; }
    const CSimStatic& GetNewRecordText() const { return m_staNewRecord; }
    const CSimStatic& GetRowEdition(int nRow) const { return m_staRowEdition[nRow]; }

private:
    /// Replaces record k by the current selection, then hides the dialog.
    void OnReplace(int nSlot);
    void OnCancel();
    /// "%s %s %s": edition name, group text, server text.
    static std::string RecordLine(int nEdition, const char* szGroup, const char* szServer);

    CSimStatic m_staTitle;
    CSimStatic m_staFull;
    CSimStatic m_staExplain;
    CSimStatic m_staReplaced;
    CSimStatic m_staNewRecord;
    CSimStatic m_staRowEdition[MAX_QUICK_ENTRY_AMOUNT];
    CSimStatic m_staRowGroup[MAX_QUICK_ENTRY_AMOUNT];
    CSimStatic m_staRowServer[MAX_QUICK_ENTRY_AMOUNT];
    CSimButton m_btnReplace[MAX_QUICK_ENTRY_AMOUNT];
    CSimButton m_btnAutoReplace;
    CSimButton m_btnCancel;
    CSimStatic m_staBg;
};
