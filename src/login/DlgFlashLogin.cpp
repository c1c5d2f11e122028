// The classic login dialog shown after a server choice.
#include "login/DlgFlashLogin.h"

CDlgFlashLogin::CDlgFlashLogin() : CSimDialog(IDD), m_qrRenderer(QR_PICTURE_FILE, QR_LOCK_FAIL_TEXT) {
}

CDlgFlashLogin::~CDlgFlashLogin() = default;

void CDlgFlashLogin::SetQRKey(const char* szKey, int nScale) {
    // NOTE: only the picture exists yet; the QR page that draws it is part of the dialog still to be built
    // (docs/STATUS.md).
    m_qrRenderer.Render(szKey, nScale);
}
