// Drives SetVariable and GetVariable with names from the whole vocabulary and arbitrary values in both
// scenes, with frames and window messages between them as a host sends them.
#include <cstddef>
#include <cstdint>
#include <string>

#include "TempClientDir.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr const char* NAMES[] = {"VAR_MAINPATH",
                                 "VAR_QUICKLOGIN",
                                 "VAR_FOCUSTOFLASH",
                                 "VAR_WEIXIN_WARD_SAFE_TOKEN",
                                 "VAR_PLAY_LOGIN_WARD_SAFE_TOKEN",
                                 "VAR_AREA_ACH_TIPS",
                                 "VAR_CUR_VER",
                                 "VAR_PLAYLOGIN",
                                 "VAR_SERVER_AREA",
                                 "VAR_SEVER_ACH_TIPS",
                                 "VAR_SERVER_NAME",
                                 "VAR_LOGINUSER",
                                 "VAR_LOGINPASS",
                                 "VAR_LOGPROTECT",
                                 "VAR_LOGINHELMSAFE",
                                 "VAR_LOGINHELMSAFE_WEIXIN",
                                 "VAR_LOGINHELMSAFE_WARD",
                                 "VAR_STARTTOFLASH",
                                 "VAR_STARTTOFLASH_WEIXIN",
                                 "VAR_STARTTOFLASH_WARD",
                                 "VAR_ENDTOFLASH",
                                 "VAR_ENDTOFLASH_WEIXIN",
                                 "VAR_ENDTOFLASH_WARD",
                                 "VAR_GAME_BACKLOGOIN",
                                 "VAR_ENABLE_TOKEN",
                                 "VAR_SETKEYDOWN",
                                 "VAR_QRCODE_LOGIN",
                                 "VAR_LOGIN_WARD_SAFE_TOKEN_ERROR",
                                 "VAR_PLAY_LOGIN_WARD_SAFE_TOKEN_ERROR",
                                 "VAR_WEIXIN_LOGIN",
                                 "VAR_SHOWEXIT",
                                 "VAR_VERSION",
                                 "VAR_SHORTPWDTIP",
                                 "VAR_SETRECACCOUNT",
                                 "VAR_QUICK_RECORD",
                                 "VAR_SERVERSTATUS",
                                 "VAR_PICKEY",
                                 "VAR_SHOWSOFTKB",
                                 "VAR_MUSICSWITCH",
                                 "VAR_MUSIC",
                                 "SetLoginError",
                                 "SetQRKey",
                                 "SetQRCodeStatus",
                                 "SetRegisterOpen",
                                 "SetPwdInCorrect",
                                 "ReSetMainPath",
                                 "SetMainPath",
                                 "ChineseSwitch",
                                 "GetChineseSwitch",
                                 "SetRoleType",
                                 "SetExit",
                                 "RegSuccess",
                                 "DarkKnightCanCrate",
                                 "ShowCreateWnd",
                                 "VAR_FOCUS",
                                 "VAR_STARTTOVC",
                                 "VAR_ENDTOVC",
                                 "VAR_INPUTSTATE",
                                 "VAR_INPUTSTATE_WEIXIN",
                                 "VAR_INPUTSTATE_WARD",
                                 "var_server_area",
                                 "UNKNOWN"};
constexpr std::size_t NAME_COUNT = sizeof NAMES / sizeof NAMES[0];

CFlashSimulator* Simulator() {
    static TempClientDir dir;
    static CFlashSimulator* sim = [] {
        dir.Write("ini/FlashString.ini", "8000102=agreement\n");
        dir.Write("ini/ServerCfg.ini",
                  "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=1\nServer1=1\nSpecialMark1=1\n");
        CFlashSimulator* s = FlashSimQuery();
        s->Create(0, 0, 0, true);
        return s;
    }();
    return sim;
}
} // namespace

// The messages a host forwards between its variables; the point comes from the step's bytes.
constexpr UINT MESSAGES[] = {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_CHAR};

// Input: a sequence of (control byte, name byte, value length byte, value bytes) steps. The control byte's
// low bits choose the scene; bit 4 runs a frame first; bit 5 sends a message (bits 6-7 choose it) at a point
// taken from the name and length bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CFlashSimulator* sim = Simulator();
    std::size_t pos = 0;
    while (pos + 3 <= size) {
        const std::uint8_t control = data[pos];
        const std::uint8_t scene = control & 0x0F;
        const char* name = NAMES[data[pos + 1] % NAME_COUNT];
        std::size_t length = data[pos + 2];
        if (control & 0x10) {
            sim->Process();
            sim->Show();
        }
        if (control & 0x20) {
            const UINT message = MESSAGES[control >> 6];
            const LPARAM point = MAKELPARAM(data[pos + 1] * 4, data[pos + 2] * 3);
            const WPARAM key = message == WM_CHAR ? data[pos + 1] : 0;
            MSG msg{nullptr, message, key, point, 0, {}};
            sim->PreTranslateMessage(&msg);
            sim->WindowProc(nullptr, message, key, point);
        }
        if (length == 255) length = 70000; // now and then a value far past every buffer
        pos += 3;
        std::string value;
        for (std::size_t i = 0; i < length; ++i)
            value.push_back(pos < size ? static_cast<char>(data[pos++]) : 'x');
        sim->SetSceneType(scene % 3);
        sim->SetVariable(name, value.c_str());
        (void)sim->GetVariable(name);
    }
    return 0;
}
