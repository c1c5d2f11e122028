// Lists: rows of text, the row under the cursor, and the two notifications a click sends.
#include "LuList.h"

#include <algorithm>
#include <cstring>

#include "GameGraphic.h"
#include "Graphics.h"
#include "Input.h"

namespace LuGui {
namespace {
// Row places come from layout numbers (outside text): sums saturate instead of overflowing.
LONG ClampToInt(long long n) {
    return static_cast<LONG>(std::clamp<long long>(n, INT32_MIN, INT32_MAX));
}
} // namespace

void CLuList::PreSetParam(int, bool, bool, int, int) {
}

int CLuList::AddString(const char* szText) {
    m_vecRows.emplace_back(szText ? szText : "");
    m_vecStyles.emplace_back();
    return GetCount() - 1;
}

void CLuList::SetCurSel(int nRow) {
    m_nCurSel = nRow >= 0 && nRow < GetCount() ? nRow : -1;
}

int CLuList::GetText(int nRow, char* szBuf, int nSize) const {
    if (nRow < 0 || nRow >= GetCount() || !szBuf || nSize <= 0) return -1;
    const std::string& row = m_vecRows[static_cast<std::size_t>(nRow)];
    const std::size_t n = std::min(row.size(), static_cast<std::size_t>(nSize - 1));
    std::memcpy(szBuf, row.data(), n);
    szBuf[n] = '\0';
    return static_cast<int>(n);
}

const char* CLuList::GetText(int nRow) const {
    return nRow >= 0 && nRow < GetCount() ? m_vecRows[static_cast<std::size_t>(nRow)].c_str() : "";
}

void CLuList::ResetContent() {
    m_vecRows.clear();
    m_vecStyles.clear();
    m_nCurSel = -1;
    m_nHoverRow = -1;
}

void CLuList::SetItemColors(DWORD dwNormal, DWORD dwHighlight) {
    m_dwNormalColor = dwNormal;
    m_dwHighlightColor = dwHighlight;
}

void CLuList::SetItemLayout(int nFontOffsetX, int nFontOffsetY, int nRowHeight) {
    m_nFontOffsetX = nFontOffsetX;
    m_nFontOffsetY = nFontOffsetY;
    m_nRowHeight = std::max(1, nRowHeight);
}

void CLuList::SetMoveClose(int x, int y) {
    m_ptDeleteMark = POINT{x, y};
}

void CLuList::SetItemStyle(int nRow, DWORD dwColor, const char* szBackground, const char* szIcon,
                           POINT ptIconOffset) {
    if (nRow < 0 || nRow >= GetCount()) return;
    SRowStyle& style = m_vecStyles[static_cast<std::size_t>(nRow)];
    style.bSet = true;
    style.dwColor = dwColor;
    style.strBackground = szBackground ? szBackground : "";
    style.strIcon = szIcon ? szIcon : "";
    style.ptIconOffset = ptIconOffset;
}

void CLuList::SetChooserAni(const char* szTitle, bool bOn) {
    m_strChooser = szTitle ? szTitle : "";
    m_bChooserOn = bOn;
}

RECT CLuList::RowRect(int nRow) const {
    const RECT rc = GetWindowRect();
    // Rows far below a list's bottom are never drawn; their places only have to stay representable.
    const long long nTop = static_cast<long long>(rc.top) + static_cast<long long>(nRow) * m_nRowHeight;
    return RECT{rc.left, ClampToInt(nTop), rc.right, ClampToInt(nTop + m_nRowHeight)};
}

int CLuList::RowAt(POINT pt) const {
    if (!HitTest(pt)) return -1;
    const long long nRow = (static_cast<long long>(pt.y) - GetWindowRect().top) / m_nRowHeight;
    // A row cut by the bottom edge is not drawn, so it can be neither hovered nor clicked.
    if (nRow >= GetCount() || RowRect(static_cast<int>(nRow)).bottom > GetWindowRect().bottom) return -1;
    return nRow;
}

RECT CLuList::GetCloseRect(int nRow) const {
    if (m_ptDeleteMark.x < 0 || nRow < 0 || nRow >= GetCount()) return RECT{0, 0, 0, 0};
    const RECT rcRow = RowRect(nRow);
    const long long x = static_cast<long long>(rcRow.left) + m_ptDeleteMark.x;
    const long long y = static_cast<long long>(rcRow.top) + m_ptDeleteMark.y;
    return RECT{ClampToInt(x), ClampToInt(y), ClampToInt(x + DELETE_MARK_SIZE),
                ClampToInt(y + DELETE_MARK_SIZE)};
}

bool CLuList::OnDeleteMark(int nRow, POINT pt) const {
    const RECT rc = GetCloseRect(nRow);
    return rc.right > rc.left && pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
}

int CLuList::Show() {
    if (!m_bVisible || m_bHideState) return 0;
    POINT ptCursor{};
    GetCursorPos(&ptCursor);
    m_nHoverRow = m_bEnabled ? RowAt(ptCursor) : -1;
    ShowBackGround();
    const RECT rc = GetWindowRect();
    const int nFont = m_sizeFont.cy > 0 ? m_sizeFont.cy : CMyBitmap::GetFontSize();
    for (int nRow = 0; nRow < GetCount(); ++nRow) {
        const RECT rcRow = RowRect(nRow);
        if (rcRow.bottom > rc.bottom) break; // rows that do not fit are not drawn
        const bool bMarked = nRow == m_nHoverRow || nRow == m_nCurSel;
        const SRowStyle& style = m_vecStyles[static_cast<std::size_t>(nRow)];
        if (!style.strBackground.empty())
            CGameGraphic::ShowAniRect(m_strBgAniFile.c_str(), style.strBackground.c_str(), 0, rcRow);
        if (bMarked && m_bChooserOn && !m_strChooser.empty())
            CGameGraphic::ShowAniRect(m_strBgAniFile.c_str(), m_strChooser.c_str(), 0, rcRow);
        if (!style.strIcon.empty())
            CGameGraphic::ShowAni(m_strBgAniFile.c_str(), style.strIcon.c_str(),
                                  ClampToInt(static_cast<long long>(rcRow.left) + style.ptIconOffset.x),
                                  ClampToInt(static_cast<long long>(rcRow.top) + style.ptIconOffset.y), 0);
        const DWORD dwColor = style.bSet ? style.dwColor : bMarked ? m_dwHighlightColor : m_dwNormalColor;
        CMyBitmap::ShowString(ClampToInt(static_cast<long long>(rcRow.left) + m_nFontOffsetX),
                              ClampToInt(static_cast<long long>(rcRow.top) + m_nFontOffsetY), dwColor,
                              m_vecRows[static_cast<std::size_t>(nRow)].c_str(),
                              CMyBitmap::GetDefaultFontName(), nFont);
    }
    return 1;
}

void CLuList::OnMouseMove(UINT, POINT point) {
    ClientToScreen(&point);
    m_nHoverRow = RowAt(point);
}

void CLuList::OnLButtonUp(UINT, POINT point) {
    if (!IsPressed() || !m_bEnabled) return;
    const int nRow = RowAt(point);
    if (nRow < 0) return;
    if (OnDeleteMark(nRow, point)) {
        NotifyParent(LU_MSG_LIST_DELETE, nRow);
        return;
    }
    m_nCurSel = nRow;
    NotifyParent(LU_MSG_LIST_SELECT, nRow);
}

} // namespace LuGui
