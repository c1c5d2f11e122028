// The widget toolkit's static text: a label that draws its text, on one line or over several.
#pragma once

#include "LuCtrl.h"

namespace LuGui {

class CLuStatic : public CLuCtrl {
public:
    CLuStatic() = default;
    ~CLuStatic() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::Static; }
    bool IsHitTarget() const override { return false; }
};

} // namespace LuGui
