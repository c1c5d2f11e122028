// QR-code login: the code-scanning dialog the main login opens, which shows the host's one-time key as a QR
// code and asks for a fresh key when the code expired.
#pragma once

#include <cstdint>

#include "controls/SimButton.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "login/QRCodeRenderer.h"

class CMyBitmap;

class CDlgScanCodeLoginEn : public CSimDialog {
public:
    static constexpr UINT IDD = 1021;

    static constexpr UINT IDC_CLOSE = 1021;
    static constexpr UINT IDC_TITLE = 1290;
    static constexpr UINT IDC_HINT = 1136;
    static constexpr UINT IDC_DOWNLOAD = 1137;
    static constexpr UINT IDC_DOWNLOAD_LINE = 1174;
    static constexpr UINT IDC_CODE = 1141;
    static constexpr UINT IDC_REFRESH = 1093;

    static constexpr std::uint32_t STR_TITLE = 8000112;
    static constexpr std::uint32_t STR_HINT = 8000113;
    static constexpr std::uint32_t STR_DOWNLOAD = 8000114;
    static constexpr std::uint32_t STR_DOWNLOAD_LINE = 8000115;
    static constexpr std::uint32_t STR_DOWNLOAD_ADDRESS = 8000116;
    /// "%d %d": where the picture goes relative to the code placeholder, and its drawn size.
    static constexpr std::uint32_t STR_PICTURE_OFFSET = 4000002;
    static constexpr std::uint32_t STR_PICTURE_SIZE = 4000009;
    /// "%d %d": where the expiry overlay goes relative to the code placeholder.
    static constexpr std::uint32_t STR_EXPIRED_OFFSET = 4000003;
    /// The game data's window record and string resource that size and place the dialog.
    static constexpr int WINDOW_RECORD = 7;
    static constexpr std::uint32_t STRRES_PLACEMENT = 1010113;

    static constexpr const char* PICTURE_FILE = "k7pack/data/ScanCodeLogin.bmp";
    static constexpr const char* LOCK_FAIL_TEXT = "GlobalLock fail";
    static constexpr const char* EXPIRED_ANI = "enqrlogin_qrerror";

    /// States of the code.
    static constexpr int QR_REQUESTED = 0;
    static constexpr int QR_SHOWN = 1;
    static constexpr int QR_EXPIRED = 2;

    CDlgScanCodeLoginEn();
    ~CDlgScanCodeLoginEn() override;

    void DoDataExchange(LuGui::CDataExchange* pDX) override;
    void MessageMap() override;
    BOOL OnInitDialog() override;
    int Show() override;

    /// Renders the key as the QR picture (the previous picture stays when that fails).
    void SetQRKey(const char* szKey, int nScale);
    /// Any value is stored; values other than 0 and 2 draw like 1.
    void SetQRStatus(int nStatus) { m_nQRStatus = nStatus; }
    int GetQRStatus() const { return m_nQRStatus; }
    CMyBitmap* GetQRBitmap() const { return m_renderer.GetBitmap(); }
    POINT GetPos() const { return POINT{m_nPosX, m_nPosY}; }

private:
    void OnClose();
    void OnRefresh();
    void OnCode();
    void OnDownload();

    /// Size and place from window record 7 and string resource 1010113.
    void PlaceFromWindowRecord();
    /// The layout numbers the drawing uses, read once per opening.
    void ReadDrawingNumbers();
    void RequestKey();

    int m_nQRStatus = QR_REQUESTED;
    int m_nPosX = 0;
    int m_nPosY = 0;
    CQRCodeRenderer m_renderer;

    POINT m_ptPictureOffset{0, 0};
    SIZE m_sizePicture{0, 0};
    POINT m_ptExpiredOffset{0, 0};

    CSimButton m_btnClose;
    CSimStatic m_staTitle;
    CSimStatic m_staHint;
    CSimButton m_btnDownload;
    CSimStatic m_staDownloadLine;
    CSimButton m_btnCode;
    CSimButton m_btnRefresh;
};
