// The widget toolkit's control (LuGui::CLuCtrl): a window inside a dialog that draws a frame and a text and
// receives mouse and keyboard messages.
#pragma once

#include "LuBaseWindow.h"

namespace LuGui {

/// The kinds of control the layout file names ("Kind=Button" ...).
enum class ELuCtrlKind { Static, Button, Check, Edit, Image, List, Progress };
const char* CtrlKindName(ELuCtrlKind eKind);

class CLuCtrl : public CLuBaseWindow {
public:
    CLuCtrl() = default;
    ~CLuCtrl() override = default;

    virtual ELuCtrlKind GetKind() const { return ELuCtrlKind::Static; }

    // ---- overridable, in slot order (after the window's) ----------------------------------------

    /// Hover, effects and timers, then the frame, background and text.
    int Show() override;
    /// Dispatches mouse and keyboard messages to the handlers below.
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    /// Draws the text: one line aligned in the rectangle, or ShowMutiText when the control is multi-line.
    virtual void ShowWindowText();
    /// Draws the text over several lines, broken at newlines and at the control's width when it wraps.
    virtual void ShowMutiText();
    /// Chooses the frame of the background from the control's state.
    virtual void AdjustFrame();
    virtual void OnLButtonDown(UINT nFlags, POINT point);
    virtual void OnLButtonUp(UINT nFlags, POINT point);
    virtual void OnMouseMove(UINT nFlags, POINT point);
    virtual void OnRButtonDown(UINT nFlags, POINT point);
    virtual void OnRButtonUp(UINT nFlags, POINT point);
    virtual void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    virtual void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    /// Whether the mouse can land on the control (static texts and pictures let presses through to what lies
    /// under them, as the window system's static controls do).
    virtual bool IsHitTarget() const { return true; }
    /// Whether the control takes the keyboard focus when pressed.
    virtual bool WantsFocus() const { return false; }
    /// A left press and release inside the enabled control (buttons and check boxes send command 273).
    virtual void OnClicked() {}

    /// Whether the left button went down on this control and has not come up yet.
    bool IsPressed() const { return m_bPressed; }

protected:
    /// Per-frame work the toolkit does before drawing (effects and timers have nothing to do here).
    void ProcessEffect() {}
    void ProcessTimer() {}
    /// Sends a notification to the control's dialog (nothing when the control is not bound); wParam carries
    /// the control id and, in its high word, wCode.
    LRESULT NotifyParent(UINT uMsg, LPARAM lParam, WORD wCode = 0);

    bool m_bPressed = false;
};

} // namespace LuGui
