// The auto text: prepares line-break marks, lays text out in runs and lines by estimated widths, aligns and
// draws it.
#include "controls/SimAutoText.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "platform/GameData.h"
#include "platform/GameGraphic.h"
#include "platform/Graphics.h"

namespace {

constexpr DWORD TAG_BLUE = 0xFF0000FF;
constexpr DWORD TAG_GREEN = 0xFF00FF00;
constexpr DWORD TAG_BLACK = 0xFF000000;
constexpr DWORD TAG_RED = 0xFFFF0000;
constexpr DWORD TAG_WHITE = 0xFFFFFFFF;
constexpr DWORD TAG_YELLOW = 0xFFFFFF00;
constexpr DWORD OPAQUE_ALPHA = 0xFF000000;
constexpr DWORD RGB_MASK = 0x00FFFFFF;
constexpr DWORD BLINK_PERIOD_MS = 500;
constexpr std::size_t MAX_DRAWN_TEXT = 1024;
constexpr std::size_t MAX_DRAWN_UNITS = 512;
constexpr int UNDERLINE_GAP = 2;
constexpr UINT CODE_PAGE_UTF8 = 65001;
constexpr const char* ENGLISH_LANGUAGE = "English";

// The attributes a tag changes.
struct SAttributes {
    DWORD dwColor;
    int nFontSize;
    int nStyle;
};

// Layout sums are made in 64 bits and stored saturated: fonts and widths come from texts and hosts.
int ToInt(long long n) {
    return static_cast<int>(std::clamp<long long>(n, INT32_MIN, INT32_MAX));
}

// Applies the tag name between "</" and ">"; false when the name is no tag (it is then laid out as text).
bool ApplyTag(std::string_view name, SAttributes& attr, const SAttributes& defaults) {
    if (name.empty()) return false;
    switch (name.front()) {
    case '#': {
        if (name.size() == 2) {
            static constexpr std::pair<char, DWORD> NAMED[] = {{'B', TAG_BLUE},  {'G', TAG_GREEN},
                                                               {'K', TAG_BLACK}, {'R', TAG_RED},
                                                               {'W', TAG_WHITE}, {'Y', TAG_YELLOW}};
            for (const auto& [letter, colour] : NAMED)
                if (name[1] == letter) {
                    attr.dwColor = colour;
                    return true;
                }
            return false;
        }
        if (name.size() < 3) return false;
        // Like "%x": as many hexadecimal digits as there are; none leaves the colour as it is.
        const std::string digits(name.substr(1));
        char* pEnd = nullptr;
        const unsigned long value = std::strtoul(digits.c_str(), &pEnd, 16);
        if (pEnd != digits.c_str()) attr.dwColor = static_cast<DWORD>(value);
        return true;
    }
    case 'D':
        attr = defaults;
        return true;
    case 'F':
        attr.nStyle = CSimAutoText::STYLE_BLINK;
        return true;
    case 'u':
        attr.nStyle = CSimAutoText::STYLE_UNDERLINE;
        return true;
    case 'S': {
        if (name.size() == 1) {
            attr.nFontSize = defaults.nFontSize;
            return true;
        }
        const std::string number(name.substr(1));
        if (!std::isdigit(static_cast<unsigned char>(number[0])) && number[0] != '-' && number[0] != '+')
            return false;
        attr.nFontSize = SafeAtoi(number.c_str());
        return true;
    }
    default:
        return false;
    }
}

// Bytes of the character that starts at text[i]: a lead byte takes its continuation bytes with it.
std::size_t CharLength(std::string_view text, std::size_t i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    // NOTE: no client encoding has ASCII lead bytes; skipping the library call keeps per-frame layouts cheap.
    if (c < 0x80 || !CMyBitmap::IsDBCSLeadByte(c)) return 1;
    const std::size_t nWant = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : 2;
    std::size_t n = 1;
    while (n < nWant && i + n < text.size() && (static_cast<unsigned char>(text[i + n]) & 0xC0) == 0x80) ++n;
    return n;
}

// Half-width units of a text: one per single-byte character, two per multi-byte character, as the
// double-byte encodings these estimates come from count their bytes.
std::size_t HalfWidthUnits(std::string_view text) {
    std::size_t nUnits = 0;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t nChar = CharLength(text, i);
        nUnits += nChar > 1 ? 2 : 1;
        i += nChar;
    }
    return nUnits;
}

// Real newlines go; the marks "\n", "\b" and "/b" become real newlines.
std::string PrepareLineBreaks(std::string_view text) {
    std::string stripped;
    stripped.reserve(text.size());
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t nl = std::min(text.find('\n', pos), text.size());
        stripped.append(text, pos, nl - pos);
        pos = nl + 1;
    }
    std::string result;
    result.reserve(stripped.size());
    const std::size_t n = stripped.size();
    for (std::size_t i = 0; i < n; ++i) {
        const char c = stripped[i];
        const bool bMark = i + 1 < n && ((c == '\\' && (stripped[i + 1] == 'n' || stripped[i + 1] == 'b')) ||
                                         (c == '/' && stripped[i + 1] == 'b'));
        result.push_back(bMark ? '\n' : c);
        i += bMark ? 1 : 0;
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
}

int CSimAutoText::SetText(const char* szText, bool bWrap, bool bTags) {
    if (!szText) return 0;
    if (NeedsLineBreakPreparation(szText))
        Layout(PrepareLineBreaks(szText), bWrap, bTags);
    else
        Layout(szText, bWrap, bTags);
    return 1;
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

void CSimAutoText::Layout(std::string_view text, bool bWrap, bool bTags) {
    Clear();
    const SAttributes defaults{m_dwColor, m_nFontSize, m_nStyle};
    SAttributes attr = defaults;
    const bool bEnglish = std::strcmp(RoleDataQueryEx()->GetLanguageName(), ENGLISH_LANGUAGE) == 0;
    const std::size_t n = text.size();
    long long nLineMax = attr.nFontSize;
    int nLine = 0;
    long long x = 0;
    long long nLineWidth = 0;
    long long y = 0;
    std::size_t nSegStart = 0;
    std::size_t nLineStart = 0;
    std::optional<std::size_t> current; // index of the open run

    auto runWidth = [this](const SAutoTextRun& run) {
        const long long w = (static_cast<long long>(run.nFontSize) / 2 + m_nCharSpacing) *
                            static_cast<long long>(HalfWidthUnits(run.strText));
        return static_cast<int>(std::clamp<long long>(w, INT32_MIN, INT32_MAX));
    };
    auto openRun = [&](const SAttributes& a, long long nX, long long nOffsetY) {
        m_vecRuns.push_back(
            SAutoTextRun{a.dwColor, a.nFontSize, ToInt(nX), ToInt(nOffsetY), nLine, {}, a.nStyle});
        current = m_vecRuns.size() - 1;
    };
    // Gives the open run (or a new run with the default attributes) the text [nSegStart, nEnd); returns its
    // width.
    auto closeRun = [&](std::size_t nEnd) {
        if (!current) openRun(defaults, nLineWidth, nLineMax - defaults.nFontSize);
        SAutoTextRun& run = m_vecRuns[*current];
        run.strText.assign(text.substr(nSegStart, std::min(nEnd - nSegStart, MAX_RUN_TEXT)));
        current.reset();
        return runWidth(run);
    };
    auto addLine = [&](long long nWidth) {
        const SAutoTextLine line{0, ToInt(y), ToInt(nWidth), ToInt(nLineMax + m_nLineSpacing)};
        m_vecLines.push_back(line);
        m_sizeText.cx = std::max(m_sizeText.cx, static_cast<LONG>(line.nWidth));
        m_sizeText.cy = ToInt(static_cast<long long>(m_sizeText.cy) + line.nHeight);
    };

    std::size_t i = 0;
    while (i < n) {
        if (attr.nFontSize > m_nWidth) {
            Align();
            return;
        }
        if (bTags && text[i] == '<' && i + 1 < n && text[i + 1] == '/' && i + 3 < n) {
            const std::size_t nClose = text.find('>', i + 2);
            if (nClose == std::string_view::npos) {
                // An open "</" is no tag: its "<" stays in the text but takes no room on the line.
                ++i;
                continue;
            }
            {
                SAttributes next = attr;
                if (ApplyTag(text.substr(i + 2, nClose - i - 2), next, defaults)) {
                    if (current || i > 0) nLineWidth += closeRun(i);
                    attr = next;
                    if (attr.nFontSize > nLineMax) {
                        for (auto it = m_vecRuns.rbegin(); it != m_vecRuns.rend() && it->nLine == nLine; ++it)
                            it->nOffsetY = ToInt(static_cast<long long>(it->nOffsetY) + attr.nFontSize - nLineMax);
                        nLineMax = attr.nFontSize;
                    }
                    openRun(attr, nLineWidth, nLineMax - attr.nFontSize);
                    nSegStart = i = nClose + 1;
                    continue;
                }
            }
        }
        const std::size_t nChar = CharLength(text, i);
        const long long nCharWidth =
            static_cast<long long>(nChar > 1 ? attr.nFontSize : attr.nFontSize / 2) + m_nCharSpacing;
        x += nCharWidth;
        const bool bNewline = text[i] == '\n' && m_nStrResMode == 0;
        if ((x <= m_nWidth || !bWrap) && !bNewline) {
            i += nChar;
            continue;
        }
        // Break the line at b: in English at the last space of the line, else at the overflowing character.
        std::size_t b = i;
        if (bEnglish && !bNewline) {
            // NOTE: the search stays inside the open run: text of runs already closed is not taken back.
            const std::size_t nWidthBack = static_cast<std::size_t>(std::max(m_nWidth, 1)) - 1;
            const std::size_t nLowest =
                std::max({nLineStart, nSegStart, i >= nWidthBack ? i - nWidthBack : 0});
            for (std::size_t k = i + 1; k-- > nLowest;)
                if (text[k] == ' ') {
                    b = k;
                    break;
                }
            // NOTE: a space that opens the line cannot end it; the line then breaks at the character.
            if (b == nLineStart && i > nLineStart) b = i;
        }
        // NOTE: a character wider than the whole line stays alone on it, so that the layout moves on.
        if (b == nLineStart && !bNewline) b = std::min(n, i + nChar);
        const std::size_t nNext = b < n && text[b] == '\n' ? b + 1 : b;
        addLine(nLineWidth + closeRun(b));
        y += m_nLineSpacing + nLineMax;
        ++nLine;
        x = 0;
        nLineWidth = 0;
        nLineMax = attr.nFontSize;
        openRun(attr, 0, 0);
        nSegStart = nLineStart = i = nNext;
    }
    addLine(nLineWidth + closeRun(n));
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
    for (const SAutoTextRun& run : m_vecRuns)
        if (run.nLine >= 0 && run.nLine < GetLineCount()) DrawRun(run);
}

void CSimAutoText::DrawRun(const SAutoTextRun& run) const {
    if (run.strText.empty()) return;
    DWORD dwColor = run.dwColor;
    if (run.nStyle == STYLE_BLINK && TimeGet() % BLINK_PERIOD_MS >= BLINK_PERIOD_MS / 2)
        dwColor = RGB_MASK - (dwColor & RGB_MASK);
    dwColor |= OPAQUE_ALPHA;

    char szText[MAX_DRAWN_TEXT];
    const std::size_t nBytes = std::min(run.strText.size(), sizeof szText - 1);
    std::memcpy(szText, run.strText.data(), nBytes);
    szText[nBytes] = '\0';
    if (RoleDataQueryEx()->IsEnglishOnly()) ConverCodeToOnlyEnglish(szText, sizeof szText);

    const SAutoTextLine& line = m_vecLines[static_cast<std::size_t>(run.nLine)];
    const int x = ToInt(static_cast<long long>(m_ptPos.x) + line.nX + run.nX);
    const int y = ToInt(static_cast<long long>(m_ptPos.y) + line.nY + run.nOffsetY);
    const char* szFont = RoleDataQueryEx()->MapFontName(CMyBitmap::GetDefaultFontName());
    if (m_nStrResMode != 0) {
        SIZE drawn{0, 0};
        CGameGraphic::ShowStrRes(x, y, szText, m_nStrResMode, szFont, run.nFontSize, dwColor, 0, 1, nullptr,
                                 nullptr, 0xFFFFFFFF, 3, 0, true, &drawn, nullptr);
    } else {
        std::u16string wide = StringToWString(szText, CODE_PAGE_UTF8);
        if (wide.size() > MAX_DRAWN_UNITS) wide.resize(MAX_DRAWN_UNITS);
        CMyBitmap::ShowStringW(x, y, dwColor, wide.c_str(), szFont, run.nFontSize, true, 0, 0xFF000000,
                               nullptr, nullptr);
    }
    if (run.nStyle == STYLE_UNDERLINE) {
        const int nLineY = ToInt(static_cast<long long>(y) + run.nFontSize + UNDERLINE_GAP);
        const long long nLength = static_cast<long long>(HalfWidthUnits(szText)) * run.nFontSize / 2;
        CMyBitmap::ShowLine(x, nLineY, ToInt(x + nLength), nLineY, dwColor);
    }
}
