// The auto text: prepares line-break marks, lays text out in runs and lines by estimated widths, aligns and
// draws it.
//
// Index:
//   helpers       tags, numbers, byte scans, line-break marks
//   construction  constructors, SetText and its kept layout, setters
//   layout        Layout, Align
//   drawing       Show, the clip test, DrawRun
#include "controls/SimAutoText.h"

#include <algorithm>
#include <bit>
#include <climits>
#include <cstring>

#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/Graphics.h"

// ---- helpers -------------------------------------------------------------------------------------

namespace {

constexpr DWORD OPAQUE_ALPHA = 0xFF000000;
constexpr DWORD RGB_WHITE = 0x00FFFFFF;
constexpr std::size_t MAX_DRAWN_TEXT = 1024;
constexpr std::size_t MAX_DRAWN_UNITS = 512;
constexpr int UNDERLINE_GAP = 2;
constexpr int MIN_GLYPH_REACH = 16;
constexpr UINT CODE_PAGE_UTF8 = 65001;
constexpr const char* ENGLISH_LANGUAGE = "English";
constexpr std::size_t NO_POSITION = static_cast<std::size_t>(-1);

// The attributes a tag changes.
struct SAttributes {
    DWORD dwColor;
    int nFontSize;
    int nStyle;
};

// Layout sums are made in 64 bits and stored saturated: fonts and widths come from texts and hosts.
int ToInt(long long n) {
    return static_cast<int>(std::clamp<long long>(n, INT_MIN, INT_MAX));
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

int HexDigit(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Reads like "%x": leading blanks, a sign, an optional "0x", then hexadecimal digits (the last eight count).
// False without digits.
bool ParseHex(std::string_view s, DWORD& dwValue) {
    std::size_t p = 0;
    while (p < s.size() && (s[p] == ' ' || s[p] == '\t')) ++p;
    bool bNegative = false;
    if (p < s.size() && (s[p] == '+' || s[p] == '-')) bNegative = s[p++] == '-';
    if (p + 2 < s.size() && s[p] == '0' && (s[p + 1] == 'x' || s[p + 1] == 'X') && HexDigit(s[p + 2]) >= 0)
        p += 2;
    const std::size_t nFirst = p;
    DWORD dw = 0;
    for (int d; p < s.size() && (d = HexDigit(s[p])) >= 0; ++p) dw = dw * 16 + static_cast<DWORD>(d);
    if (p == nFirst) return false;
    dwValue = bNegative ? 0u - dw : dw;
    return true;
}

// An optional sign and decimal digits, saturated to 32 bits; false without digits.
bool ParseDecimal(std::string_view s, int& nValue) {
    std::size_t p = 0;
    bool bNegative = false;
    if (p < s.size() && (s[p] == '+' || s[p] == '-')) bNegative = s[p++] == '-';
    if (p >= s.size() || !IsDigit(s[p])) return false;
    long long n = 0;
    for (; p < s.size() && IsDigit(s[p]); ++p) n = std::min(n * 10 + (s[p] - '0'), 1LL << 32);
    nValue = ToInt(bNegative ? -n : n);
    return true;
}

// Applies the tag name between "</" and ">"; false when the name is no tag (it is then laid out as text).
bool ApplyTag(std::string_view name, SAttributes& attr, const SAttributes& plain) {
    if (name.empty()) return false;
    switch (name.front()) {
    case '#': {
        if (name.size() == 2) {
            static constexpr std::pair<char, DWORD> NAMED[] = {
                {'B', CSimAutoText::COLOR_BLUE},  {'G', CSimAutoText::COLOR_GREEN},
                {'K', CSimAutoText::COLOR_BLACK}, {'R', CSimAutoText::COLOR_RED},
                {'W', CSimAutoText::COLOR_WHITE}, {'Y', CSimAutoText::COLOR_YELLOW}};
            for (const auto& [letter, colour] : NAMED)
                if (name[1] == letter) {
                    attr.dwColor = colour;
                    return true;
                }
            return false;
        }
        if (name.size() < 3) return false;
        // NOTE: a colour tag without hexadecimal digits is still a tag; the colour stays as it was.
        ParseHex(name.substr(1), attr.dwColor);
        return true;
    }
    case 'D':
        attr = plain;
        return true;
    case 'F':
        attr.nStyle = CSimAutoText::STYLE_BLINK;
        return true;
    case 'u':
        attr.nStyle = CSimAutoText::STYLE_UNDERLINE;
        return true;
    case 'S':
        if (name.size() == 1) {
            attr.nFontSize = plain.nFontSize;
            return true;
        }
        return ParseDecimal(name.substr(1), attr.nFontSize);
    default:
        return false;
    }
}

// Bytes of the multi-byte character whose lead byte is text[i]: the lead and its continuation bytes, as many
// as the lead announces and the text holds.
std::size_t SequenceLength(std::string_view text, std::size_t i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    const std::size_t nWant = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : 2;
    std::size_t n = 1;
    while (n < nWant && i + n < text.size() && (static_cast<unsigned char>(text[i + n]) & 0xC0) == 0x80) ++n;
    return n;
}

// Index of the first byte from i that is one of Bytes, or (with HIGH_BYTES) 0x80 or above; the text's size
// when there is none.
template <bool HIGH_BYTES, char... Bytes> std::size_t FindFirst(std::string_view text, std::size_t i) {
    const std::size_t n = text.size();
    std::size_t k = i;
    if constexpr (std::endian::native == std::endian::little) {
        // Eight bytes at a time: the lowest flagged byte of each test is exact, so their union finds the
        // first byte looked for.
        constexpr std::uint64_t ONES = 0x0101010101010101, HIGH = 0x8080808080808080;
        auto zeroBytes = [](std::uint64_t v) { return (v - ONES) & ~v & HIGH; };
        for (; k + 8 <= n; k += 8) {
            std::uint64_t w;
            std::memcpy(&w, text.data() + k, sizeof w);
            const std::uint64_t found = (HIGH_BYTES ? w & HIGH : 0) |
                                        (zeroBytes(w ^ (ONES * static_cast<unsigned char>(Bytes))) | ...);
            if (found) return k + static_cast<std::size_t>(std::countr_zero(found)) / 8;
        }
    }
    for (; k < n; ++k) {
        const char c = text[k];
        if ((HIGH_BYTES && static_cast<unsigned char>(c) >= 0x80) || ((c == Bytes) || ...)) return k;
    }
    return n;
}

// Real newlines go; the marks "\n", "\b" and "/b" become real newlines. One pass: a kept "\" or "/" pairs
// with the next kept character, exactly as if the newlines had been removed first.
std::string PrepareLineBreaks(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    const std::size_t n = text.size();
    for (std::size_t pos = 0; pos < n;) {
        const std::size_t next = FindFirst<false, '\n', '\\', '/'>(text, pos);
        result.append(text, pos, next - pos);
        if (next == n) break;
        const char c = text[next];
        pos = next + 1;
        if (c == '\n') continue;
        while (pos < n && text[pos] == '\n') ++pos;
        const bool bMark = pos < n && (text[pos] == 'b' || (c == '\\' && text[pos] == 'n'));
        result.push_back(bMark ? '\n' : c);
        pos += bMark ? 1 : 0;
    }
    return result;
}

bool NeedsLineBreakPreparation(const char* szText) {
    return std::strchr(szText, '\n') || std::strstr(szText, "\\n") || std::strstr(szText, "\\b") ||
           std::strstr(szText, "/b");
}

} // namespace

// ---- construction --------------------------------------------------------------------------------

CSimAutoText::CSimAutoText() = default;

CSimAutoText::CSimAutoText(POINT pt, const char* szText, bool bWrap, bool bTags) : m_ptPos(pt) {
    if (szText) SetText(szText, bWrap, bTags);
}

CSimAutoText::CSimAutoText(int x, int y, const char* szText, bool bWrap, bool bTags)
    : CSimAutoText(POINT{x, y}, szText, bWrap, bTags) {
}

CSimAutoText::~CSimAutoText() = default;

void CSimAutoText::Clear() {
    m_vecRuns.clear();
    m_vecLines.clear();
    m_sizeText = SIZE{0, 0};
    m_bLaidOut = false;
}

int CSimAutoText::SetText(const char* szText, bool bWrap, bool bTags) {
    if (!szText) return 0;
    const SLayoutInputs inputs = CurrentInputs(bWrap, bTags);
    // NOTE: the layout is a function of the text and these inputs alone, so an unchanged pair keeps it; the
    // text is compared by content because callers pass the same buffer with new contents.
    if (m_bLaidOut && inputs == m_laidOutInputs && m_strLaidOut == szText) return 1;
    if (NeedsLineBreakPreparation(szText))
        Layout(PrepareLineBreaks(szText), inputs);
    else
        Layout(szText, inputs);
    m_strLaidOut = szText;
    m_laidOutInputs = inputs;
    m_bLaidOut = true;
    return 1;
}

CSimAutoText::SLayoutInputs CSimAutoText::CurrentInputs(bool bWrap, bool bTags) const {
    const char* szLanguage = RoleDataQueryEx()->GetLanguageName();
    const bool bEnglish = szLanguage && std::strcmp(szLanguage, ENGLISH_LANGUAGE) == 0;
    return SLayoutInputs{bWrap,       bTags,          bEnglish,       m_nWidth, m_dwColor,
                         m_nFontSize, m_nCharSpacing, m_nLineSpacing, m_nStyle, m_nStrResMode};
}

void CSimAutoText::SetWidth(int nWidth) {
    m_nWidth = std::max(nWidth, m_nFontSize);
}

void CSimAutoText::SetAlign(int nAlign) {
    if (nAlign == m_nAlign) return;
    m_nAlign = nAlign;
    Align();
}

int CSimAutoText::GetLineWidth(int nLine) const {
    return nLine >= 0 && nLine < GetLineCount() ? m_vecLines[static_cast<std::size_t>(nLine)].nWidth : 0;
}

// ---- layout --------------------------------------------------------------------------------------

void CSimAutoText::Layout(std::string_view text, const SLayoutInputs& in) {
    // NOTE: like Clear, except that the old runs are overwritten in place rather than freed: their texts keep
    // their buffers for the next text.
    m_vecLines.clear();
    m_sizeText = SIZE{0, 0};
    std::size_t nRuns = 0; // runs of this layout; elements past them are left from the last one
    const SAttributes defaults{in.dwColor, in.nFontSize, in.nStyle};
    const SAttributes plain{in.dwColor, in.nFontSize, STYLE_PLAIN};
    SAttributes attr = defaults;
    const bool bWrap = in.bWrap;
    const bool bTags = in.bTags;
    const bool bEnglish = in.bEnglish;
    const std::size_t n = text.size();
    const int nWidth = in.nWidth;
    const bool bNewlineBreaks = in.nStrResMode == 0;

    long long nLineMax = attr.nFontSize; // largest font on the line
    long long x = 0;                     // where the next character starts, for the line-end test
    long long nLineWidth = 0;            // sum of the widths of the line's closed runs
    long long y = 0;
    int nLine = 0;
    std::size_t nSegStart = 0;            // start of the open run's text
    std::size_t nFirstChar = NO_POSITION; // the line's first character
    std::size_t nLineFirstRun = 0;
    bool bRunOpen = false;
    std::size_t nNextClose = 0; // the next ">" at or after a tag's name; n when there is none
    std::size_t nSpanEnd = 0;   // the next "<", newline or high byte at or after a plain span's start

    long long nHalfWidth = 0, nFullWidth = 0;
    auto setFont = [&](int nFont) {
        nHalfWidth = nFont / 2 + static_cast<long long>(in.nCharSpacing);
        nFullWidth = nFont + static_cast<long long>(in.nCharSpacing);
    };
    setFont(attr.nFontSize);

    auto openRun = [&](const SAttributes& a, long long nX) {
        if (nRuns == m_vecRuns.size()) m_vecRuns.emplace_back();
        SAutoTextRun& run = m_vecRuns[nRuns++];
        run.dwColor = a.dwColor;
        run.nFontSize = a.nFontSize;
        run.nX = ToInt(nX);
        run.nOffsetY = 0;
        run.nLine = nLine;
        run.strText.clear();
        run.nStyle = a.nStyle;
        bRunOpen = true;
    };
    // Gives the open run (or a new run with the default attributes) the text [nSegStart, nEnd); returns its
    // width.
    auto closeRun = [&](std::size_t nEnd) {
        if (!bRunOpen) openRun(defaults, nLineWidth);
        SAutoTextRun& run = m_vecRuns[nRuns - 1];
        run.strText.assign(text.data() + nSegStart, std::min(nEnd - nSegStart, MAX_RUN_TEXT));
        bRunOpen = false;
        return (run.nFontSize / 2 + static_cast<long long>(in.nCharSpacing)) *
               static_cast<long long>(run.strText.size());
    };
    // NOTE: a run's offset is the line's largest font minus its own font once the line is complete; setting
    // it here is the same as moving the line's runs down each time a larger font joins the line.
    auto settleOffsets = [&] {
        for (std::size_t r = nLineFirstRun; r < nRuns; ++r)
            m_vecRuns[r].nOffsetY = ToInt(nLineMax - m_vecRuns[r].nFontSize);
    };
    auto addLine = [&](long long nLineTotal) {
        settleOffsets();
        const SAutoTextLine line{0, ToInt(y), ToInt(nLineTotal), ToInt(nLineMax + in.nLineSpacing)};
        m_vecLines.push_back(line);
        m_sizeText.cx = std::max(m_sizeText.cx, static_cast<LONG>(line.nWidth));
        m_sizeText.cy = ToInt(static_cast<long long>(m_sizeText.cy) + line.nHeight);
    };

    bool bFontTooLarge = attr.nFontSize > nWidth;
    std::size_t i = 0;
    while (i < n) {
        if (bFontTooLarge) {
            // The layout ends here: the unfinished line gets no record and nothing is aligned.
            settleOffsets();
            m_vecRuns.resize(nRuns);
            return;
        }
        const unsigned char c = static_cast<unsigned char>(text[i]);
        if (bTags && c == '<' && i + 3 < n && text[i + 1] == '/') {
            if (nNextClose < i + 2) nNextClose = std::min(text.find('>', i + 2), n);
            if (nNextClose == n) {
                // An open "</" is no tag: its "<" stays in the text but takes no room on the line.
                ++i;
                continue;
            }
            SAttributes next = attr;
            if (ApplyTag(text.substr(i + 2, nNextClose - i - 2), next, plain)) {
                if (bRunOpen || i > 0) nLineWidth += closeRun(i);
                attr = next;
                setFont(attr.nFontSize);
                bFontTooLarge = attr.nFontSize > nWidth;
                nLineMax = std::max<long long>(nLineMax, attr.nFontSize);
                openRun(attr, nLineWidth);
                nSegStart = i = nNextClose + 1;
                continue;
            }
        }
        if (nHalfWidth > 0 && c < 0x80 && c != '<' && c != '\n') {
            // Plain characters that fit (the line's first always does) are measured together.
            // NOTE: the end is kept until the scan passes it: searching again from every line start would
            // make a long text without stops quadratic.
            if (nSpanEnd <= i) nSpanEnd = FindFirst<true, '<', '\n'>(text, i);
            const std::size_t nSpan = nSpanEnd - i;
            const long long nRoom = nWidth - x;
            std::size_t nFit = !bWrap               ? nSpan
                               : nRoom < nHalfWidth ? 0
                                                    : static_cast<std::size_t>(nRoom / nHalfWidth);
            if (nFirstChar == NO_POSITION) nFit = std::max<std::size_t>(nFit, 1);
            const std::size_t nTake = std::min(nSpan, nFit);
            if (nTake > 0) {
                if (nFirstChar == NO_POSITION) nFirstChar = i;
                x += static_cast<long long>(nTake) * nHalfWidth;
                i += nTake;
                continue;
            }
        }
        std::size_t nChar = 1;
        if (c < 0x80 || !CMyBitmap::IsDBCSLeadByte(c)) {
            x += nHalfWidth;
        } else {
            nChar = SequenceLength(text, i);
            x += nFullWidth;
        }
        const bool bNewline = c == '\n' && bNewlineBreaks;
        // NOTE: the line's first character stays even when it alone is wider than the line, so that every
        // line holds at least one character and the layout always moves on.
        if (!bNewline && (x <= nWidth || !bWrap || nFirstChar == NO_POSITION)) {
            if (nFirstChar == NO_POSITION) nFirstChar = i;
            i += nChar;
            continue;
        }

        // Break the line at b: in English at the last space of the line, else at the overflowing character.
        std::size_t b = i;
        if (bEnglish && !bNewline) {
            // NOTE: the search stays inside the open run (text of runs already closed is not taken back), and
            // a space that is the line's first character cannot end the line.
            const std::size_t nBack = static_cast<std::size_t>(std::max(nWidth, 1)) - 1;
            const std::size_t nLowest = std::max(nSegStart, i > nBack ? i - nBack : 0);
            for (std::size_t k = i + 1; k-- > nLowest;)
                if (text[k] == ' ') {
                    if (k > nFirstChar) b = k;
                    break;
                }
        }
        const std::size_t nNext = text[b] == '\n' ? b + 1 : b;
        const long long nRunWidth = closeRun(b);
        addLine(nLineWidth + nRunWidth);
        y += in.nLineSpacing + nLineMax;
        ++nLine;
        x = 0;
        nLineWidth = 0;
        nLineMax = attr.nFontSize;
        nLineFirstRun = nRuns;
        openRun(attr, 0);
        nSegStart = i = nNext;
        nFirstChar = NO_POSITION;
    }
    const long long nRunWidth = closeRun(n);
    addLine(nLineWidth + nRunWidth);
    m_vecRuns.resize(nRuns);
    Align();
}

void CSimAutoText::Align() {
    for (SAutoTextLine& line : m_vecLines) {
        if (line.nWidth == 0) break;
        switch (m_nAlign) {
        case ALIGN_RIGHT:
            line.nX = ToInt(static_cast<long long>(m_nWidth) - line.nWidth);
            break;
        case ALIGN_CENTER:
            line.nX = ToInt(static_cast<long long>(m_nWidth / 2) - line.nWidth / 2);
            break;
        default:
            line.nX = 0;
            break;
        }
    }
}

// ---- drawing -------------------------------------------------------------------------------------

void CSimAutoText::ShowAt(int x, int y) {
    SetPos(x, y);
    Show();
}

void CSimAutoText::Show() {
    if (m_vecRuns.empty()) return;
    IRoleDataEx* pRoleData = RoleDataQueryEx();
    const bool bEnglishOnly = pRoleData->IsEnglishOnly();
    const char* szFont = pRoleData->MapFontName(CMyBitmap::GetDefaultFontName());
    const bool bBlinkInverted = TimeGet() % BLINK_PERIOD_MS >= BLINK_PERIOD_MS / 2;
    const RECT clip = CMyBitmap::GetClipRect();
    for (const SAutoTextRun& run : m_vecRuns)
        if (run.nLine >= 0 && run.nLine < GetLineCount() && MayReachClip(run, clip))
            DrawRun(run, szFont, bEnglishOnly, bBlinkInverted);
}

bool CSimAutoText::MayReachClip(const SAutoTextRun& run, const RECT& clip) const {
    // NOTE: the host's string-resource renderer may break lines on its own, so only plain runs, which hold
    // no newline, are judged. The reach is generous on both sides (glyphs above the top, the underline below,
    // a graphics library that draws tiny fonts larger): it only has to leave out lines far off the screen.
    if (m_nStrResMode != 0) return true;
    const SAutoTextLine& line = m_vecLines[static_cast<std::size_t>(run.nLine)];
    const long long nTop = static_cast<long long>(m_ptPos.y) + line.nY + run.nOffsetY;
    const long long nReach = 2LL * std::max(run.nFontSize, MIN_GLYPH_REACH) + UNDERLINE_GAP;
    return nTop + nReach > clip.top && nTop - nReach < clip.bottom;
}

void CSimAutoText::DrawRun(const SAutoTextRun& run, const char* szFont, bool bEnglishOnly,
                           bool bBlinkInverted) const {
    DWORD dwColor = run.dwColor;
    // NOTE: the alpha is set afterwards, so only the RGB part of the complement matters.
    if (run.nStyle == STYLE_BLINK && bBlinkInverted) dwColor = RGB_WHITE - dwColor;
    dwColor |= OPAQUE_ALPHA;

    char szText[MAX_DRAWN_TEXT];
    const std::size_t nBytes = std::min(run.strText.size(), sizeof szText - 1);
    std::memcpy(szText, run.strText.data(), nBytes);
    szText[nBytes] = '\0';
    if (bEnglishOnly) ConverCodeToOnlyEnglish(szText, sizeof szText);

    const SAutoTextLine& line = m_vecLines[static_cast<std::size_t>(run.nLine)];
    const int x = ToInt(static_cast<long long>(m_ptPos.x) + line.nX + run.nX);
    const int y = ToInt(static_cast<long long>(m_ptPos.y) + line.nY + run.nOffsetY);
    if (m_nStrResMode != 0) {
        SIZE drawn{0, 0};
        CGameGraphic::ShowStrRes(x, y, szText, m_nStrResMode, szFont, run.nFontSize, dwColor, 0, 1, nullptr,
                                 nullptr, 0xFFFFFFFF, 3, 0, true, &drawn, nullptr);
    } else {
        std::u16string wide = StringToWString(szText, CODE_PAGE_UTF8);
        if (wide.size() > MAX_DRAWN_UNITS) {
            // A surrogate pair is kept whole or dropped whole.
            const bool bSplitsPair = (wide[MAX_DRAWN_UNITS - 1] & 0xFC00) == 0xD800;
            wide.resize(MAX_DRAWN_UNITS - (bSplitsPair ? 1 : 0));
        }
        CMyBitmap::ShowStringW(x, y, dwColor, wide.c_str(), szFont, run.nFontSize, true, 0, OPAQUE_ALPHA,
                               nullptr, nullptr);
    }
    if (run.nStyle == STYLE_UNDERLINE) {
        const int nLineY = ToInt(static_cast<long long>(y) + run.nFontSize + UNDERLINE_GAP);
        const long long nLength = static_cast<long long>(std::strlen(szText)) * run.nFontSize / 2;
        CMyBitmap::ShowLine(x, nLineY, ToInt(x + nLength), nLineY, dwColor);
    }
}
