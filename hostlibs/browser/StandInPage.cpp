// A deterministic stand-in for a web engine: a page with its address and one text field, rendered on its own
// thread, that reports exactly the rectangles it repainted.
#include "StandInPage.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

#include <zlib.h>

#include "K7Browser.h"
#include "graphics/FontRenderer.h"
#include "hostlibs/HostEnv.h"
#include "text/Utf8.h"
#include "text/WholeInts.h"

namespace {

// Colours as 0xAARRGGBB; the page is opaque.
constexpr std::uint32_t PAGE_COLOUR = 0xFFF4F1EA;
constexpr std::uint32_t BAR_COLOUR = 0xFF2B4C7E;
constexpr std::uint32_t BAR_TEXT_COLOUR = 0xFFFFFFFF;
constexpr std::uint32_t LABEL_COLOUR = 0xFF333333;
constexpr std::uint32_t FIELD_COLOUR = 0xFFFFFFFF;
constexpr std::uint32_t FIELD_BORDER_COLOUR = 0xFF8A8A8A;
constexpr std::uint32_t CARET_COLOUR = 0xFF000000;

constexpr int FONT_SIZE = 16;
constexpr int BAR_HEIGHT = 36;
constexpr int TEXT_INSET = 10;
constexpr int LABEL_TOP = 52;
constexpr int FIELD_LEFT = 20;
constexpr int FIELD_TOP = 76;
constexpr int FIELD_MAX_WIDTH = 400;
constexpr int FIELD_HEIGHT = 32;
constexpr int FIELD_TEXT_INSET = 6;
constexpr int CARET_WIDTH = 2;
constexpr const char* FIELD_LABEL = "Account";

// The field keeps at most this many bytes, as an HTML input with a length limit does.
constexpr std::size_t MAX_TEXT_BYTES = 255;

// Messages and codes the page reacts to.
constexpr UINT MSG_CHAR = 258;
constexpr UINT MSG_IME_START = 269;
constexpr UINT MSG_IME_COMPOSITION = 271;
constexpr LPARAM IME_RESULT_STRING = 0x800;
constexpr WPARAM CODE_BACKSPACE = 8;
constexpr WPARAM CODE_ENTER = 13;
constexpr WPARAM FIRST_TYPED = 32;
constexpr WPARAM LAST_TYPED = 255;

RECT Intersect(const RECT& a, const RECT& b) {
    return RECT{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                std::min(a.bottom, b.bottom)};
}

bool IsEmpty(const RECT& rc) {
    return rc.right <= rc.left || rc.bottom <= rc.top;
}

// The page's pixels with the drawing operations of the stand-in, each clipped to a region.
class CPagePainter {
public:
    CPagePainter(std::vector<std::uint8_t>& pixels, int nWidth, int nHeight, const RECT& rcClip)
        : m_pixels(pixels), m_nWidth(nWidth), m_rcClip(Intersect(rcClip, RECT{0, 0, nWidth, nHeight})) {}

    void Fill(const RECT& rc, std::uint32_t colour) {
        const RECT r = Intersect(rc, m_rcClip);
        for (int y = r.top; y < r.bottom; ++y)
            for (int x = r.left; x < r.right; ++x) Put(x, y, colour, 255);
    }

    void Frame(const RECT& rc, std::uint32_t colour) {
        Fill(RECT{rc.left, rc.top, rc.right, rc.top + 1}, colour);
        Fill(RECT{rc.left, rc.bottom - 1, rc.right, rc.bottom}, colour);
        Fill(RECT{rc.left, rc.top, rc.left + 1, rc.bottom}, colour);
        Fill(RECT{rc.right - 1, rc.top, rc.right, rc.bottom}, colour);
    }

    /// UTF-8 text with its top-left corner at (x, y), by cells as every text of the host libraries.
    void Text(int x, int y, const std::string& text, std::uint32_t colour) {
        gfx::FontRenderer& font = gfx::FontRenderer::Instance();
        const int baseline = y + font.Ascender(FONT_SIZE);
        std::size_t pos = 0;
        gfx::Glyph glyph;
        while (pos < text.size()) {
            const char32_t c = txt::Utf8::Decode(text, pos);
            if (font.CopyGlyph(c, FONT_SIZE, glyph)) DrawGlyph(glyph, x, baseline, colour);
            x += gfx::FontRenderer::CellWidth(c, FONT_SIZE);
            if (x >= m_rcClip.right) break;
        }
    }

private:
    void DrawGlyph(const gfx::Glyph& glyph, int penX, int baseline, std::uint32_t colour) {
        for (int row = 0; row < glyph.rows; ++row)
            for (int col = 0; col < glyph.width; ++col) {
                const int x = penX + glyph.left + col;
                const int y = baseline - glyph.top + row;
                if (x < m_rcClip.left || x >= m_rcClip.right || y < m_rcClip.top || y >= m_rcClip.bottom)
                    continue;
                Put(x, y, colour, glyph.coverage[static_cast<std::size_t>(row) * glyph.width + col]);
            }
    }

    void Put(int x, int y, std::uint32_t colour, unsigned coverage) {
        std::uint8_t* p = &m_pixels[(static_cast<std::size_t>(y) * m_nWidth + x) * 4];
        const unsigned channels[3] = {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF}; // B, G, R
        for (int i = 0; i < 3; ++i)
            p[i] = static_cast<std::uint8_t>((channels[i] * coverage + p[i] * (255 - coverage) + 127) / 255);
        p[3] = 255;
    }

    std::vector<std::uint8_t>& m_pixels;
    int m_nWidth;
    RECT m_rcClip;
};

} // namespace

CStandInPage::CStandInPage(const host::BrowserPageParams& params)
    : m_nX(params.x), m_nY(params.y), m_nWidth(params.width), m_nHeight(params.height), m_strUrl(params.url),
      m_pixels(static_cast<std::size_t>(params.width) * params.height * 4, 0) {
    m_thread = std::thread(&CStandInPage::RenderLoop, this);
    Schedule(EPaint::All);
}

CStandInPage::~CStandInPage() {
    {
        std::lock_guard lock(m_mutex);
        m_bStop = true;
    }
    m_cv.notify_all();
    m_thread.join();
}

RECT CStandInPage::FieldRect() const {
    const RECT rc{FIELD_LEFT, FIELD_TOP, FIELD_LEFT + std::min(FIELD_MAX_WIDTH, m_nWidth - 2 * FIELD_LEFT),
                  FIELD_TOP + FIELD_HEIGHT};
    return Intersect(rc, RECT{0, 0, m_nWidth, m_nHeight});
}

// ---- input (host thread) --------------------------------------------------------------------------

void CStandInPage::Show(bool bShow) {
    m_bShown = bShow;
}

void CStandInPage::Reload(const std::string& url) {
    m_strUrl = url;
    m_strText.clear();
    m_bLoadEndDue = true;
    Schedule(EPaint::All);
}

void CStandInPage::Mouse(UINT, WPARAM, LPARAM) {
    // NOTE: the field always has the focus; the stand-in has nothing else to click.
}

void CStandInPage::Key(UINT uMsg, WPARAM wParam, LPARAM) {
    if (uMsg != MSG_CHAR) return;
    if (wParam == CODE_BACKSPACE) {
        DeleteLastCharacter();
    } else if (wParam == CODE_ENTER) {
        if (!m_strText.empty()) m_bRegisterDue = true;
    } else if (wParam >= FIRST_TYPED && wParam <= LAST_TYPED) {
        // A typed code is a character of the code page (UTF-8 here).
        std::string bytes;
        txt::Utf8::Append(bytes, static_cast<char32_t>(wParam));
        InsertText(bytes);
    }
}

void CStandInPage::Ime(UINT uMsg, WPARAM, LPARAM lParam) {
    if (uMsg == MSG_IME_START) PlaceCandidateWindow();
    if (uMsg != MSG_IME_COMPOSITION || !(lParam & IME_RESULT_STRING)) return;
    InsertText(host::GetData("ime.result"));
    PlaceCandidateWindow();
}

void CStandInPage::InsertText(const std::string& bytes) {
    const std::size_t before = m_strText.size();
    m_strText += bytes;
    m_strText.resize(txt::Utf8::CutAtBoundary(m_strText, MAX_TEXT_BYTES));
    if (m_strText.size() != before) Schedule(EPaint::Field);
}

void CStandInPage::DeleteLastCharacter() {
    if (m_strText.empty()) return;
    m_strText.resize(txt::Utf8::PreviousBoundary(m_strText, m_strText.size()));
    Schedule(EPaint::Field);
}

int CStandInPage::CaretX() const {
    const std::u32string text = txt::Utf8::ToUtf32(m_strText);
    return FieldRect().left + FIELD_TEXT_INSET + gfx::FontRenderer::Measure(text, FONT_SIZE);
}

void CStandInPage::PlaceCandidateWindow() {
    m_ptCandidate = POINT{m_nX + CaretX(), m_nY + FieldRect().bottom};
}

// ---- rendering (own thread) -----------------------------------------------------------------------

void CStandInPage::Schedule(EPaint eWhat) {
    {
        std::lock_guard lock(m_mutex);
        m_jobs.push_back(SPaintJob{eWhat, m_strUrl, m_strText});
    }
    m_cv.notify_all();
}

void CStandInPage::RenderLoop() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_cv.wait(lock, [this] { return m_bStop || !m_jobs.empty(); });
        if (m_bStop) return;
        const SPaintJob job = m_jobs.front();
        m_jobs.pop_front();
        m_bBusy = true;
        lock.unlock();
        Paint(job);
        lock.lock();
        m_bBusy = false;
        m_cv.notify_all();
    }
}

void CStandInPage::Paint(const SPaintJob& job) {
    // NOTE: only this thread writes m_pixels between jobs; the host thread reads them after WaitIdle.
    const RECT rcField = FieldRect();
    const RECT rcRegion = job.eWhat == EPaint::All ? RECT{0, 0, m_nWidth, m_nHeight} : rcField;
    CPagePainter painter(m_pixels, m_nWidth, m_nHeight, rcRegion);
    if (job.eWhat == EPaint::All) {
        painter.Fill(RECT{0, 0, m_nWidth, m_nHeight}, PAGE_COLOUR);
        painter.Fill(RECT{0, 0, m_nWidth, BAR_HEIGHT}, BAR_COLOUR);
        painter.Text(TEXT_INSET, TEXT_INSET, job.url, BAR_TEXT_COLOUR);
        painter.Text(FIELD_LEFT, LABEL_TOP, FIELD_LABEL, LABEL_COLOUR);
    }
    painter.Fill(rcField, FIELD_COLOUR);
    painter.Frame(rcField, FIELD_BORDER_COLOUR);
    const int textTop = rcField.top + (FIELD_HEIGHT - FONT_SIZE) / 2;
    painter.Text(rcField.left + FIELD_TEXT_INSET, textTop, job.text, LABEL_COLOUR);
    const int caretX =
        rcField.left + FIELD_TEXT_INSET + gfx::FontRenderer::Measure(txt::Utf8::ToUtf32(job.text), FONT_SIZE);
    painter.Fill(RECT{caretX, textTop, caretX + CARET_WIDTH, textTop + FONT_SIZE}, CARET_COLOUR);
    if (IsEmpty(rcRegion)) return;
    std::lock_guard lock(m_mutex);
    m_vecRepainted.push_back(
        RECT{rcRegion.left, rcRegion.top, rcRegion.right - rcRegion.left, rcRegion.bottom - rcRegion.top});
}

void CStandInPage::WaitIdle(std::unique_lock<std::mutex>& lock) const {
    m_cv.wait(lock, [this] { return m_jobs.empty() && !m_bBusy; });
}

// ---- frames (host thread) -------------------------------------------------------------------------

namespace {
// "X,Y,W,H" of 32-bit integers; false for anything else.
bool ReadDirtyRect(std::string_view part, RECT& rc) {
    int v[4] = {0, 0, 0, 0};
    if (!txt::ReadWholeInts(part, v, ',')) return false;
    rc = RECT{v[0], v[1], v[2], v[3]};
    return true;
}
} // namespace

void CStandInPage::AddHostDirtyRects() {
    // "X,Y,W,H;..." reported with the next frame as given, unclipped; unreadable parts are skipped.
    const std::string text = host::GetData("browser.dirty");
    if (text.empty()) return;
    host::SetData("browser.dirty", "");
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find(';', start), text.size());
        RECT rc{0, 0, 0, 0};
        if (ReadDirtyRect(std::string_view(text).substr(start, end - start), rc))
            m_vecRepainted.push_back(rc);
        start = end + 1;
    }
}

bool CStandInPage::BeginFrame(void* pBGRA, std::vector<RECT>& rects) {
    std::unique_lock lock(m_mutex);
    WaitIdle(lock);
    if (host::GetDataInt("browser.noframe", 0)) return false;
    AddHostDirtyRects();
    // A frame without repainted parts still ends with the callbacks that are due.
    if (m_vecRepainted.empty() && !m_bLoadEndDue && !m_bRegisterDue) return false;
    auto* pOut = static_cast<std::uint8_t*>(pBGRA);
    const RECT rcPage{0, 0, m_nWidth, m_nHeight};
    for (const RECT& dirty : m_vecRepainted) {
        const long long right = static_cast<long long>(dirty.left) + dirty.right;
        const long long bottom = static_cast<long long>(dirty.top) + dirty.bottom;
        const RECT rc = Intersect(
            RECT{dirty.left, dirty.top, static_cast<LONG>(std::clamp<long long>(right, INT32_MIN, INT32_MAX)),
                 static_cast<LONG>(std::clamp<long long>(bottom, INT32_MIN, INT32_MAX))},
            rcPage);
        if (IsEmpty(rc)) continue;
        const std::size_t rowBytes = static_cast<std::size_t>(rc.right - rc.left) * 4;
        for (int y = rc.top; y < rc.bottom; ++y) {
            const std::size_t offset = (static_cast<std::size_t>(y) * m_nWidth + rc.left) * 4;
            std::copy_n(m_pixels.data() + offset, rowBytes, pOut + offset);
        }
    }
    rects = std::exchange(m_vecRepainted, {});
    return true;
}

void CStandInPage::EndFrame(IK7JSListener& listener, void* hPage) {
    if (m_bLoadEndDue) {
        m_bLoadEndDue = false;
        listener.OnLoadEnd(static_cast<K7BROWSER>(hPage), host::GetDataInt("browser.loadfail", 0) == 0);
    }
    if (m_bRegisterDue) {
        m_bRegisterDue = false;
        listener.OnRegisterAccount(0, 0, m_strText.c_str());
    }
}

std::string CStandInPage::Describe() const {
    std::unique_lock lock(m_mutex);
    WaitIdle(lock);
    const uLong crc = crc32(crc32(0L, Z_NULL, 0), m_pixels.data(), static_cast<uInt>(m_pixels.size()));
    char hex[16];
    std::snprintf(hex, sizeof hex, "%08lX", static_cast<unsigned long>(crc));
    return "text=\"" + host::EscapeTranscriptText(m_strText) +
           "\" caret=" + std::to_string(txt::Utf8::ToUtf32(m_strText).size()) +
           " ime=" + std::to_string(m_ptCandidate.x) + "," + std::to_string(m_ptCandidate.y) + " crc=" + hex;
}

std::vector<std::uint8_t> CStandInPage::Pixels(int& nWidth, int& nHeight) const {
    std::unique_lock lock(m_mutex);
    WaitIdle(lock);
    nWidth = m_nWidth;
    nHeight = m_nHeight;
    return m_pixels;
}
