// The widget toolkit's image: a background frame and the image's own picture, drawn by DrawImage.
#pragma once

#include "LuCtrl.h"

namespace LuGui {

class CLuImage : public CLuCtrl {
public:
    CLuImage() = default;
    ~CLuImage() override = default;

    ELuCtrlKind GetKind() const override { return ELuCtrlKind::Image; }
    /// Background, then DrawImage, then the text.
    int Show() override;
    /// The image's own picture (the toolkit's image draws none beyond its background).
    virtual void DrawImage() {}
};

} // namespace LuGui
