// Drives the international client with random host data (role lists, "Mine" lists, server ids, dirty
// rectangles, the page's frame numbers), zones of 0 to 10 000 servers, presses on the main login, the picker,
// the role list and the registration page, window messages 0-1023 and input-method strings of any bytes: no
// crash, and every command the host receives is one it can act on (servers counted from 1, groups from 0,
// the key-input switch "0", "1" or "117").
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "ScreenSteps.h"
#include "hostlibs/HostBrowser.h"
#include "hostlibs/HostEnv.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr UINT MSG_IME_START = 269;
constexpr UINT MSG_IME_END = 270;
constexpr UINT MSG_IME_COMPOSITION = 271;
constexpr LPARAM IME_RESULT_STRING = 0x800;
constexpr UINT MESSAGES = 1024;
constexpr int MAX_SERVERS = 10000;
constexpr int MAX_ZONES = 3;

// Host data the screens read, each set from the step's bytes.
constexpr std::array HOST_KEYS = {"en.roles",         "en.mine",       "en.serverids.1",   "en.serverids.2",
                                  "en.account",       "browser.dirty", "roletext.1010113", "browser.noframe",
                                  "browser.loadfail", "newservers",    "en.nolist",        "pro.10"};
// The picker's presses: "Mine", zones, rows, pages, "More", start, close, the character slots.
constexpr std::array<UINT, 24> PICKER_IDS = {1008, 1009, 1010, 1011, 1223, 1224, 1225, 1226,
                                             1227, 1228, 1229, 1230, 1231, 1232, 1293, 1178,
                                             1179, 1017, 1090, 1300, 1301, 1302, 1303, 1134};

// A whole decimal number at least nMin.
bool IsNumberFrom(const std::string& text, long nMin) {
    if (text.empty() || text.size() > 10) return false;
    char* end = nullptr;
    const long n = std::strtol(text.c_str(), &end, 10);
    return *end == '\0' && n >= nMin;
}

CFlashSimulator* g_pSim = nullptr; ///< set before the first command arrives

void OnCommand(const char* szCommand, const char* szArgument) {
    const std::string command(szCommand);
    const std::string argument(szArgument);
    // NOTE: a server number is counted from 1; 0 tells the host that no server is chosen yet (a role list the
    // host opened before any choice, then started).
    if (command == "CMD_SELECTSERVER")
        fuzzscreen::Trap(
            !IsNumberFrom(argument, argument == "0" && g_pSim && g_pSim->GetCurServer() == -1 ? 0 : 1));
    if (command == "CMD_SELECTGROUP") fuzzscreen::Trap(!IsNumberFrom(argument, 0));
    if (command == "CLEAR_KEY_INPUT")
        fuzzscreen::Trap(argument != "0" && argument != "1" && argument != "117");
}

CFlashSimulator* Simulator() {
    static CFlashSimulator* sim = [] {
        CFlashSimulator* s = fuzzscreen::CreateEnglishSimulator(&OnCommand, EST_LOGIN);
        g_pSim = s;
        s->SetVariable("VAR_MAINPATH", "1");
        // The main login opens inactive; its links answer once it has been shown for a while.
        s->Process();
        host::AdvanceClock(10000);
        s->Process();
        return s;
    }();
    return sim;
}

void Send(CFlashSimulator& sim, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    MSG msg{nullptr, uMsg, wParam, lParam, 0, POINT{0, 0}};
    sim.PreTranslateMessage(&msg);
    sim.WindowProc(nullptr, uMsg, wParam, lParam);
}

// Zones with server counts from the bytes (two a zone), loads and states from the arguments.
void SetServers(CFlashSimulator& sim, std::uint8_t arg, std::string_view bytes) {
    const int nZones = arg % (MAX_ZONES + 1);
    std::string areas = std::to_string(nZones) + "#";
    for (int z = 0; z < nZones; ++z) areas += "Z" + std::to_string(z) + "|";
    sim.SetVariable("VAR_SERVER_AREA", areas.c_str());
    for (int z = 0; z < nZones; ++z) {
        const std::size_t at = static_cast<std::size_t>(z) * 2;
        const int nServers =
            at + 1 < bytes.size()
                ? (static_cast<std::uint8_t>(bytes[at]) | (static_cast<std::uint8_t>(bytes[at + 1]) << 8)) %
                      (MAX_SERVERS + 1)
                : z;
        std::string names = std::to_string(nServers) + "#";
        std::string states = std::to_string(z + 1) + "#";
        for (int s = 0; s < nServers; ++s) {
            names += "S" + std::to_string(s) + "|";
            if (s < 64)
                states += std::to_string(s + 1) + "_" + std::to_string((s * arg) % 1200) + "_1000_" +
                          std::to_string(s % 3 - 1) + "|";
        }
        sim.SetVariable("VAR_SERVER_NAME", names.c_str());
        sim.SetVariable("VAR_SERVERSTATUS", states.c_str());
    }
}
} // namespace

// Input: steps of (operation byte, argument byte, length byte, that many bytes).
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CFlashSimulator* sim = Simulator();
    CDialogSet& dialogs = sim->Dialogs();
    fuzzscreen::ForEachStep(data, size, [&](const fuzzscreen::SStep& step) {
        const std::uint8_t arg = step.arg;
        const std::string bytes(step.bytes);
        const std::size_t length = bytes.size();
        switch (step.op % 10) {
        case 0:
            host::SetData(HOST_KEYS[arg % HOST_KEYS.size()], bytes);
            break;
        case 1:
            SetServers(*sim, arg, step.bytes);
            break;
        case 2:
            fuzzscreen::Click(*sim, dialogs.m_dlgNewFlashLogin,
                              arg & 1 ? CDlgNewFlashLogin::IDC_SELECT_LINK
                                      : CDlgNewFlashLogin::IDC_CREATE_LINK);
            break;
        case 3:
            fuzzscreen::Click(*sim, dialogs.m_dlgFlashLoginEn, PICKER_IDS[arg % PICKER_IDS.size()]);
            break;
        case 4:
            fuzzscreen::Click(*sim, dialogs.m_dlgCharacterEn,
                              arg & 1 ? CDlgFlashCharacterEn::IDC_START : CDlgFlashCharacterEn::IDC_CLOSE);
            break;
        case 5: {
            const UINT uMsg = (arg | (length << 8)) % MESSAGES;
            const WPARAM wParam = length > 0 ? static_cast<std::uint8_t>(bytes[0]) : arg;
            const LPARAM lParam = length > 2 ? MAKELPARAM(static_cast<std::uint8_t>(bytes[1]) * 4,
                                                          static_cast<std::uint8_t>(bytes[2]) * 3)
                                             : 0;
            Send(*sim, uMsg, wParam, lParam);
            break;
        }
        case 6:
            host::SetData("ime.result", bytes);
            Send(*sim, MSG_IME_START, 0, 0);
            Send(*sim, MSG_IME_COMPOSITION, 0, IME_RESULT_STRING);
            Send(*sim, MSG_IME_END, 0, 0);
            break;
        case 7:
            if (arg & 1)
                sim->SetVariable("SetRegisterOpen", arg & 2 ? "1" : "0");
            else if (arg & 2)
                sim->ShowSwitchLanguage();
            else
                fuzzscreen::Click(*sim, dialogs.m_dlgWebRegister, CDlgWebRegisterEn::IDC_CLOSE);
            break;
        case 8:
            sim->ShowServerRoleList(arg % 4 - 1, static_cast<int>(length) - 1);
            break;
        default:
            host::AdvanceClock(static_cast<DWORD>(arg) * 50);
            sim->Process();
            sim->Show();
            break;
        }
    });
    host::TakeBrowserCalls();
    return 0;
}
