// Rich text laid out inside a width: line breaking, inline colour/size/style tags, alignment, drawing by
// runs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/BaseLib.h"

/// A stretch of text with the same attributes on one line.
struct SAutoTextRun {
    DWORD dwColor = 0;   ///< RGB, or ARGB from a colour tag
    int nFontSize = 0;   ///< pixels
    int nX = 0;          ///< from the line's start
    int nOffsetY = 0;    ///< from the line's top
    int nLine = 0;       ///< index of its line record
    std::string strText; ///< at most MAX_RUN_TEXT bytes
    int nStyle = 0;      ///< 0 plain, 1 blinking, 2 underlined
};

/// One laid-out line.
struct SAutoTextLine {
    int nX = 0; ///< alignment offset
    int nY = 0; ///< top, from the block's top
    int nWidth = 0;
    int nHeight = 0;
};

class CSimAutoText {
public:
    static constexpr std::size_t MAX_RUN_TEXT = 4095;
    static constexpr int ALIGN_LEFT = 0;
    static constexpr int ALIGN_RIGHT = 1;
    static constexpr int ALIGN_CENTER = 2;
    static constexpr int STYLE_PLAIN = 0;
    static constexpr int STYLE_BLINK = 1;
    static constexpr int STYLE_UNDERLINE = 2;
    /// Colours of the named colour tags ("</#B>" ...).
    static constexpr DWORD COLOR_BLUE = 0xFF0000FF;
    static constexpr DWORD COLOR_GREEN = 0xFF00FF00;
    static constexpr DWORD COLOR_BLACK = 0xFF000000;
    static constexpr DWORD COLOR_RED = 0xFFFF0000;
    static constexpr DWORD COLOR_WHITE = 0xFFFFFFFF;
    static constexpr DWORD COLOR_YELLOW = 0xFFFFFF00;
    /// Blinking runs show their colour for the first half of each period, its complement for the second.
    static constexpr DWORD BLINK_PERIOD_MS = 500;

    CSimAutoText();
    CSimAutoText(POINT pt, const char* szText, bool bWrap, bool bTags);
    CSimAutoText(int x, int y, const char* szText, bool bWrap, bool bTags);
    virtual ~CSimAutoText();

    /// Lays the text out (newline marks prepared first); 0 without text. The same text with the same settings
    /// keeps the stored layout, so that a caller may hand its text over every frame.
    int SetText(const char* szText, bool bWrap, bool bTags);
    /// Frees all runs and lines; the text size becomes 0 x 0.
    void Clear();
    /// Draws the runs at the position (runs wholly above or below the clip rectangle are left out); ShowAt
    /// moves the position first.
    void Show();
    void ShowAt(int x, int y);

    /// The layout width, never below the font size.
    void SetWidth(int nWidth);
    void SetColor(DWORD dwColor) { m_dwColor = dwColor; }
    void SetFontSize(int nFontSize) { m_nFontSize = nFontSize; }
    void SetCharSpacing(int nSpacing) { m_nCharSpacing = nSpacing; }
    void SetLineSpacing(int nSpacing) { m_nLineSpacing = nSpacing; }
    void SetStyle(int nStyle) { m_nStyle = nStyle; }
    void SetStrResMode(std::uint32_t nMode) { m_nStrResMode = nMode; }
    void SetPos(int x, int y) { m_ptPos = POINT{x, y}; }
    /// Re-aligns the existing lines at once when the value changes.
    void SetAlign(int nAlign);

    int GetLineCount() const { return static_cast<int>(m_vecLines.size()); }
    /// Width of line i, 0 for an unknown index.
    int GetLineWidth(int nLine) const;
    POINT GetPos() const { return m_ptPos; }
    SIZE GetTextSize() const { return m_sizeText; }
    int GetWidth() const { return m_nWidth; }
    int GetFontSize() const { return m_nFontSize; }
    int GetAlign() const { return m_nAlign; }
    const std::vector<SAutoTextRun>& GetRuns() const { return m_vecRuns; }
    const std::vector<SAutoTextLine>& GetLines() const { return m_vecLines; }

private:
    /// Everything besides the text that the layout depends on (the alignment is applied on its own).
    struct SLayoutInputs {
        bool bWrap = false;
        bool bTags = false;
        bool bEnglish = false;
        int nWidth = 0;
        DWORD dwColor = 0;
        int nFontSize = 0;
        int nCharSpacing = 0;
        int nLineSpacing = 0;
        int nStyle = 0;
        std::uint32_t nStrResMode = 0;
        bool operator==(const SLayoutInputs&) const = default;
    };

    SLayoutInputs CurrentInputs(bool bWrap, bool bTags) const;
    void Layout(std::string_view text, const SLayoutInputs& in);
    void Align();
    /// False when no pixel of the run can fall inside the clip rectangle (it lies wholly above or below).
    bool MayReachClip(const SAutoTextRun& run, const RECT& clip) const;
    void DrawRun(const SAutoTextRun& run, const char* szFont, bool bEnglishOnly, bool bBlinkInverted) const;

    POINT m_ptPos{0, 0};
    std::vector<SAutoTextRun> m_vecRuns;
    std::vector<SAutoTextLine> m_vecLines;
    int m_nWidth = 300;
    DWORD m_dwColor = 0xFFFFFF;
    int m_nFontSize = 14;
    int m_nCharSpacing = 0;
    int m_nLineSpacing = 2;
    int m_nStyle = STYLE_PLAIN;
    int m_nAlign = ALIGN_LEFT;
    SIZE m_sizeText{0, 0};
    std::uint32_t m_nStrResMode = 0;
    // The text and inputs of the stored layout; m_bLaidOut is false after Clear and before the first layout.
    bool m_bLaidOut = false;
    std::string m_strLaidOut;
    SLayoutInputs m_laidOutInputs;
};
