// The widget toolkit's check box: a click toggles its value, then sends command 273 like a button.
#pragma once

#include "LuCtrl.h"

namespace LuGui {

/// Background frames: 0 unchecked, 1 checked (hover does not change the frame).
class CLuCheck : public CLuCtrl {
public:
    CLuCheck() = default;
    ~CLuCheck() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::Check; }
    void SetChecked(bool bChecked) { m_bChecked = bChecked; }
    bool GetCheckValue() const { return m_bChecked; }
    void AdjustFrame() override;
    void OnClicked() override;

private:
    bool m_bChecked = false;
};

} // namespace LuGui
