// An image control that shows one frame of an animation: control pictures, player faces and model faces.
#pragma once

#include <cstdint>

#include "platform/LuImage.h"
#include "platform/ZrString.h"

enum EImageKind { IMAGE_CONTROL = 0, IMAGE_PLAYER_FACE = 1, IMAGE_PLAYER_MODEL_FACE = 2 };

class CSimImage : public LuGui::CLuImage {
public:
    CSimImage();
    ~CSimImage() override;

    void SetCurFrame(int nFrame) override;
    /// The frame of m_strAniTitle from the kind's animation file, stretched or at its natural size.
    void DrawImage() override;

    /// Sets the kind (and with it the animation file), the background and the title; "NULL" or null leaves
    /// the background or the title as they are.
    void InitImage(const char* szTitle, EImageKind eKind, const char* szBackground);
    /// Sets the stretch flag; the title changes only for the face kinds.
    void SetAniTitle(const char* szTitle, bool bStretch);

    EImageKind GetImageKind() const { return m_eKind; }
    const char* GetAniFile() const { return m_strAniFile.c_str(); }
    const char* GetAniTitle() const { return m_strAniTitle.c_str(); }
    bool IsStretch() const { return m_bStretch; }

private:
    EImageKind m_eKind = IMAGE_CONTROL;
    CZrString m_strAniFile;
    CZrString m_strAniTitle;
    std::uint16_t m_usFrame = 0;
    bool m_bStretch = false;
};
