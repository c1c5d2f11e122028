// A static text whose multi-line texts are laid out by the auto text, with tags, again only when they change.
#pragma once

#include "controls/SimAutoText.h"
#include "platform/LuStatic.h"
#include "platform/ZrString.h"

class CSimStatic : public LuGui::CLuStatic {
public:
    CSimStatic() = default;
    ~CSimStatic() override;

    /// Default font size when the layout gives none; remembers where the control sits in its dialog.
    void InitData() override;
    /// One line through the toolkit, several through the auto text, which keeps its layout until the text,
    /// the width or a font setting changes.
    void ShowWindowText() override;

    const char* GetWindowTextA() const { return LuGui::CLuStatic::GetWindowTextA(); }
    /// Copies at most nSize - 1 bytes of the text into szBuf (terminated; nothing when either is absent);
    /// returns the text.
    const char* GetWindowText(char* szBuf, int nSize) const;
    void GetWindowText(CZrString& strText) const;

    /// Moves the control to its original place plus (dx, dy), keeping its size.
    void MoveByOffset(int dx, int dy);
    /// The auto text's string-resource mode.
    void SetStrResMode(unsigned int nMode);

    POINT GetOrigin() const { return m_ptOrigin; }
    const CSimAutoText& GetAutoText() const { return m_autoText; }

private:
    CSimAutoText m_autoText;
    POINT m_ptOrigin{0, 0};
};
