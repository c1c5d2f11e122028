// Every dialog of the front end and the browser wrapper, constructed in the order the host relies on and
// destroyed in the reverse order; only the simulator's sources see it.
#pragma once

#include <array>

#include "controls/WebBrowserEn.h"
#include "login/DlgFlashLogin.h"
#include "login/DlgFlashLoginEn.h"
#include "login/DlgFlashSwitchLanguageEn.h"
#include "login/DlgNewFlashLogin.h"
#include "login/DlgRememberAccount.h"
#include "login/DlgScanCodeLoginEn.h"
#include "login/DlgWardSafeToken.h"
#include "login/DlgWebRegisterEn.h"
#include "login/DlgWeiXinLogin.h"
#include "platform/LuGui.h"
#include "rolecreate/DlgFlashAction.h"
#include "rolecreate/DlgFlashBG.h"
#include "rolecreate/DlgFlashBack.h"
#include "rolecreate/DlgFlashBaseInfo.h"
#include "rolecreate/DlgFlashCharacterEn.h"
#include "rolecreate/DlgFlashConfirm.h"
#include "rolecreate/DlgFlashCreateRole.h"
#include "rolecreate/DlgFlashProIntro.h"
#include "rolecreate/DlgFlashSceneSelect.h"
#include "rolecreate/DlgFlashSelectHead.h"
#include "rolecreate/DlgFlashSelectPro.h"
#include "servers/DlgAddQuickEntry.h"
#include "servers/DlgSelectEdition.h"
#include "servers/DlgSelectGroup.h"
#include "servers/DlgSelectServer.h"

class CDialogSet {
public:
    /// Gives the registration dialog its browser and links the dialogs of the standard creation layout.
    CDialogSet();
    CDialogSet(const CDialogSet&) = delete;
    CDialogSet& operator=(const CDialogSet&) = delete;

    /// Registers the dialogs with the manager in the host's order (the role-creation dialog twice).
    void RegisterAll(LuGui::ILuGuiMgr& manager);
    /// The dialog with a template id; null when there is none.
    CSimDialog* Find(UINT nTemplateId);

    // Construction order.
    CDlgFlashBG m_dlgBG;
    CDlgSelectEdition m_dlgSelectEdition;
    CDlgSelectGroup m_dlgSelectGroup;
    CDlgSelectServer m_dlgSelectServer;
    CDlgFlashLogin m_dlgFlashLogin;
    CDlgFlashConfirm m_dlgConfirm;
    CDlgRememberAccount m_dlgRememberAccount;
    CDlgAddQuickEntry m_dlgAddQuickEntry;
    CDlgFlashCreateRole m_dlgCreateRole;
    CDlgFlashSelectPro m_dlgSelectPro;
    CDlgFlashSelectHead m_dlgSelectHead;
    CDlgWeiXinLogin m_dlgWeiXinLogin;
    CDlgNewFlashLogin m_dlgNewFlashLogin;
    CDlgFlashLoginEn m_dlgFlashLoginEn;
    CDlgFlashCharacterEn m_dlgCharacterEn;
    CDlgWardSafeToken m_dlgWardSafeToken;
    CDlgFlashAction m_dlgAction;
    CDlgFlashBaseInfo m_dlgBaseInfo;
    CDlgFlashProIntro m_dlgProIntro;
    CDlgFlashBack m_dlgBack;
    CDlgWebRegisterEn m_dlgWebRegister;
    CDlgScanCodeLoginEn m_dlgScanCodeLogin;
    CWebBrowserEn m_webBrowser;
    CDlgFlashSwitchLanguageEn m_dlgSwitchLanguage;
    CDlgFlashSceneSelect m_dlgSceneSelect;

private:
    static constexpr std::size_t REGISTRATIONS = 25;
    std::array<CSimDialog*, REGISTRATIONS> RegistrationOrder();
};
