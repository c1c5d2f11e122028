// The widget toolkit's own bookkeeping between its manager, dialogs and controls, which the system never
// sees.
//
// The public headers (src/platform) befriend CLuToolkit so that these operations reach private state without
// being part of the contract: the toolkit can change them freely.
#pragma once

#include <vector>

#include "GuiMgr.h"
#include "LuCtrl.h"
#include "LuDialog.h"

namespace LuGui {

class CLuToolkit {
public:
    // ---- windows --------------------------------------------------------------------------------

    /// Attaches a window to its manager, its dialog, its id and its layout record, and applies the record.
    static void Attach(CLuBaseWindow& wnd, ILuGuiMgr* pMgr, CLuDialog* pParent, UINT nId,
                       const CLuLayoutRecord* pLayout);
    /// Points a window at its record of another layout file (a language change) without applying it again:
    /// the window keeps its place and state; a text it still has from the old record follows the new one.
    static void Relink(CLuBaseWindow& wnd, const CLuLayoutRecord* pLayout);
    /// The manager that created the window, null before creation.
    /// NOTE: CreateNewGuiMgr makes every manager, so the interface a window holds is always a CGuiMgr.
    static CGuiMgr* Manager(const CLuBaseWindow& wnd) { return static_cast<CGuiMgr*>(wnd.GetGuiMgr()); }

    // ---- dialogs --------------------------------------------------------------------------------

    /// Adds a bound control (once), in binding order, which is drawing order.
    static void AddControl(CLuDialog& dlg, CLuCtrl& ctrl);
    /// Forgets the bound controls and the message map before the dialog is created (again).
    static void ClearForCreation(CLuDialog& dlg);
    static const std::vector<CLuCtrl*>& Controls(const CLuDialog& dlg) { return dlg.m_vecCtrls; }
    /// The top-most control at a screen point (bAnyControl: also those that let presses through, for tips).
    static CLuCtrl* ControlAt(const CLuDialog& dlg, POINT ptScreen, bool bAnyControl) {
        return dlg.ControlAt(ptScreen, bAnyControl);
    }
    /// The layout's "OpenInactive" milliseconds, 0 when the dialog opens active.
    static DWORD OpenInactiveMs(const CLuDialog& dlg) { return dlg.m_dwOpenInactiveMs; }
    /// Ends the inactive state of a dialog that opened inactive and sends it LU_MSG_ACTIVATE.
    static void Activate(CLuDialog& dlg);
};

} // namespace LuGui
