// Narrowing the canvas's clip to a window and telling the canvas whose drawing follows.
#include "WindowClip.h"

#include "LuBaseWindow.h"
#include "LuDialog.h"
#include "graphics/GraphicsState.h"

namespace LuGui {
namespace {
gfx::WindowTag TagOf(const CLuBaseWindow& window) {
    const CLuDialog* pDialog = window.GetParentDialog();
    gfx::WindowTag tag;
    tag.dialog = pDialog ? pDialog->GetDlgCtrlID() : window.GetDlgCtrlID();
    tag.control = pDialog ? window.GetDlgCtrlID() : 0;
    tag.rect = gfx::Rect::FromRECT(gfx::ClampRECT(window.GetDrawRect()));
    return tag;
}
} // namespace

WindowClip::WindowClip(const CLuBaseWindow& window)
    : m_canvas(gfx::GraphicsState::Instance().Canvas()), m_previous(m_canvas.Clip()) {
    const gfx::WindowTag tag = TagOf(window);
    m_canvas.SetClip(m_previous.Intersect(tag.rect));
    m_canvas.BeginWindow(tag);
}

WindowClip::~WindowClip() {
    m_canvas.EndWindow();
    m_canvas.SetClip(m_previous);
}

} // namespace LuGui
