// Every dialog of the front end and the browser wrapper, constructed in the order the host relies on and
// destroyed in the reverse order; only the simulator's sources see it.
#include "simulator/DialogSet.h"

void CDialogSet::RegisterAll(LuGui::ILuGuiMgr& manager) {
    // NOTE: the role-creation dialog is registered twice (fifth and tenth); the manager decides what that
    // means.
    LuGui::CLuDialog* const order[] = {
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
    for (LuGui::CLuDialog* dialog : order) manager.RegisterDialog(dialog, 0, 0);
}

CSimDialog* CDialogSet::Find(UINT nTemplateId) {
    CSimDialog* const dialogs[] = {
        &m_dlgBG,
        &m_dlgSelectEdition,
        &m_dlgSelectGroup,
        &m_dlgSelectServer,
        &m_dlgFlashLogin,
        &m_dlgConfirm,
        &m_dlgRememberAccount,
        &m_dlgAddQuickEntry,
        &m_dlgCreateRole,
        &m_dlgSelectPro,
        &m_dlgSelectHead,
        &m_dlgWeiXinLogin,
        &m_dlgNewFlashLogin,
        &m_dlgFlashLoginEn,
        &m_dlgCharacterEn,
        &m_dlgWardSafeToken,
        &m_dlgAction,
        &m_dlgBaseInfo,
        &m_dlgProIntro,
        &m_dlgBack,
        &m_dlgWebRegister,
        &m_dlgScanCodeLogin,
        &m_dlgSwitchLanguage,
        &m_dlgSceneSelect,
    };
    for (CSimDialog* dialog : dialogs)
        if (dialog->GetTemplateId() == nTemplateId) return dialog;
    return nullptr;
}
