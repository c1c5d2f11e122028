// Drives the English creation screen's name exchange with random typed and suggested names (any bytes, any
// length), host check results, register requests, profession and sex presses, openings and closings: no
// "SetName" of 16 bytes or more, every registration whole and in order after "10200", events 411 and 412 at
// most once in the process.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "hostlibs/HostEnv.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr std::size_t NAME_REFUSED_BYTES = 16;
constexpr const char* REGISTRATION[] = {"RoleProfession", "ModelFace", "SetLook", "RoleRigister"};
constexpr std::size_t REGISTRATION_STEPS = sizeof REGISTRATION / sizeof REGISTRATION[0];

int g_n411 = 0;
int g_n412 = 0;
bool g_bAfter10200 = false;
std::size_t g_nRegistrationStep = 0; ///< 0: none under way; else the index of the next command expected

void Trap(bool bFault) {
    if (bFault) __builtin_trap();
}

void OnCommand(const char* szCommand, const char* szArgument) {
    const std::string command(szCommand);
    const std::string argument(szArgument);
    if (g_nRegistrationStep > 0) {
        // A registration runs whole: nothing comes between its four commands.
        Trap(command != REGISTRATION[g_nRegistrationStep]);
        g_nRegistrationStep = (g_nRegistrationStep + 1) % REGISTRATION_STEPS;
        return;
    }
    if (command == "SetName") Trap(argument.size() >= NAME_REFUSED_BYTES);
    if (command == "BURYING_POINT" && argument == "411") Trap(++g_n411 > 1);
    if (command == "BURYING_POINT" && argument == "412") Trap(++g_n412 > 1);
    if (command == REGISTRATION[0]) {
        Trap(!g_bAfter10200);
        g_nRegistrationStep = 1;
    }
    g_bAfter10200 = command == "SendNewwerAction" && argument == "10200";
}

CFlashSimulator* Simulator() {
    static CFlashSimulator* sim = [] {
        host::SetClientDir(FLASHSIM_RES_DIR);
        host::SetData("language", "English");
        CFlashSimulator* s = FlashSimQuery();
        s->Create(0, 0, 0, true);
        s->SetCallBack(&OnCommand);
        s->SetSceneType(EST_ROLE_CREATE);
        s->SetVariable("SetMainPath", "1024-768-1");
        return s;
    }();
    return sim;
}

void Click(CFlashSimulator& sim, LuGui::CLuDialog& dialog, UINT nId) {
    const LuGui::CLuBaseWindow* pCtrl = dialog.GetControl(nId);
    if (!pCtrl || !dialog.IsWindowVisible() || !pCtrl->IsWindowVisible()) return;
    const RECT rc = pCtrl->GetWindowRect();
    // NOTE: a main window of a huge stored size may put a dialog far out; the centre is taken in 64 bits.
    const auto x = static_cast<int>((std::int64_t{rc.left} + rc.right) / 2);
    const auto y = static_cast<int>((std::int64_t{rc.top} + rc.bottom) / 2);
    const LPARAM point = MAKELPARAM(x, y);
    host::SetCursor(x, y);
    sim.WindowProc(nullptr, WM_LBUTTONDOWN, 0, point);
    sim.WindowProc(nullptr, WM_LBUTTONUP, 0, point);
}

void Type(CFlashSimulator& sim, const std::uint8_t* data, std::size_t n) {
    for (std::size_t i = 0; i + 1 < n; i += 2) {
        const WPARAM unit = static_cast<WPARAM>(data[i] | (data[i + 1] << 8));
        MSG msg{nullptr, WM_CHAR, unit, 0, 0, {}};
        if (!sim.PreTranslateMessage(&msg)) sim.WindowProc(nullptr, WM_CHAR, unit, 0);
    }
}

/// Bytes for a name: the step's own, or now and then far more than any box takes.
std::string NameBytes(const std::uint8_t* data, std::size_t n, bool bHuge) {
    std::string name(reinterpret_cast<const char*>(data), n);
    if (bHuge) name.append(1 << 20, '\xE5');
    return name;
}
} // namespace

// Input: steps of (operation byte, argument byte, length byte, that many bytes).
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CFlashSimulator* sim = Simulator();
    CDialogSet& dialogs = sim->Dialogs();
    std::size_t pos = 0;
    while (pos + 3 <= size) {
        const std::uint8_t op = data[pos];
        const std::uint8_t arg = data[pos + 1];
        const std::size_t length = std::min<std::size_t>(data[pos + 2], size - pos - 3);
        const std::uint8_t* bytes = data + pos + 3;
        pos += 3 + length;
        switch (op % 12) {
        case 0:
            Click(*sim, dialogs.m_dlgProIntro, CDlgFlashProIntro::IDC_NAME);
            Type(*sim, bytes, length);
            break;
        case 1:
            Click(*sim, dialogs.m_dlgProIntro, CDlgFlashProIntro::IDC_CREATE);
            break;
        case 2:
            sim->SetNameCheck(arg & 1, arg & 2, arg & 4);
            break;
        case 3:
            sim->RegisterRole();
            break;
        case 4: {
            const std::string name = NameBytes(bytes, length, arg == 0xFF);
            const auto nLength = static_cast<std::int32_t>(arg & 1 ? name.size() : arg * 1000);
            sim->SetRandomName(name.c_str(), arg & 2 ? -1 : nLength);
            break;
        }
        case 5:
            Click(*sim, dialogs.m_dlgBaseInfo, CDlgFlashBaseInfo::PROFESSION_IDS[arg % 8]);
            break;
        case 6:
            Click(*sim, dialogs.m_dlgProIntro,
                  arg & 1 ? CDlgFlashProIntro::IDC_FEMALE : CDlgFlashProIntro::IDC_MALE);
            break;
        case 7:
            Click(*sim, dialogs.m_dlgSceneSelect,
                  arg & 1 ? CDlgFlashSceneSelect::IDC_HIGH_LEVEL : CDlgFlashSceneSelect::IDC_NORMAL);
            break;
        case 8:
            sim->SetVariable(arg & 1 ? "ShowCreateWnd" : "SetMainPath",
                             NameBytes(bytes, length, false).c_str());
            break;
        case 9:
            sim->WindowProc(nullptr, WM_CHAR, 8, 0);
            break;
        case 10:
            Click(*sim, dialogs.m_dlgConfirm, CDlgFlashConfirm::IDC_OK);
            break;
        default:
            sim->SetCreateRoleParam(arg & 1, arg & 2, arg & 4, arg & 8, 0, arg & 16, arg & 32, arg);
            sim->Process();
            sim->Show();
            break;
        }
    }
    return 0;
}
