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
    /// A clickable image sends command 273 on a click like a button (face pictures); other images take
    /// presses silently.
    void SetClickable(bool bClickable) { m_bClickable = bClickable; }
    bool IsClickable() const { return m_bClickable; }
    void OnClicked() override;

private:
    bool m_bClickable = false;
};

} // namespace LuGui
