// Where the dialogs of the English creation layout go for the main window's size, computed from their
// layout records so that every opening lands alike.
#pragma once

#include <cstdint>

#include "platform/LuBaseWindow.h"

class IScreenContext;

class CEnglishPlacement {
public:
    /// The size the English layout is designed for.
    static constexpr int DESIGN_WIDTH = 1024;
    static constexpr int DESIGN_HEIGHT = 768;
    /// A stored size outside 1 to this is not a window size; the design size stands in for it.
    static constexpr int MAX_SIDE = 16384;

    /// The main window's size as stored by "SetMainPath" (or "ReSetMainPath"); each side outside 1 to
    /// MAX_SIDE is replaced by the design size.
    static SIZE MainSize(const IScreenContext* pContext);
    /// The window's rectangle as its layout record gives it (screen for dialogs); its current one without a
    /// record.
    static RECT RecordRect(const LuGui::CLuBaseWindow& window);
    /// The preview frame: its record's place moved by ((W - 1024) / 2, H - 768), its size kept.
    static void PlaceFrame(LuGui::CLuBaseWindow& frame, SIZE main);
    /// The back dialog: its record's place moved down by H - 768, so that it keeps its distance to the
    /// bottom edge beside the column.
    static void PlaceBottomLeft(LuGui::CLuBaseWindow& dialog, SIZE main);
    /// A side dialog: the three numbers a, b, c of string nStrId grow the record's size by (a, b); the bottom
    /// lies c above the main window's bottom; bRightAligned puts its right edge on the main window's right.
    static void PlaceSide(LuGui::CLuBaseWindow& dialog, std::uint32_t nStrId, SIZE main, bool bRightAligned);
};
