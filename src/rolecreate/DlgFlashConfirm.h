// The message box every screen uses: its kind decides its text, its buttons and what they send.
#pragma once

#include <string>

#include "controls/SimDialog.h"

class CDlgFlashConfirm : public CSimDialog {
public:
    static constexpr UINT IDD = 1005;

    static constexpr int TYPE_EXIT = 1;          ///< leave the game: OK, Cancel
    static constexpr int TYPE_CLEAR_ACCOUNT = 2; ///< forget the remembered account: OK, Cancel
    static constexpr int TYPE_ERROR = 3;         ///< error or notice: OK
    static constexpr int TYPE_INPUT = 4;         ///< notice about an input: OK
    static constexpr int TYPE_NAME_REFUSED =
        5; ///< name refused in the standard creation layout: OK reopens creation

    static constexpr std::uint32_t STR_EXIT_QUESTION = 3110002;
    static constexpr std::uint32_t STR_CLEAR_ACCOUNT_QUESTION = 3110003;

    CDlgFlashConfirm();
    ~CDlgFlashConfirm() override;

    using CSimDialog::Show;
    /// Opens the box with a kind and, for kinds 3 and 4, a text (null keeps the current one).
    void Show(int nType, const char* szText);

    int GetType() const { return m_nType; }
    const std::string& GetText() const { return m_strText; }

private:
    int m_nType = 0;
    std::string m_strText;
};
