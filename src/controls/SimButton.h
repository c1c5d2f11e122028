// A push button with a sub-ground picture under its text and named effects under and over it.
#pragma once

#include "platform/LuButton.h"
#include "platform/ZrString.h"

class CSimButton : public LuGui::CLuButton {
public:
    CSimButton() = default;
    ~CSimButton() override;

    /// Reads "SubGround", "SubGroundOffsetX" and "SubGroundOffsetY" from the layout record.
    BOOL PreInitData() override;
    /// Removes the named effect, or every effect of the object when szName is null or empty.
    virtual void DeleteBgEffect(const char* szName);
    virtual void DeleteFgEffect(const char* szName);
    /// Whether the effect is playing on the button (0 for an empty name, which is also reported).
    virtual BOOL TestFgEffect(const char* szName);
    virtual BOOL TestBgEffect(const char* szName);
    /// Back to front: background effect, frame, sub-ground, foreground effect, text.
    int Show() override;
    /// Frame 0 of the sub-ground title of "ani/Control.ani" at the sub-ground offset.
    virtual void ShowSubGround();

    /// Adds a named effect (created with the button's rectangle on first use); bLoop plays it for ever.
    void AddBgEffect(const char* szName, bool bLoop);
    void AddFgEffect(const char* szName, bool bLoop);
    void SetBgEffectOffset(int x, int y);
    void SetFgEffectOffset(int x, int y);
    /// A null title keeps the current one.
    void SetSubGround(const char* szTitle);
    const char* GetSubGround() const { return m_strSubGround.c_str(); }

private:
    /// The effect object in pSlot, created with the button's rectangle when there is none.
    CGui3DEffect* EnsureEffect(bool bForeground);
    void AddEffect(bool bForeground, const char* szName, bool bLoop);
    BOOL TestEffect(const CGui3DEffect* pEffect, const char* szName, int nLine);
    static void DeleteEffect(CGui3DEffect* pEffect, const char* szName);

    CZrString m_strSubGround;
    int m_nSubGroundOffsetX = 0;
    int m_nSubGroundOffsetY = 0;
    int m_nFgEffectOffsetX = 0;
    int m_nFgEffectOffsetY = 0;
    int m_nBgEffectOffsetX = 0;
    int m_nBgEffectOffsetY = 0;
};
