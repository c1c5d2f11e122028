// The classic login's QR picture and keyboard-picture download: the shared QR renderer on "data/QRCode.bmp"
// and the image downloader, behind the dialog's sources seam.
#include "login/ClassicLoginAssets.h"

CClassicLoginAssets::CClassicLoginAssets() : m_qrRenderer(QR_PICTURE_FILE, QR_LOCK_FAIL_TEXT) {
}

void CClassicLoginAssets::RenderQRKey(const char* szKey, int nScale) {
    m_qrRenderer.Render(szKey, nScale);
}

void CClassicLoginAssets::StartSoftKeyDownload(LuGui::CLuBaseWindow* pTarget, const char* szUrl) {
    m_downloader.Start(pTarget, szUrl);
}
