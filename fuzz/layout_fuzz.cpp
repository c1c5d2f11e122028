// Fuzzes the layout-file reader: any file content, then a dialog with every kind of control bound from it,
// drawn and clicked.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "lugui/GuiMgr.h"
#include "platform/LuButton.h"
#include "platform/LuCheck.h"
#include "platform/LuDialog.h"
#include "platform/LuEdit.h"
#include "platform/LuGui.h"
#include "platform/LuImage.h"
#include "platform/LuList.h"
#include "platform/LuProgress.h"
#include "platform/LuStatic.h"

namespace {
class FuzzDialog : public LuGui::CLuDialog {
public:
    FuzzDialog() : LuGui::CLuDialog(1000) {}
    void DoDataExchange(LuGui::CDataExchange* pDX) override {
        LuGui::DDX_Control(pDX, 1, m_button);
        LuGui::DDX_Control(pDX, 2, m_check);
        LuGui::DDX_Control(pDX, 3, m_edit);
        LuGui::DDX_Control(pDX, 4, m_image);
        LuGui::DDX_Control(pDX, 5, m_list);
        LuGui::DDX_Control(pDX, 6, m_progress);
        LuGui::DDX_Control(pDX, 7, m_static);
    }
    LuGui::CLuButton m_button;
    LuGui::CLuCheck m_check;
    LuGui::CLuEdit m_edit;
    LuGui::CLuImage m_image;
    LuGui::CLuList m_list;
    LuGui::CLuProgress m_progress;
    LuGui::CLuStatic m_static;
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static TempClientDir dir; // empty: the art the layout names is missing, as in a damaged client
    FuzzDialog dialog;
    auto* pMgr = new LuGui::CGuiMgr();
    pMgr->InitFromText(0, std::string_view(reinterpret_cast<const char*>(data), size), "FlashGui.ini");
    pMgr->RegisterDialog(&dialog, 0, 0);
    // NOTE: a frame and two clicks cost as much as the binding; inputs of even length get them, so the fuzzer
    // can have them for any text while the binding keeps its pace.
    if (size % 2 != 0) {
        pMgr->Release();
        return 0;
    }
    dialog.ShowWindow(SW_SHOW);
    dialog.m_list.AddString("row");
    host::BeginFrame();
    pMgr->Process();
    pMgr->Show();
    pMgr->MsgProc(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
    pMgr->MsgProc(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(10, 10));
    pMgr->Release();
    return 0;
}
