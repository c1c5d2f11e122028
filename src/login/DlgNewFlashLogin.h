// The main login screen.
#pragma once

#include <string>

#include "controls/SimDialog.h"

class CDlgNewFlashLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1013;

    CDlgNewFlashLogin();
    ~CDlgNewFlashLogin() override;

    /// The last login the client remembers: model, 1-based group and server (unchanged when none is known).
    void RestoreLastServer(int& nModel, int& nGroup, int& nServer);
    /// Shows the current group and server in the server label.
    void UpdateServerLabel();
    /// The host's texts for the account field (1) and the masked security code (4).
    void SetAccountText(const char* szText);
    void SetSafeTokenText(const char* szText);
    /// The host's selection of the current field.
    void SetSelStart(int nStart);
    void SetSelEnd(int nEnd);
    /// The player came back from the game (bReturn: by the return key).
    void OnReturnFromGame(bool bReturn);
    /// Shows or hides the security-code row.
    void ShowTokenRow(bool bShow);

    bool IsAgreementChecked() const { return m_bAgreementChecked; }
    bool IsRememberChecked() const { return m_bRememberChecked; }
    /// The group the player picked on this screen, 0-based.
    int GetChosenGroup() const { return m_nChosenGroup; }
    const std::string& GetAccountText() const { return m_strAccount; }
    const std::string& GetSafeTokenText() const { return m_strSafeToken; }

private:
    // NOTE: state held here until the screen's controls exist (docs/STATUS.md).
    std::string m_strAccount;
    std::string m_strSafeToken;
    bool m_bAgreementChecked = false;
    bool m_bRememberChecked = false;
    int m_nChosenGroup = -1;
    int m_nSelStart = 0;
    int m_nSelEnd = 0;
    bool m_bTokenRowShown = true;
};
