// Inspection of the live dialog manager's windows for the host.
#include "hostlibs/HostGui.h"

#include "GuiMgr.h"
#include "LuCheck.h"
#include "LuDialog.h"
#include "LuEdit.h"
#include "LuGui_internal.h"
#include "LuList.h"
#include "LuProgress.h"
#include "hostlibs/HostEnv.h"

namespace host {
namespace {

void FillCommon(const LuGui::CLuBaseWindow& wnd, WindowState& out) {
    out.visible = wnd.IsWindowVisible() != FALSE;
    out.enabled = wnd.IsWindowEnabled() != FALSE;
    out.rect = wnd.GetWindowRect();
    out.text = wnd.GetWindowTextA();
    out.bg = wnd.GetBackGroundAni();
    out.tip = wnd.GetTipText();
    out.frame = wnd.GetCurFrame();
}

LuGui::CLuDialog* FindDialog(UINT nDialog) {
    LuGui::CGuiMgr* pMgr = LuGui::CGuiMgr::Current();
    return pMgr ? pMgr->FindDialog(nDialog) : nullptr;
}

} // namespace

std::string WindowState::Describe() const {
    std::string line = "visible=" + std::to_string(visible ? 1 : 0) +
                       " enabled=" + std::to_string(enabled ? 1 : 0) + " text=\"" +
                       EscapeTranscriptText(text) + "\" bg=\"" + EscapeTranscriptText(bg) +
                       "\" checked=" + (checked ? "1" : "0");
    if (kind == "Edit")
        line += " sel=" + std::to_string(selStart) + "," + std::to_string(selEnd) +
                " focus=" + (focus ? "1" : "0");
    if (kind == "List") line += " rows=" + std::to_string(rows) + " cursel=" + std::to_string(curSel);
    if (kind == "Progress") line += " pos=" + std::to_string(pos);
    if (!tip.empty()) line += " tip=\"" + EscapeTranscriptText(tip) + "\"";
    // NOTE: the screen rectangle comes last so that placements can be checked without touching the fields
    // before it; the width and height are summed in 64 bits since a host may place a window anywhere.
    line += " x=" + std::to_string(rect.left) + " y=" + std::to_string(rect.top) +
            " w=" + std::to_string(static_cast<long long>(rect.right) - rect.left) +
            " h=" + std::to_string(static_cast<long long>(rect.bottom) - rect.top);
    return line;
}

bool DescribeDialog(UINT nDialog, WindowState& out) {
    const LuGui::CLuDialog* pDialog = FindDialog(nDialog);
    if (!pDialog) return false;
    out = WindowState{};
    out.kind = "Dialog";
    FillCommon(*pDialog, out);
    out.shown = out.visible;
    return true;
}

bool DescribeControl(UINT nDialog, UINT nControl, WindowState& out) {
    const LuGui::CLuDialog* pDialog = FindDialog(nDialog);
    const LuGui::CLuCtrl* pCtrl = pDialog ? pDialog->GetControl(nControl) : nullptr;
    if (!pCtrl) return false;
    out = WindowState{};
    out.kind = LuGui::CtrlKindName(pCtrl->GetKind());
    FillCommon(*pCtrl, out);
    out.shown = out.visible && pDialog->IsWindowVisible() && !pCtrl->IsHideState();
    if (const auto* pCheck = dynamic_cast<const LuGui::CLuCheck*>(pCtrl))
        out.checked = pCheck->GetCheckValue();
    if (const auto* pEdit = dynamic_cast<const LuGui::CLuEdit*>(pCtrl)) {
        out.focus = pEdit->IsFocus() != FALSE;
        out.selStart = LOWORD(pEdit->GetSel());
        out.selEnd = HIWORD(pEdit->GetSel());
    }
    if (const auto* pList = dynamic_cast<const LuGui::CLuList*>(pCtrl)) {
        out.rows = pList->GetCount();
        out.curSel = pList->GetCurSel();
    }
    if (const auto* pProgress = dynamic_cast<const LuGui::CLuProgress*>(pCtrl)) out.pos = pProgress->GetPos();
    return true;
}

std::vector<UINT> ListDialogs() {
    std::vector<UINT> ids;
    const LuGui::CGuiMgr* pMgr = LuGui::CGuiMgr::Current();
    if (!pMgr) return ids;
    const std::vector<LuGui::CLuDialog*>& order = pMgr->DrawingOrder();
    for (auto it = order.rbegin(); it != order.rend(); ++it) ids.push_back((*it)->GetTemplateId());
    return ids;
}

std::vector<UINT> ListControls(UINT nDialog) {
    std::vector<UINT> ids;
    if (const LuGui::CLuDialog* pDialog = FindDialog(nDialog))
        for (const LuGui::CLuCtrl* pCtrl : LuGui::CLuToolkit::Controls(*pDialog))
            ids.push_back(pCtrl->GetDlgCtrlID());
    return ids;
}

bool WindowAt(int x, int y, UINT& nDialog, UINT& nControl) {
    const LuGui::CGuiMgr* pMgr = LuGui::CGuiMgr::Current();
    const POINT pt{x, y};
    const LuGui::CLuDialog* pDialog = pMgr ? pMgr->DialogUnder(pt) : nullptr;
    if (!pDialog) return false;
    const LuGui::CLuCtrl* pCtrl = LuGui::CLuToolkit::ControlAt(*pDialog, pt, true);
    nDialog = pDialog->GetTemplateId();
    nControl = pCtrl ? pCtrl->GetDlgCtrlID() : 0;
    return true;
}

bool SendDialogMessage(UINT nDialog, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    LuGui::CLuDialog* pDialog = FindDialog(nDialog);
    if (!pDialog) return false;
    pDialog->WindowProc(uMsg, wParam, lParam);
    return true;
}

} // namespace host
