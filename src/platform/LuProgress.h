// The widget toolkit's progress bar: a range, a value, and the filled part drawn over the background.
#pragma once

#include <string>

#include "LuCtrl.h"

namespace LuGui {

/// Draws the background's frame 0 over the whole bar and its frame 1 (or, without one, a block in the font
/// colour) over the filled part, from the left.
class CLuProgress : public CLuCtrl {
public:
    CLuProgress() = default;
    ~CLuProgress() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::Progress; }
    /// Range, step, start value and the picture of the filled part (null: frame 1 of the background); a
    /// maximum not above the minimum makes the bar empty. The step and the last two values belong to the
    /// client's bar, which animates; ours draws the value as it is.
    void PreSetParam(int nMin, int nMax, int nStep = 1, int nPos = 0, const char* szFillAni = nullptr,
                     int nReserved = 0, const void* pReserved = nullptr);
    /// The value, clamped to the range.
    void SetPos(int nPos);
    int GetPos() const { return m_nPos; }
    int GetMin() const { return m_nMin; }
    int GetMax() const { return m_nMax; }
    /// Width in pixels of the filled part.
    int GetFilledWidth() const;

    int Show() override;

private:
    std::string m_strFillAni;
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nPos = 0;
};

} // namespace LuGui
