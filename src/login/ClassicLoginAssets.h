// The classic login's QR picture and keyboard-picture download: the shared QR renderer on "data/QRCode.bmp"
// and the image downloader, behind the dialog's sources seam.
#pragma once

#include "login/ClassicLoginSources.h"
#include "login/QRCodeRenderer.h"
#include "resources/HttpImgDown.h"

class CClassicLoginAssets final : public IClassicLoginSources {
public:
    static constexpr const char* QR_PICTURE_FILE = "data/QRCode.bmp";
    static constexpr const char* QR_LOCK_FAIL_TEXT = "globalLock fail";

    CClassicLoginAssets();

    void RenderQRKey(const char* szKey, int nScale) override;
    CMyBitmap* GetQRBitmap() const override { return m_qrRenderer.GetBitmap(); }
    void StartSoftKeyDownload(LuGui::CLuBaseWindow* pTarget, const char* szUrl) override;

private:
    CQRCodeRenderer m_qrRenderer;
    CHttpImgDown m_downloader;
};
