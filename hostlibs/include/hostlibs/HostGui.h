// The host side of the widget toolkit: what a dialog or control of the live dialog manager looks like now.
//
// Used by the reference host and the tests (the `show` and `click` steps), never by the system.
#pragma once

#include <string>
#include <vector>

#include "BaseLib.h"

namespace host {

/// The state of one window, as the toolkit keeps it.
struct WindowState {
    std::string kind;     ///< "Dialog", "Button", "Check", "Edit", "Image", "List", "Progress", "Static"
    bool visible = false; ///< the window's own flag (a control of a hidden dialog can be visible)
    bool shown = false;   ///< visible, and its dialog too
    bool enabled = false;
    RECT rect{0, 0, 0, 0}; ///< screen rectangle
    std::string text;
    std::string bg;  ///< background animation title
    std::string tip; ///< the tool tip shown while the cursor rests on the window
    bool checked = false;
    int frame = 0;
    bool focus = false;           ///< edits: has the keyboard focus
    int selStart = 0, selEnd = 0; ///< edits: selection in bytes
    int rows = 0, curSel = -1;    ///< lists
    int pos = 0;                  ///< progress bars

    /// The fields of the `show` step: `visible=1 enabled=1 text="..." bg="..." checked=0`, then what the
    /// kind adds (`sel=S,E focus=F`, `rows=N cursel=I`, `pos=P`), `tip="..."` when the window has a tip,
    /// and last the screen rectangle
    /// `x=X y=Y w=W h=H`.
    std::string Describe() const;
};

/// Describes dialog nDialog (template id) of the live dialog manager; false when there is none.
bool DescribeDialog(UINT nDialog, WindowState& out);
/// Describes control nControl of dialog nDialog; false when either does not exist.
bool DescribeControl(UINT nDialog, UINT nControl, WindowState& out);
/// Delivers a window message to dialog nDialog's WindowProc at once, as a message posted to that dialog
/// reaches it (the keyboard picture's download posts 12135); false when there is no such dialog.
bool SendDialogMessage(UINT nDialog, UINT uMsg, WPARAM wParam, LPARAM lParam);

/// The template ids of the registered dialogs, top-most first (hidden ones included; DescribeDialog tells).
std::vector<UINT> ListDialogs();
/// The ids of the controls bound to dialog nDialog, in binding order; empty when there is no such dialog.
std::vector<UINT> ListControls(UINT nDialog);
/// The dialog and control a press at a screen point would reach (the control 0 when the dialog itself);
/// false when no dialog takes it.
bool WindowAt(int x, int y, UINT& nDialog, UINT& nControl);

/// Blocks until a message posted to a window (CLuBaseWindow::PostMessageA, from any thread) waits for the
/// dialog manager's next Process, or until the time is up; true when one waits. A host's message loop.
bool WaitForPostedMessage(DWORD dwMilliseconds);

} // namespace host
