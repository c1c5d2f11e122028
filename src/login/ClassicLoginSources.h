// What the classic login takes from the QR-code renderer and from the keyboard picture's downloader, which
// are built apart from the dialog.
#pragma once

class CMyBitmap;
namespace LuGui {
class CLuBaseWindow;
}

/// The dialog's own are in CClassicLoginAssets; tests plug in others through CDlgFlashLogin::SetSources.
class IClassicLoginSources {
public:
    /// Renders the key as the QR picture and holds its bitmap; on failure the previous one stays.
    virtual void RenderQRKey(const char* szKey, int nScale) = 0;
    /// The held QR picture; null before a render succeeded.
    virtual CMyBitmap* GetQRBitmap() const = 0;
    /// Fetches the address into "data/softkey.jpg" on a worker and posts message 12135 to the target (first
    /// parameter 1 on success, 0 on failure).
    virtual void StartSoftKeyDownload(LuGui::CLuBaseWindow* pTarget, const char* szUrl) = 0;

protected:
    ~IClassicLoginSources() = default;
};
