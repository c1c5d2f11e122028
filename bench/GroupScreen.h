// The group dialog of the benchmarks: 80 groups from the sample client directory's layout and pictures, every
// other one marked, the cursor over the first (a marked one), on the recording canvas.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

struct SGroupScreen {
    static constexpr int GROUPS = 80;

    TempClientDir dir;
    CFlashSimulator* pSim = nullptr;
    std::vector<RECT> buttons;
    RECT dialog{};

    /// Every group has one server whose achievement window is always open; with a tip, each group also has
    /// that tip and every other one a special mark.
    explicit SGroupScreen(const std::string& groupTip = {}) {
        for (const char* file :
             {"FlashGui.ini", "ani/Control.ani", "ani/Gui3DEffect.ani", "ini/FlashString.ini"})
            dir.Write(file, ReadSample(file));
        dir.Write("ini/ServerCfg.ini", ServerCfg(groupTip));
        host::ClearGraphicsCaches();
        host::UseCanvas(host::CanvasKind::Recording);
        pSim = FlashSimQuery();
        pSim->Create(0, 0, 0, true);
        pSim->SetSceneType(EST_LOGIN);
        pSim->OnSelectModel(2);
        std::string groups = std::to_string(GROUPS) + "#";
        std::string marks;
        for (int i = 0; i < GROUPS; ++i) {
            groups += "Group " + std::to_string(i + 1) + "|";
            marks += std::string(i % 2 == 0 ? "1" : "0") + (i + 1 < GROUPS ? "|" : "");
        }
        pSim->SetVariable("VAR_SERVER_AREA", groups.c_str());
        for (int i = 0; i < GROUPS; ++i) pSim->SetVariable("VAR_SERVER_NAME", "1#Server|");
        pSim->SetVariable("VAR_CUR_VER", "2");
        pSim->SetVariable("VAR_AREA_ACH_TIPS", marks.c_str());
        CDlgSelectGroup& dlg = pSim->Dialogs().m_dlgSelectGroup;
        dlg.RefillGroups();
        for (int i = 0; i < GROUPS; ++i) buttons.push_back(dlg.GetGroupButton(i).GetWindowRect());
        dialog = dlg.GetWindowRect();
        host::SetCursor(buttons[0].left + 5, buttons[0].top + 5);
    }
    ~SGroupScreen() {
        FlashSimDestroy();
        host::ClearGraphicsCaches();
    }
    SGroupScreen(const SGroupScreen&) = delete;
    SGroupScreen& operator=(const SGroupScreen&) = delete;

private:
    static std::string ReadSample(const std::string& relative) {
        std::ifstream in(std::filesystem::path(FLASHSIM_RES_DIR) / relative, std::ios::binary);
        std::ostringstream out;
        out << in.rdbuf();
        return out.str();
    }

    static std::string ServerCfg(const std::string& groupTip) {
        std::string text = "[Header]\nGroupAmount=" + std::to_string(GROUPS) + "\n";
        for (int g = 1; g <= GROUPS; ++g) {
            text += "[Group" + std::to_string(g) +
                    "]\nServerAmount=1\nServer1=1\nAchTime1=0-2147483647\nAchTips1=1\n";
            if (!groupTip.empty())
                text += "GroupTips=" + groupTip + "\nSpecialMark1=" + (g % 2 == 1 ? "1" : "0") + "\n";
        }
        return text;
    }
};
