// The widget toolkit's list: rows of text; a click on a row tells the dialog with message 336, a click on a
// row's delete mark with message 331.
#pragma once

#include <string>
#include <vector>

#include "LuCtrl.h"

namespace LuGui {

/// Message to the dialog when a row was chosen (wParam: list id, lParam: row).
inline constexpr UINT LU_MSG_LIST_SELECT = 336;
/// Message to the dialog when a row's delete mark was clicked (wParam: list id, lParam: row).
inline constexpr UINT LU_MSG_LIST_DELETE = 331;

class CLuList : public CLuCtrl {
public:
    /// Size of the square delete mark of a row.
    static constexpr int DELETE_MARK_SIZE = 12;

    CLuList() = default;
    ~CLuList() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::List; }

    /// The list's set-up: kind, scroll buttons, slider and two flags of the client's list. Our list has one
    /// kind and no scrolling, so the values change nothing here.
    void PreSetParam(int nType, bool bScrollButtons, bool bSlider, int nFlag1, int nFlag2);
    /// The window that hosts the list when it opens over another control (kept for the caller).
    void SetParentCob(CLuBaseWindow* pWnd) { m_pParentCob = pWnd; }
    CLuBaseWindow* GetParentCob() const { return m_pParentCob; }

    /// Appends a row; returns its index.
    int AddString(const char* szText);
    int GetCount() const { return static_cast<int>(m_vecRows.size()); }
    /// The chosen row, -1 for none.
    int GetCurSel() const { return m_nCurSel; }
    void SetCurSel(int nRow);
    /// Copies row nRow (at most nSize - 1 bytes, terminated); returns the bytes copied, -1 for no such row.
    int GetText(int nRow, char* szBuf, int nSize) const;
    /// The text of row nRow, empty for no such row.
    const char* GetText(int nRow) const;
    /// Removes every row; nothing is chosen afterwards.
    void ResetContent();

    /// Colours of rows (normal, and under the cursor or chosen).
    void SetItemColors(DWORD dwNormal, DWORD dwHighlight);
    /// Text offset inside a row and the row height.
    void SetItemLayout(int nFontOffsetX, int nFontOffsetY, int nRowHeight);
    int GetRowHeight() const { return m_nRowHeight; }
    /// Where each row's delete mark sits, relative to the row's top-left corner; negative x: no mark.
    void SetMoveClose(int x, int y);
    /// A row's own look: its text colour, a picture under it and an icon at an offset from its top-left
    /// corner (titles of the list's animation file; empty for none). ResetContent drops it; nothing for no
    /// such row.
    void SetItemStyle(int nRow, DWORD dwColor, const char* szBackground, const char* szIcon,
                      POINT ptIconOffset);
    /// The picture drawn under the row under the cursor (a title of the list's animation file).
    void SetChooserAni(const char* szTitle, bool bOn);
    /// The row under the cursor, -1 for none.
    int GetHoverRow() const { return m_nHoverRow; }
    void ClearHover() { m_nHoverRow = -1; }

    /// The row at a screen point, -1 for none.
    int RowAt(POINT ptScreen) const;
    /// Whether the screen point lies on row nRow's delete mark.
    bool OnDeleteMark(int nRow, POINT ptScreen) const;
    /// Screen rectangle of row nRow's delete mark (empty when the list has no marks).
    RECT GetCloseRect(int nRow) const;
    /// Rows that fit in the list (no scrolling: the first visible row is 0).
    int GetVisibleRowCount() const { return GetHeight() / m_nRowHeight; }

    int Show() override;
    void OnMouseMove(UINT nFlags, POINT point) override;
    void OnLButtonUp(UINT nFlags, POINT point) override;

private:
    struct SRowStyle {
        bool bSet = false;
        DWORD dwColor = 0;
        std::string strBackground;
        std::string strIcon;
        POINT ptIconOffset{0, 0};
    };
    RECT RowRect(int nRow) const;

    std::vector<std::string> m_vecRows;
    std::vector<SRowStyle> m_vecStyles; ///< one per row
    int m_nCurSel = -1;
    int m_nHoverRow = -1;
    DWORD m_dwNormalColor = 0xFFFFFFFF;
    DWORD m_dwHighlightColor = 0xFFFFFF00;
    int m_nFontOffsetX = 4;
    int m_nFontOffsetY = 3;
    int m_nRowHeight = 20;
    POINT m_ptDeleteMark{-1, 0};
    std::string m_strChooser;
    bool m_bChooserOn = false;
    CLuBaseWindow* m_pParentCob = nullptr;
};

} // namespace LuGui
