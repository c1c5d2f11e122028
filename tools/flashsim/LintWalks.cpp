// The screen walks of the client-directory check, as the demo scenarios open the screens.
#include "LintWalks.h"

namespace {

// What every walk starts with: a client that shows every optional row and page, with server lists.
constexpr const char* PROLOGUE = R"(host gamedata.qrlogin 1
host gamedata.wechat 1
host setting.UpdateTime 20261115
create LANG
callback primary
scene login
set VAR_VERSION 1.0.3
set VAR_SERVER_AREA 2#Dragon|Phoenix|
set VAR_SERVER_NAME 3#Dragon-1|Dragon-2|Dragon-3|
set VAR_SERVER_NAME 2#Phoenix-1|Phoenix-2|
set VAR_SERVERSTATUS 1#1_450_1000_1|2_720_1000_1|3_0_1000_0|
)";

std::string Walk(const char* szBody) {
    return std::string(PROLOGUE) + szBody + "\ndestroy\n";
}

} // namespace

const std::vector<LintWalk>& LintWalks() {
    static const std::vector<LintWalk> walks = {
        {"main login",
         Walk("set VAR_MAINPATH 1\nset VAR_LOGINUSER hero\nset VAR_SETRECACCOUNT hero|villain|\nframe\n"
              "click 1013 1004\nmove 10 10\nframe\nclick 1013 1004\nframe")},
        {"message box", Walk("set VAR_MAINPATH 1\nset SetLoginError Lint\nframe\nclick 1005 1001\nframe")},
        {"server selection",
         Walk("answer CMD_SELECTMODEL VAR_SERVER_AREA 2#Dragon|Phoenix|\n"
              "set VAR_MAINPATH 1\nclick 1013 1021\nframe\nset VAR_PLAYLOGIN 0 1\nclick 1003 1021\nframe\n"
              "click 1002 1089\nset VAR_AREA_ACH_TIPS 1|1\nmove 200 150\nframe 10\nclick 1001 1008\n"
              "move 700 150\nframe 10\nclick 1002 1089\nframe\nclick 1001 1089\nframe\nclick 1000 1002\n"
              "frame")},
        {"classic login",
         Walk("set VAR_PLAYLOGIN 0 1\nframe\nclick 1003 1013\nchar hero\nclick 1003 1014\nframe\n"
              "set VAR_SHOWSOFTKB 1\nframe\nset VAR_SHOWSOFTKB 0\n"
              "set VAR_QUICK_RECORD 3|1_1_1_Dragon$Dragon-1*1_1_3_Dragon$Dragon-3*1_2_1_Phoenix$Phoenix-1*\n"
              "click 1003 1001\nframe\nclick 1007 1019\nclick 1003 1018\nframe\nclick 1006 1019\n"
              "click 1003 1135\nclick 1003 1135\nset SetQRKey https://127.0.0.1/qrlogin?key=3f9a2c71\n"
              "set SetQRCodeStatus 1\nframe\nset SetQRCodeStatus 2\nframe\n"
              "call SetClassicTokenOnly true\nframe")},
        {"WeChat login and security token",
         Walk(
             "set VAR_PLAYLOGIN 0 1\nclick 1003 1150\nframe\nset VAR_WEIXIN_WARD_SAFE_TOKEN\n"
             "set VAR_LOGINHELMSAFE_WEIXIN 123456\nframe\nset VAR_LOGIN_WARD_SAFE_TOKEN_ERROR\nframe\n"
             "click 1011 1147\nset VAR_PLAY_LOGIN_WARD_SAFE_TOKEN\nset VAR_LOGINHELMSAFE_WARD 654321\nframe\n"
             "set VAR_PLAY_LOGIN_WARD_SAFE_TOKEN_ERROR\nframe")},
        {"QR login",
         Walk("set VAR_MAINPATH 1\nclick 1013 1019\nclick 1013 1022\n"
              "set SetQRKey https://127.0.0.1/qrlogin?key=3f9a2c71\nset SetQRCodeStatus 1\nframe\n"
              "set SetQRCodeStatus 2\nframe\nclick 1021 1021\nframe")},
        {"character creation", Walk("scene create\nframe 2\nmove 512 384\nframe")},
    };
    return walks;
}
