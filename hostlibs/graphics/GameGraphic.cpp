// The GUI drawing library (CGameGraphic): animations, nine-patches and string-resource text and pictures.
#include "GameGraphic.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "AniCache.h"
#include "AniHandle.h"
#include "FontRenderer.h"
#include "FrameDrawer.h"
#include "GraphicsState.h"
#include "NinePatch.h"
#include "text/Utf8.h"

namespace {
constexpr const char* STR_RES_ANI_FILE = "ani/StrRes.ani";
constexpr int DEFAULT_FONT_SIZE = 14;
constexpr std::size_t MAX_STR_RES_LENGTH = 16 * 1024;
constexpr DWORD OPAQUE_ALPHA = 0xFF000000;
constexpr int FULL_ALPHA = 255;

gfx::AniHandle* FindAni(const char* szFile, const char* szTitle) {
    if (!szFile || !szTitle) return nullptr;
    return gfx::AniCache::Instance().Animation(szFile, szTitle);
}

int ResolveFrame(const gfx::AniHandle& ani, int nFrame) {
    return nFrame < 0 ? ani.FrameByTime() : nFrame;
}

bool HasVisibleFrame(const gfx::AniHandle& ani) {
    for (int i = 0; i < ani.GetFrameAmount(); ++i) {
        if (ani.GetSize(i).cx > 0) return true;
    }
    return false;
}

// Breaks the text at line feeds and, when limit is positive, before the character that would pass it.
std::vector<std::u32string> BreakLines(const std::u32string& text, int size, int limit) {
    std::vector<std::u32string> lines(1);
    int width = 0;
    for (char32_t c : text) {
        if (c == U'\n') {
            lines.emplace_back();
            width = 0;
            continue;
        }
        const int advance = gfx::FontRenderer::CellWidth(c, size);
        if (limit > 0 && width + advance > limit && !lines.back().empty()) {
            lines.emplace_back();
            width = 0;
        }
        lines.back() += c;
        width += advance;
    }
    return lines;
}
} // namespace

bool CGameGraphic::ShowNineImageBackGround(const char* szTitle, int x, int y, int nWidth, int nHeight,
                                           int nAlpha, const char* szAniFile) {
    const gfx::AniHandle* ani = FindAni(szAniFile, szTitle);
    x = gfx::ClampCoord(x);
    y = gfx::ClampCoord(y);
    nWidth = gfx::ClampCoord(nWidth);
    nHeight = gfx::ClampCoord(nHeight);
    const gfx::Rect dst{x, y, nWidth, nHeight};
    if (!ani || dst.Empty() || !HasVisibleFrame(*ani)) return false;
    nAlpha = std::clamp(nAlpha, 0, FULL_ALPHA);
    gfx::ICanvas& canvas = gfx::GraphicsState::Instance().Canvas();
    const gfx::CompoundScope scope(canvas, gfx::OpBuilder("nine", {x, y, nWidth, nHeight})
                                               .Colour(static_cast<DWORD>(nAlpha))
                                               .File(szAniFile)
                                               .Name(ani->GetTitle()));
    return gfx::NinePatch::Draw(canvas, *ani, dst, nAlpha);
}

bool CGameGraphic::ShowAni(const char* szFile, const char* szTitle, int x, int y, int nFrame, int nAlpha) {
    gfx::AniHandle* ani = FindAni(szFile, szTitle);
    return ani && ani->Show(ResolveFrame(*ani, nFrame), x, y, 1.0f, 1.0f, nAlpha);
}

bool CGameGraphic::ShowCtrlAni(const char* szTitle, int x, int y, int nFrame, int nAlpha) {
    return ShowAni(CONTROL_ANI_FILE, szTitle, x, y, nFrame, nAlpha);
}

bool CGameGraphic::ShowAniRect(const char* szFile, const char* szTitle, int nFrame, const RECT& rcDest,
                               int nAlpha) {
    gfx::AniHandle* ani = FindAni(szFile, szTitle);
    return ani && ani->ShowStretch(ResolveFrame(*ani, nFrame), gfx::ClampRECT(rcDest), nAlpha);
}

int CGameGraphic::ShowStrRes(int x, int y, const char* szText, DWORD dwMode, const char*, int nFontSize,
                             DWORD dwColor, int, int nLimitWidth, void*, void*, DWORD, int, int, bool bShow,
                             SIZE* pOutSize, void*) {
    if (pOutSize) *pOutSize = {0, 0};
    if (!szText || !*szText) return 0;
    x = gfx::ClampCoord(x);
    y = gfx::ClampCoord(y);
    const int size = gfx::FontRenderer::ClampSize(nFontSize > 0 ? nFontSize : DEFAULT_FONT_SIZE);
    const std::u32string text =
        txt::Utf8::ToUtf32(std::string_view(szText, strnlen(szText, MAX_STR_RES_LENGTH)));
    const auto lines = BreakLines(text, size, nLimitWidth >= size ? nLimitWidth : 0);
    const int lineHeight = size + gfx::FontRenderer::LINE_GAP;
    int width = 0;
    for (const auto& line : lines) width = std::max(width, gfx::FontRenderer::Measure(line, size));
    const int height = static_cast<int>(lines.size()) * lineHeight - gfx::FontRenderer::LINE_GAP;
    if (pOutSize) *pOutSize = {width, height};
    if (!bShow) return static_cast<int>(lines.size());
    const DWORD colour = (dwColor & OPAQUE_ALPHA) == 0 ? dwColor | OPAQUE_ALPHA : dwColor;
    gfx::ICanvas& canvas = gfx::GraphicsState::Instance().Canvas();
    const gfx::CompoundScope scope(canvas, gfx::OpBuilder("strres", {x, y, width, height})
                                               .Colour(colour)
                                               .Size(size)
                                               .Frame(static_cast<int>(dwMode))
                                               .Text(txt::Utf8::FromUtf32(text)));
    gfx::TextStyle style;
    style.colour = colour;
    style.size = size;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        canvas.Text(x, y + static_cast<int>(i) * lineHeight, lines[i], style);
    }
    return static_cast<int>(lines.size());
}

bool CGameGraphic::ShowStrresUI(int nWidth, int nHeight, int x, int y, const char* szTitle, int nFrame,
                                const char* szAniFile) {
    const gfx::AniHandle* ani = FindAni(STR_RES_ANI_FILE, szTitle);
    if (!ani) return false;
    x = gfx::ClampCoord(x);
    y = gfx::ClampCoord(y);
    nWidth = gfx::ClampCoord(nWidth);
    nHeight = gfx::ClampCoord(nHeight);
    nFrame = ResolveFrame(*ani, nFrame);
    const SIZE natural = ani->GetSize(nFrame);
    const bool stretched = nWidth > 0 && nHeight > 0;
    const gfx::Rect dst{x, y, stretched ? nWidth : natural.cx, stretched ? nHeight : natural.cy};
    const gfx::AniFrame* frame = ani->Frame(nFrame);
    if (!frame || dst.Empty()) return false;
    gfx::ICanvas& canvas = gfx::GraphicsState::Instance().Canvas();
    const gfx::CompoundScope scope(canvas, gfx::OpBuilder("strresui", dst)
                                               .Colour(static_cast<DWORD>(FULL_ALPHA))
                                               .Frame(nFrame)
                                               .File(szAniFile ? szAniFile : "")
                                               .Name(ani->GetTitle()));
    return gfx::FrameDrawer::Draw(canvas, *frame, dst, FULL_ALPHA);
}
