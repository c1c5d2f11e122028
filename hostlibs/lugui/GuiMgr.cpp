// The dialog manager (minimal): creates registered dialogs, runs and draws the visible ones, records its
// calls.
#include <string>
#include <vector>

#include "LuDialog.h"
#include "LuGui.h"
#include "hostlibs/HostEnv.h"

namespace LuGui {
namespace {
class CGuiMgr final : public ILuGuiMgr {
public:
    bool Init(HINSTANCE, std::uint64_t, std::uint32_t, const char* szLayoutFile) override {
        host::Journal("gui.init", {{"file", szLayoutFile ? szLayoutFile : ""}});
        return true;
    }
    void Release() override {
        host::Journal("gui.release");
        delete this;
    }
    void SetSoundCallBack(PFN_SoundCallBack pfn) override {
        m_pfnSound = pfn;
        host::Journal("gui.soundcb");
    }
    bool RegisterDialog(CLuDialog* pDialog, int, int) override {
        if (!pDialog) return false;
        host::Journal("gui.register", {{"id", std::to_string(pDialog->GetTemplateId())}});
        pDialog->PreSetParam();
        pDialog->PreInitData();
        pDialog->DoDataExchange(nullptr);
        pDialog->MessageMap();
        m_vecDialogs.push_back(pDialog);
        return true;
    }
    void Process() override {}
    void Show() override {
        for (CLuDialog* dlg : m_vecDialogs)
            if (dlg->IsWindowVisible()) dlg->Show();
    }
    void Reset(int) override {
        host::Journal("gui.reset");
        for (CLuDialog* dlg : m_vecDialogs) dlg->Reset();
    }
    LRESULT MsgProc(HWND, UINT, WPARAM, LPARAM) override { return 0; }
    void RegisterRangedString(std::int64_t nKey, const char* szText) override {
        host::Journal("gui.ranged", {{"key", std::to_string(nKey)}, {"text", szText ? szText : ""}});
    }
    void ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) override {
        host::Journal("gui.call", {{"msg", std::to_string(uMsg)},
                                   {"wparam", std::to_string(wParam)},
                                   {"lparam", std::to_string(lParam)}});
    }

private:
    ~CGuiMgr() = default;
    PFN_SoundCallBack m_pfnSound = nullptr;
    std::vector<CLuDialog*> m_vecDialogs;
};

class CGuiHelper final : public IGuiHelper {
public:
    void Start() override { host::Journal("gui.helper"); }
};
} // namespace

ILuGuiMgr* CreateNewGuiMgr() {
    return new CGuiMgr();
}

IGuiHelper* GetGuiHelper() {
    static CGuiHelper helper;
    return host::GetDataInt("gui.nohelper", 0) ? nullptr : &helper;
}

} // namespace LuGui
