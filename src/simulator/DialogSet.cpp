// Every dialog of the front end and the browser wrapper, constructed in the order the host relies on and
// destroyed in the reverse order; only the simulator's sources see it.
#include "simulator/DialogSet.h"

#include <array>

// The classic login opens the quick-entry editor by its template id, since screens do not know each other.
static_assert(CDlgFlashLogin::IDD_QUICK_ENTRY_EDITOR == CDlgAddQuickEntry::IDD);
static_assert(CDlgFlashLoginEn::IDD_ROLE_LIST == CDlgFlashCharacterEn::IDD);

CDialogSet::CDialogSet() {
    // The registration dialog hosts the simulator's one browser, a member declared after it.
    m_dlgWebRegister.SetBrowser(&m_webBrowser);
    // The dialogs of the standard creation layout reach each other directly.
    m_dlgCreateRole.Link(&m_dlgSelectPro, &m_dlgSelectHead);
    m_dlgSelectPro.Link(&m_dlgCreateRole, &m_dlgSelectHead);
    m_dlgSelectHead.Link(&m_dlgSelectPro);
    // So do those of the English layout; the message box empties the English name on OK.
    m_dlgAction.Link(&m_dlgBaseInfo, &m_dlgProIntro, &m_dlgBack);
    m_dlgBaseInfo.Link(&m_dlgAction, &m_dlgProIntro);
    m_dlgProIntro.Link(&m_dlgAction, &m_dlgBaseInfo, &m_dlgSceneSelect);
    m_dlgConfirm.Link(&m_dlgProIntro);
}

std::array<CSimDialog*, CDialogSet::REGISTRATIONS> CDialogSet::RegistrationOrder() {
    // NOTE: the role-creation dialog is registered twice (fifth and tenth); the manager decides what that
    // means.
    return {
        &m_dlgBG,
        &m_dlgSelectEdition,
        &m_dlgSelectGroup,
        &m_dlgSelectServer,
        &m_dlgCreateRole,
        &m_dlgFlashLogin,
        &m_dlgConfirm,
        &m_dlgRememberAccount,
        &m_dlgAddQuickEntry,
        &m_dlgCreateRole,
        &m_dlgSelectPro,
        &m_dlgSelectHead,
        &m_dlgWeiXinLogin,
        &m_dlgNewFlashLogin,
        &m_dlgWardSafeToken,
        &m_dlgBaseInfo,
        &m_dlgBack,
        &m_dlgAction,
        &m_dlgProIntro,
        &m_dlgWebRegister,
        &m_dlgScanCodeLogin,
        &m_dlgSwitchLanguage,
        &m_dlgSceneSelect,
        &m_dlgFlashLoginEn,
        &m_dlgCharacterEn,
    };
}

void CDialogSet::RegisterAll(LuGui::ILuGuiMgr& manager) {
    for (CSimDialog* dialog : RegistrationOrder()) manager.RegisterDialog(dialog, 0, 0);
}

CSimDialog* CDialogSet::Find(UINT nTemplateId) {
    for (CSimDialog* dialog : RegistrationOrder())
        if (dialog->GetTemplateId() == nTemplateId) return dialog;
    return nullptr;
}
