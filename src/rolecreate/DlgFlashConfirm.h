// The message box every screen uses: its kind decides its text, its buttons and what they send.
#pragma once

#include <cstdint>
#include <string>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "screen/ScreenContext.h"

class CDlgFlashProIntro;

class CDlgFlashConfirm : public CSimDialog {
public:
    static constexpr UINT IDD = 1005;

    static constexpr UINT IDC_BACKGROUND = 1119;
    static constexpr UINT IDC_EXCLAMATION = 1120;
    static constexpr UINT IDC_MESSAGE = 1018;
    static constexpr UINT IDC_OK = 1001;
    static constexpr UINT IDC_CANCEL = 1019;

    static constexpr int TYPE_EXIT = MSGBOX_EXIT;
    static constexpr int TYPE_CLEAR_ACCOUNT = MSGBOX_CLEAR_ACCOUNT;
    static constexpr int TYPE_ERROR = MSGBOX_ERROR;
    static constexpr int TYPE_INPUT = MSGBOX_INPUT;
    static constexpr int TYPE_NAME_REFUSED = MSGBOX_NAME_REFUSED;

    static constexpr std::uint32_t STR_EXIT_QUESTION = 3110002;
    static constexpr std::uint32_t STR_CLEAR_ACCOUNT_QUESTION = 3110003;
    static constexpr std::uint32_t STR_OK_POS_TWO_BUTTONS = 6660004;
    static constexpr std::uint32_t STR_OK_POS_ONE_BUTTON = 6660005;

    CDlgFlashConfirm();
    ~CDlgFlashConfirm() override;

    using CSimDialog::Show;
    /// Opens the box with a kind and, for kinds 3 and 4, a text (null keeps the current one).
    void Show(int nType, const char* szText);
    int Show() override;
    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;

    int GetType() const { return m_nType; }
    const char* GetText() const { return m_staticMessage.GetWindowTextA(); }

    /// The English introduction panel, whose name OK of kinds 3 and 4 empties.
    void Link(CDlgFlashProIntro* pProIntro) { m_pProIntro = pProIntro; }

private:
    void OnOk();
    void OnCancel();

    /// Centres the box on the main window (kept width and height).
    void PlaceByMainWindow();
    /// Places OK and shows or hides Cancel for the kind.
    void ArrangeButtons();
    /// Tells the simulator to open the creation screen again at the screen's size.
    void ReopenCreation();

    int m_nType = 0;
    CSimStatic m_staticBackground;
    CSimStatic m_staticExclamation;
    CSimStatic m_staticMessage;
    CSimButton m_btnOk;
    CSimButton m_btnCancel;
    CDlgFlashProIntro* m_pProIntro = nullptr;
};
