// The widget toolkit's push button: a left press and release on it sends command 273 to its dialog.
#pragma once

#include "LuCtrl.h"

namespace LuGui {

/// Background frames: 0 normal, 1 hover, 2 pressed, 3 disabled (a frame the animation lacks falls back to
/// 0).
class CLuButton : public CLuCtrl {
public:
    CLuButton() = default;
    ~CLuButton() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::Button; }
    void AdjustFrame() override;
    void OnClicked() override;
};

} // namespace LuGui
