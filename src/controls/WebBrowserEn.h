// The embedded web browser that the web registration dialog hosts: one off-screen page of the browser
// library, copied into a bitmap where it changed and drawn at its place each frame, with input forwarding.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Graphics.h"
#include "platform/K7Browser.h"
#include "platform/LuBaseWindow.h"

class CWebBrowserEn final : public IK7JSListener {
public:
    /// The bitmap the page is drawn through.
    static constexpr int BITMAP_WIDTH = 1024;
    static constexpr int BITMAP_HEIGHT = 768;

    CWebBrowserEn();
    ~CWebBrowserEn();
    CWebBrowserEn(const CWebBrowserEn&) = delete;
    CWebBrowserEn& operator=(const CWebBrowserEn&) = delete;

    /// Takes the page's layout record and address when the game data has the record; otherwise nothing.
    void Init(unsigned short usLayoutId, const char* szUrl, int nOffsetX, int nOffsetY);
    /// Remembers the parent (when given) and creates the page; whether a page exists afterwards.
    bool Open(LuGui::CLuBaseWindow* pParent);
    /// Creates the page of the address inside the parent; whether the browser library returned a page.
    bool Create();
    /// Back to the address without closing; closes the page when there is no address.
    void Reload();
    /// Destroys the page and releases the bitmap and the pixel buffer.
    void Close();
    /// Copies what changed into the bitmap and draws it at the page's place.
    void Draw();
    /// Mouse and input-method forwarding; 1 when the message is consumed.
    LRESULT OnWindowMessage(UINT uMsg, WPARAM wParam, LPARAM lParam);
    /// Keyboard forwarding; always 1.
    BOOL OnPreTranslateMessage(const MSG* pMsg);

    /// The page's screen rectangle (left, top, right, bottom) as the layout record and screen give it now;
    /// Draw keeps the one of the page's creation, reload or first draw.
    RECT GetPageRect() const;
    bool IsOpen() const { return m_hBrowser != nullptr; }
    const std::string& GetUrl() const { return m_strUrl; }
    bool HasPixelBuffer() const { return !m_pPixels.empty(); }

    // ---- IK7JSListener ----
    void OnRegisterAccount(int nReserved1, int nReserved2, const char* szAccount) override;
    void OnLoadEnd(K7BROWSER hPage, bool bCompleted) override;
    bool OnQueryPopup() override { return true; }
    bool OnQueryNavigate() override { return true; }
    void OnNotify() override {}

private:
    void CopyDirtyRect(int x, int y, int nWidth, int nHeight, int nPageWidth, int nPageHeight);
    void ReleaseBitmap();

    int m_nOffsetX = 0;
    int m_nOffsetY = 0;
    unsigned short m_usLayoutId = 0;
    bool m_bHasUrl = false;
    std::string m_strUrl;
    CMyBitmap* m_pBitmap = nullptr;
    K7BROWSER m_hBrowser = nullptr;
    LuGui::CLuBaseWindow* m_pParent = nullptr;
    // Where Draw puts the page; empty until the next draw after Init, Create, Reload or Close.
    std::optional<RECT> m_optPlacedRect;
    std::vector<std::uint8_t> m_pPixels;
    // The size the pixel buffer was allocated for: the page's creation size.
    int m_nBufferWidth = 0;
    int m_nBufferHeight = 0;
};
