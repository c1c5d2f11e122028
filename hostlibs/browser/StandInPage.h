// A deterministic stand-in for a web engine: a page with its address and one text field, rendered on its own
// thread, that reports exactly the rectangles it repainted.
#pragma once

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "hostlibs/HostBrowser.h"

class CStandInPage final : public host::IBrowserEngineView {
public:
    explicit CStandInPage(const host::BrowserPageParams& params);
    ~CStandInPage() override;
    CStandInPage(const CStandInPage&) = delete;
    CStandInPage& operator=(const CStandInPage&) = delete;

    void Show(bool bShow) override;
    void Reload(const std::string& url) override;
    void Mouse(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void Key(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void Ime(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    bool BeginFrame(void* pBGRA, std::vector<RECT>& rects) override;
    void EndFrame(IK7JSListener& listener, void* hPage) override;
    std::string Describe() const override;
    std::vector<std::uint8_t> Pixels(int& nWidth, int& nHeight) const override;

    /// The text field's rectangle in page pixels (left, top, right, bottom), clipped to the page.
    RECT FieldRect() const;

private:
    enum class EPaint { All, Field };
    struct SPaintJob {
        EPaint eWhat;
        std::string url;
        std::string text;
    };

    void Schedule(EPaint eWhat);
    void RenderLoop();
    void Paint(const SPaintJob& job);
    void WaitIdle(std::unique_lock<std::mutex>& lock) const;
    void InsertText(const std::string& bytes);
    void DeleteLastCharacter();
    /// Page x of the caret, from the text before it.
    int CaretX() const;
    void PlaceCandidateWindow();
    void AddHostDirtyRects();

    const int m_nX, m_nY, m_nWidth, m_nHeight;
    // Host thread's state.
    std::string m_strUrl;
    std::string m_strText;
    bool m_bShown = false;
    bool m_bLoadEndDue = true;
    bool m_bRegisterDue = false;
    POINT m_ptCandidate{0, 0};

    // Shared with the render thread.
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_cv;
    std::deque<SPaintJob> m_jobs;
    bool m_bBusy = false;
    bool m_bStop = false;
    std::vector<std::uint8_t> m_pixels; ///< the page as rendered, BGRA
    std::vector<RECT> m_vecRepainted;   ///< since the last frame handed over (x, y, width, height)
    std::thread m_thread;
};
