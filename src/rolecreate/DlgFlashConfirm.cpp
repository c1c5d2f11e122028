// The message box every screen uses: its kind decides its text, its buttons and what they send.
#include "rolecreate/DlgFlashConfirm.h"

#include <cstring>

#include "platform/GameData.h"
#include "simulator/FlashSimulator.h"

namespace {
// The two server answers that send the standard creation layout back to its start.
constexpr const char* NAME_REFUSED_TEXTS[] = {"This name already exists. Please enter a new one.",
                                              "Error: Illegal Name!"};

bool IsNameRefusal(const char* szText) {
    for (const char* text : NAME_REFUSED_TEXTS)
        if (std::strcmp(szText, text) == 0) return true;
    return false;
}
} // namespace

CDlgFlashConfirm::CDlgFlashConfirm() : CSimDialog(IDD) {
}

CDlgFlashConfirm::~CDlgFlashConfirm() = default;

void CDlgFlashConfirm::Show(int nType, const char* szText) {
    ShowWindow(SW_SHOW);
    m_nType = nType;
    CFlashSimulator* sim = FlashSim();
    if (nType == TYPE_EXIT && sim)
        m_strText = sim->GetStr(STR_EXIT_QUESTION);
    else if (nType == TYPE_CLEAR_ACCOUNT && sim)
        m_strText = sim->GetStr(STR_CLEAR_ACCOUNT_QUESTION);
    else if ((nType == TYPE_ERROR || nType == TYPE_INPUT) && szText)
        m_strText = szText;
    if (szText && IsNameRefusal(szText) && std::strcmp(RoleDataQueryEx()->GetLanguageName(), "English") != 0)
        m_nType = TYPE_NAME_REFUSED;
    // NOTE: placement, the message control and the OK/Cancel buttons come with the control layer
    // (docs/STATUS.md).
}
