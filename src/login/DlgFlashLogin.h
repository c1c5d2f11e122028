// The classic login dialog shown after a server choice.
#pragma once

#include "controls/SimDialog.h"
#include "login/QRCodeRenderer.h"

class CMyBitmap;

class CDlgFlashLogin : public CSimDialog {
public:
    static constexpr UINT IDD = 1003;

    static constexpr const char* QR_PICTURE_FILE = "data/QRCode.bmp";
    static constexpr const char* QR_LOCK_FAIL_TEXT = "globalLock fail";

    CDlgFlashLogin();
    ~CDlgFlashLogin() override;

    /// Renders the key as the QR page's picture (the previous picture stays when that fails).
    void SetQRKey(const char* szKey, int nScale);
    void SetQRStatus(int nStatus) { m_nQRStatus = nStatus; }
    int GetQRStatus() const { return m_nQRStatus; }
    CMyBitmap* GetQRBitmap() const { return m_qrRenderer.GetBitmap(); }

private:
    int m_nQRStatus = 0;
    CQRCodeRenderer m_qrRenderer;
};
