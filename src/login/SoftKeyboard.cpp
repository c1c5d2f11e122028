// The classic login's on-screen keyboard: a picture of 30-pixel cells, 13 to a row, whose characters belong
// to the host's login service; it follows the cell under the mouse, numbers the cell a press lands on and
// draws the picture with its focus masks.
#include "login/SoftKeyboard.h"

#include "platform/Graphics.h"

CSoftKeyboard::~CSoftKeyboard() {
    ReleasePicture();
}

int CSoftKeyboard::KeyNumber(int nCol, int nRow) {
    return nCol + 1 + nRow * COLUMNS;
}

bool CSoftKeyboard::Contains(const RECT& rc, POINT pt) {
    return pt.x >= rc.left && pt.x < rc.right && pt.y >= rc.top && pt.y < rc.bottom;
}

void CSoftKeyboard::TrackMouse(const RECT& rcArea, POINT pt) {
    ClearHover();
    if (!Contains(rcArea, pt)) return;
    const int nCol = (pt.x - rcArea.left) / CELL_SIZE;
    // NOTE: an area wider than the picture's 13 columns has no cells right of them: their numbers would be
    // those of the next row.
    if (nCol >= COLUMNS) return;
    m_nHoverCol = nCol;
    m_nHoverRow = (pt.y - rcArea.top) / CELL_SIZE;
}

std::optional<int> CSoftKeyboard::KeyAt(const RECT& rcArea, POINT pt) const {
    if (!Contains(rcArea, pt) || m_nHoverCol < 0 || m_nHoverRow < 0) return std::nullopt;
    return KeyNumber(m_nHoverCol, m_nHoverRow);
}

void CSoftKeyboard::ClearHover() {
    m_nHoverCol = -1;
    m_nHoverRow = -1;
}

void CSoftKeyboard::LoadPicture() {
    ReleasePicture();
    m_pSoftKeyBitmap = MyBitmapCreate(PICTURE_FILE);
}

void CSoftKeyboard::ReleasePicture() {
    if (!m_pSoftKeyBitmap) return;
    m_pSoftKeyBitmap->Release();
    m_pSoftKeyBitmap = nullptr;
}

void CSoftKeyboard::Draw(const RECT& rcArea, bool bPasswordFocused) const {
    if (m_pSoftKeyBitmap) m_pSoftKeyBitmap->Show(rcArea.left, rcArea.top);
    if (!bPasswordFocused) {
        CMyBitmap::ShowBlock(rcArea, UNFOCUSED_MASK);
        return;
    }
    if (m_nHoverCol < 0 || m_nHoverRow < 0) return;
    const int x = rcArea.left + m_nHoverCol * CELL_SIZE;
    const int y = rcArea.top + m_nHoverRow * CELL_SIZE;
    CMyBitmap::ShowBlock(RECT{x, y, x + CELL_SIZE, y + CELL_SIZE}, HOVER_MASK);
}
