// Drives the English creation screen's name exchange with random typed and suggested names (any bytes, any
// length), host check results, register requests, profession and sex presses, openings and closings: no
// "SetName" of 16 bytes or more, every registration whole and in order after "10200", events 411 and 412 at
// most once in the process.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ScreenSteps.h"
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

void OnCommand(const char* szCommand, const char* szArgument) {
    const std::string command(szCommand);
    const std::string argument(szArgument);
    if (g_nRegistrationStep > 0) {
        // A registration runs whole: nothing comes between its four commands.
        fuzzscreen::Trap(command != REGISTRATION[g_nRegistrationStep]);
        g_nRegistrationStep = (g_nRegistrationStep + 1) % REGISTRATION_STEPS;
        return;
    }
    if (command == "SetName") fuzzscreen::Trap(argument.size() >= NAME_REFUSED_BYTES);
    if (command == "BURYING_POINT" && argument == "411") fuzzscreen::Trap(++g_n411 > 1);
    if (command == "BURYING_POINT" && argument == "412") fuzzscreen::Trap(++g_n412 > 1);
    if (command == REGISTRATION[0]) {
        fuzzscreen::Trap(!g_bAfter10200);
        g_nRegistrationStep = 1;
    }
    g_bAfter10200 = command == "SendNewwerAction" && argument == "10200";
}

CFlashSimulator* Simulator() {
    static CFlashSimulator* sim = [] {
        CFlashSimulator* s = fuzzscreen::CreateEnglishSimulator(&OnCommand, EST_ROLE_CREATE);
        s->SetVariable("SetMainPath", "1024-768-1");
        return s;
    }();
    return sim;
}

void Type(CFlashSimulator& sim, std::string_view bytes) {
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto unit = static_cast<WPARAM>(static_cast<std::uint8_t>(bytes[i]) |
                                              (static_cast<std::uint8_t>(bytes[i + 1]) << 8));
        MSG msg{nullptr, WM_CHAR, unit, 0, 0, {}};
        if (!sim.PreTranslateMessage(&msg)) sim.WindowProc(nullptr, WM_CHAR, unit, 0);
    }
}

/// Bytes for a name: the step's own, or now and then far more than any box takes.
std::string NameBytes(std::string_view bytes, bool bHuge) {
    std::string name(bytes);
    if (bHuge) name.append(1 << 20, '\xE5');
    return name;
}
} // namespace

// Input: steps of (operation byte, argument byte, length byte, that many bytes).
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CFlashSimulator* sim = Simulator();
    CDialogSet& dialogs = sim->Dialogs();
    fuzzscreen::ForEachStep(data, size, [&](const fuzzscreen::SStep& step) {
        const std::uint8_t arg = step.arg;
        switch (step.op % 12) {
        case 0:
            fuzzscreen::Click(*sim, dialogs.m_dlgProIntro, CDlgFlashProIntro::IDC_NAME);
            Type(*sim, step.bytes);
            break;
        case 1:
            fuzzscreen::Click(*sim, dialogs.m_dlgProIntro, CDlgFlashProIntro::IDC_CREATE);
            break;
        case 2:
            sim->SetNameCheck(arg & 1, arg & 2, arg & 4);
            break;
        case 3:
            sim->RegisterRole();
            break;
        case 4: {
            const std::string name = NameBytes(step.bytes, arg == 0xFF);
            const auto nLength = static_cast<std::int32_t>(arg & 1 ? name.size() : arg * 1000);
            sim->SetRandomName(name.c_str(), arg & 2 ? -1 : nLength);
            break;
        }
        case 5:
            fuzzscreen::Click(*sim, dialogs.m_dlgBaseInfo, CDlgFlashBaseInfo::PROFESSION_IDS[arg % 8]);
            break;
        case 6:
            fuzzscreen::Click(*sim, dialogs.m_dlgProIntro,
                              arg & 1 ? CDlgFlashProIntro::IDC_FEMALE : CDlgFlashProIntro::IDC_MALE);
            break;
        case 7:
            fuzzscreen::Click(*sim, dialogs.m_dlgSceneSelect,
                              arg & 1 ? CDlgFlashSceneSelect::IDC_HIGH_LEVEL
                                      : CDlgFlashSceneSelect::IDC_NORMAL);
            break;
        case 8:
            sim->SetVariable(arg & 1 ? "ShowCreateWnd" : "SetMainPath", NameBytes(step.bytes, false).c_str());
            break;
        case 9:
            sim->WindowProc(nullptr, WM_CHAR, 8, 0);
            break;
        case 10:
            fuzzscreen::Click(*sim, dialogs.m_dlgConfirm, CDlgFlashConfirm::IDC_OK);
            break;
        default:
            sim->SetCreateRoleParam(arg & 1, arg & 2, arg & 4, arg & 8, 0, arg & 16, arg & 32, arg);
            sim->Process();
            sim->Show();
            break;
        }
    });
    return 0;
}
