// The profession introduction panel of the English creation layout: introduction texts and pictures, sex,
// the name with its check by the host, the suggested name and the create button.
#pragma once

#include <cstdint>
#include <string>

#include "controls/SimButton.h"
#include "controls/SimCheck.h"
#include "controls/SimDialog.h"
#include "controls/SimEdit.h"
#include "controls/SimStatic.h"

class CDlgFlashAction;
class CDlgFlashBaseInfo;
class CDlgFlashSceneSelect;
class IScreenContext;

class CDlgFlashProIntro : public CSimDialog {
public:
    static constexpr UINT IDD = 1016;
    static constexpr UINT IDC_SUMMARY = 1113;
    static constexpr UINT IDC_DESCRIPTION = 1109;
    static constexpr UINT IDC_PRO_ICON = 1106;
    static constexpr UINT IDC_ATTRIBUTE = 1111;
    static constexpr UINT IDC_BACKDROP = 1112;
    static constexpr UINT IDC_MALE = 1292;
    static constexpr UINT IDC_FEMALE = 1294;
    static constexpr UINT IDC_DICE = 1293;
    static constexpr UINT IDC_CREATE = 1063;
    static constexpr UINT IDC_NAME = 1062;
    /// The name box's limit in characters.
    static constexpr int NAME_LIMIT_CHARS = 15;
    /// The name as 8-bit text is read into 32 bytes (31 of text), as UTF-16 into 128 units, and converted
    /// into at most 255 bytes of UTF-8.
    static constexpr int NAME_BYTES_READ = 32;
    static constexpr int NAME_UNITS_READ = 128;
    static constexpr std::size_t NAME_UTF8_MAX = 255;
    /// A UTF-8 name of this many bytes or more is refused.
    static constexpr std::size_t NAME_REFUSED_BYTES = 16;
    static constexpr std::uint32_t STR_NAME_TIP = 3110017;
    static constexpr std::uint32_t STR_NAME_TOO_LONG = 3110020;
    static constexpr std::uint32_t STR_NAME_EMPTY = 8000061;
    static constexpr std::uint32_t STR_NO_SUGGESTION = 9000015;
    static constexpr std::uint32_t STR_CONFIRM_SCENE = 55000015;
    static constexpr int DATA_CHINESE_SWITCH = 30037;

    CDlgFlashProIntro();
    ~CDlgFlashProIntro() override;

    void Link(CDlgFlashAction* pAction, CDlgFlashBaseInfo* pBaseInfo, CDlgFlashSceneSelect* pSceneSelect) {
        m_pAction = pAction;
        m_pBaseInfo = pBaseInfo;
        m_pSceneSelect = pSceneSelect;
    }

    BOOL OnInitDialog() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    int Show() override;

    /// Pictures and texts of a profession; hides the scene choice and asks for the name to be checked again.
    void SetProfession(std::int32_t nProfession);
    std::int32_t GetProfession() const { return m_nProfession; }
    std::int32_t GetSex() const { return m_nSex; }
    /// The English registration: the name goes to the host for its check first; with bSend and a checked
    /// name the role is registered.
    void Register(bool bSend);
    /// Empties the name and forgets the name last sent (OK of the name messages).
    void ResetName();
    /// The host's suggested name (any bytes, nLength of them at most; a negative length reads to the first
    /// NUL): nothing while the panel is hidden.
    void SetSuggestedName(const char* szName, std::int32_t nLength);
    /// Whether the box still holds the suggested name.
    bool IsNameUnchanged() const;
    /// "ChineseSwitch": Chinese input off in the name box unless the game logic allows it.
    void EnableChineseInput();
    /// "GetChineseSwitch": asks the server whether Chinese input is allowed.
    void QueryChineseInput();

    bool IsRecheck() const { return m_bRecheck; }
    const std::string& GetLastName() const { return m_strLastName; }

private:
    void ApplyProfession();
    void ApplySex(std::int32_t nSex);
    void OnMale();
    void OnFemale();
    void OnDice();
    void OnCreate();
    void OnNameChanged();
    void HideSceneChoice();
    bool IsSceneChoiceVisible() const;
    /// Sends the name for its check when it is new or must be checked again; returns whether registration
    /// has to wait for the host.
    bool SendNameForCheck(IScreenContext& context, const std::string& strName, bool bEmptyUnits);
    void SendRegistration(IScreenContext& context);
    void ShowRewardNotice();
    void SetupNameBox(IScreenContext& context);

    std::int32_t m_nProfession = 100;
    std::int32_t m_nSex = 1;
    std::string m_strLastName;
    std::string m_strSuggestedName;
    bool m_bRecheck = false;
    int m_nDescriptionWidth = -1; ///< the description's width from its layout record, read once
    CSimStatic m_staSummary;
    CSimStatic m_staDescription;
    CSimStatic m_staIcon;
    CSimStatic m_staAttribute;
    CSimStatic m_staBackdrop;
    CSimCheck m_chkMale;
    CSimCheck m_chkFemale;
    CSimButton m_btnDice;
    CSimButton m_btnCreate;
    CSimEdit m_edtName;
    CDlgFlashAction* m_pAction = nullptr;
    CDlgFlashBaseInfo* m_pBaseInfo = nullptr;
    CDlgFlashSceneSelect* m_pSceneSelect = nullptr;
};
