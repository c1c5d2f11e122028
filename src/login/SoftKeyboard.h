// The classic login's on-screen keyboard: a picture of 30-pixel cells, 13 to a row, whose characters belong
// to the host's login service; it follows the cell under the mouse, numbers the cell a press lands on and
// draws the picture with its focus masks.
#pragma once

#include <optional>

#include "platform/BaseLib.h"

class CMyBitmap;

class CSoftKeyboard {
public:
    static constexpr int CELL_SIZE = 30;
    static constexpr int COLUMNS = 13;
    /// Laid over the whole picture while the password field does not have the focus.
    static constexpr DWORD UNFOCUSED_MASK = 0x99000000;
    /// Laid over the cell under the mouse while the password field has the focus.
    static constexpr DWORD HOVER_MASK = 0xFF000000;
    /// Where the downloader leaves the picture.
    static constexpr const char* PICTURE_FILE = "data/softkey.jpg";

    CSoftKeyboard() = default;
    ~CSoftKeyboard();
    CSoftKeyboard(const CSoftKeyboard&) = delete;
    CSoftKeyboard& operator=(const CSoftKeyboard&) = delete;

    /// The number the host knows a cell by: column + 1 + row x 13 (both counted from 0).
    static int KeyNumber(int nCol, int nRow);
    /// Follows a mouse move to pt (screen): the cell under it when it lies in rcArea, else none.
    void TrackMouse(const RECT& rcArea, POINT pt);
    /// The key a press at pt sends: the cell of the last move, when pt lies in rcArea and a cell was under
    /// the mouse; none otherwise.
    std::optional<int> KeyAt(const RECT& rcArea, POINT pt) const;
    /// Forgets the cell under the mouse.
    void ClearHover();

    /// Replaces the picture by the file the downloader wrote.
    void LoadPicture();
    void ReleasePicture();
    const CMyBitmap* GetPicture() const { return m_pSoftKeyBitmap; }

    /// The picture at the area's top-left corner, masked whole without the focus, or on the hovered cell
    /// with it.
    void Draw(const RECT& rcArea, bool bPasswordFocused) const;

    int GetHoverCol() const { return m_nHoverCol; }
    int GetHoverRow() const { return m_nHoverRow; }

private:
    static bool Contains(const RECT& rc, POINT pt);

    CMyBitmap* m_pSoftKeyBitmap = nullptr; ///< owned; ended with its Release
    int m_nHoverCol = -1;
    int m_nHoverRow = -1;
};
