// The main login dialog on a simulator: login commands, agreement, last server, load pictures, account list,
// creation link, focus and selection, platform mode, account-creation page.
#include <gtest/gtest.h>

#include <filesystem>

#include "SimulatorFixture.h"
#include "hostlibs/HostCanvas.h"
#include "platform/GameData.h"

namespace {

constexpr const char* STRINGS = "8000102=Tick the agreement.\n8000060=2 5 North North-5\n3110003=Forget?\n"
                                "9000103=updated {}/{}\n3000187=-20\n3000190=10 7\n";

class MainLoginTest : public SimulatorFixture {
protected:
    void SetUp() override { m_dir.Write("FlashGui.ini", LAYOUT); }
    void Start(const char* szLastLogin = nullptr) {
        if (szLastLogin)
            m_dir.Write("ini/GameSetup.ini", std::string("[LastLogin]\nRecord=") + szLastLogin + "\n");
        Create(0, STRINGS);
        m_sim->SetSceneType(EST_LOGIN);
        Set("VAR_SERVER_AREA", "2#East|West|");
        Set("VAR_SERVER_NAME", "2#Dragon|Tiger|");
        Set("VAR_MAINPATH", "1");
    }
    CDlgNewFlashLogin& Login() { return m_sim->Dialogs().m_dlgNewFlashLogin; }
    void Press(UINT nId) { Login().WindowProc(WM_COMMAND, nId, 0); }
    const LuGui::CLuCtrl& Ctrl(UINT nId) { return *Login().GetControl(nId); }
    void TickAgreement() {
        Press(CDlgNewFlashLogin::IDC_AGREEMENT);
        ASSERT_TRUE(Login().IsAgreementChecked());
    }

    static constexpr const char* LAYOUT = "[Dialog1013]\nRect = 0 0 500 500\n"
                                          "[Dialog1013.1013]\nRect = 100 100 200 28\n"
                                          "[Dialog1013.1014]\nRect = 100 140 200 28\n"
                                          "[Dialog1013.1016]\nRect = 100 180 200 28\n"
                                          "[Dialog1013.1012]\nRect = 60 40 300 24\n"
                                          "[Dialog1013.1178]\nRect = 0 44 16 16\n"
                                          "[Dialog1013.1027]\nRect = 100 128 200 66\n";
};

TEST_F(MainLoginTest, WithoutTheAgreementNothingIsSentAndTheBoxSaysWhy) {
    Start();
    TakeCommands();
    Press(CDlgNewFlashLogin::IDC_ENTER);
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_TRUE(m_sim->Dialogs().m_dlgConfirm.IsWindowVisible());
    EXPECT_STREQ(m_sim->Dialogs().m_dlgConfirm.GetText(), "Tick the agreement.");
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), CDlgFlashConfirm::TYPE_ERROR);
}

TEST_F(MainLoginTest, LoginSendsTheAccountChoiceThenEntersAndStoresTheAgreement) {
    Start();
    TickAgreement();
    TakeCommands();
    Press(CDlgNewFlashLogin::IDC_ENTER);
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"CMD_RECORDACCOUNT ", "CMD_CLEARACCOUNT ",
                                                        "BURYING_POINT 115", "CMD_ENTERGAME 0"}));
    EXPECT_EQ(RoleDataQueryEn()->GetSetting("Check", 0), 1);
    Set("VAR_LOGINUSER", "hero"); // a remembered account checks the remember look
    Press(CDlgNewFlashLogin::IDC_ENTER);
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"CMD_RECORDACCOUNT ", "CMD_RECORDACCOUNT ",
                                                        "BURYING_POINT 115", "CMD_ENTERGAME 0"}));
    Set("VAR_SETKEYDOWN", "1"); // the host's Enter key skips the first command
    EXPECT_EQ(TakeCommands(),
              (std::vector<std::string>{"CMD_RECORDACCOUNT ", "BURYING_POINT 115", "CMD_ENTERGAME 0"}));
}

TEST_F(MainLoginTest, PlatformModeALogsInWithoutTheAgreementAndHidesTheFields) {
    Create(0, STRINGS);
    m_sim->SetPlatformModeA(true);
    m_sim->SetSceneType(EST_LOGIN);
    Set("VAR_MAINPATH", "1");
    TakeCommands();
    EXPECT_FALSE(Ctrl(CDlgNewFlashLogin::IDC_ACCOUNT).IsWindowVisible());
    EXPECT_TRUE(Ctrl(CDlgNewFlashLogin::IDC_ACCOUNT_HINT).IsWindowVisible());
    EXPECT_FALSE(Ctrl(CDlgNewFlashLogin::IDC_AGREEMENT).IsWindowVisible());
    Press(CDlgNewFlashLogin::IDC_ENTER);
    EXPECT_EQ(TakeCommands().back(), "CMD_ENTERGAME 0");
    Set("VAR_FOCUSTOFLASH", "1"); // account fields cannot take the focus in a platform mode
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(MainLoginTest, LastLoginRecordGivesTheServerAndFallsBackOnBadRecords) {
    Start("2_1_3_East$Dragon");
    EXPECT_STREQ(Login().GetServerLabel(), "East -> Dragon");
    EXPECT_EQ(Login().GetChosenGroup(), 0);
    const auto commands = TakeCommands();
    ASSERT_GE(commands.size(), 5u);
    EXPECT_EQ(commands[0], "CMD_SELECTGROUP 1");
    EXPECT_EQ(commands[1], "CMD_EX_SELECTSERVER 3");
    EXPECT_EQ(commands[2], "CMD_SELECTMODEL 2");

    for (const char* record : {"2_1_3_NoDollar", "2_1_3_A$B$C"}) {
        SCOPED_TRACE(record);
        FlashSimDestroy();
        Start(record);
        EXPECT_STREQ(Login().GetServerLabel(), "North -> North-5");
        const auto fallback = TakeCommands();
        ASSERT_GE(fallback.size(), 2u);
        EXPECT_EQ(fallback[0], "CMD_SELECTGROUP 2");
        EXPECT_EQ(fallback[1], "CMD_EX_SELECTSERVER 5");
    }
}

TEST_F(MainLoginTest, LoadPictureGetsTheBonusOnRefreshAndNotOnLabelUpdates) {
    Start();
    const struct {
        const char* status;
        const char* refreshed;
        const char* updated;
    } cases[] = {{"1#1_450_1000_1|", "NewLogin_serMediumPic", "NewLogin_serlowPic"},
                 {"1#1_499_1000_1|", "NewLogin_serMediumPic", "NewLogin_serlowPic"},
                 {"1#1_0_1000_1|", "NewLogin_serlowPic", "NewLogin_serlowPic"},
                 {"1#1_850_1000_1|", "NewLogin_serfullPic", "NewLogin_serfullPic"},
                 {"1#1_1500_1000_1|", "NewLogin_serfullPic", "NewLogin_serfullPic"},
                 {"1#1_10_1000_0|", "NewLogin_serMaintenancePic", "NewLogin_serMaintenancePic"}};
    Set("VAR_QUICKLOGIN", "2 0 0");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.status);
        Set("VAR_SERVERSTATUS", c.status);
        Login().Reset();
        EXPECT_STREQ(Ctrl(CDlgNewFlashLogin::IDC_LOAD_PICTURE).GetBackGroundAni(), c.refreshed);
        Login().UpdateServerLabel();
        EXPECT_STREQ(Ctrl(CDlgNewFlashLogin::IDC_LOAD_PICTURE).GetBackGroundAni(), c.updated);
    }
    EXPECT_EQ(Ctrl(CDlgNewFlashLogin::IDC_LOAD_PICTURE).GetWindowRect().left, 60 - 20);
}

TEST_F(MainLoginTest, AgreementDateComesFromTheUpdateTimeSetting) {
    RoleDataQueryEn()->SetSetting("UpdateTime", 20240315);
    Start();
    EXPECT_STREQ(Ctrl(CDlgNewFlashLogin::IDC_UPDATE_DATE).GetWindowTextA(), "updated 3/15");
}

TEST_F(MainLoginTest, AccountListChoosesAndForgetsAccounts) {
    Start();
    Set("VAR_SETRECACCOUNT", "hero|villain|");
    Press(CDlgNewFlashLogin::IDC_ACCOUNT_LIST_BUTTON);
    ASSERT_TRUE(Ctrl(CDlgNewFlashLogin::IDC_ACCOUNT_LIST).IsWindowVisible());
    TakeCommands();
    Login().WindowProc(LuGui::LU_MSG_LIST_SELECT, CDlgNewFlashLogin::IDC_ACCOUNT_LIST, 1);
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"CMD_SELECTACCOUNT villain", "CMD_TEXTSELECT "}));
    EXPECT_STREQ(Login().GetAccountText(), "villain");
    EXPECT_TRUE(Login().IsRememberChecked());
    EXPECT_FALSE(Ctrl(CDlgNewFlashLogin::IDC_ACCOUNT_LIST).IsWindowVisible());

    Set("VAR_SETRECACCOUNT", "|");
    Press(CDlgNewFlashLogin::IDC_ACCOUNT_LIST_BUTTON);
    Login().WindowProc(LuGui::LU_MSG_LIST_SELECT, CDlgNewFlashLogin::IDC_ACCOUNT_LIST, 0); // an empty row
    EXPECT_FALSE(Login().IsRememberChecked());

    Set("VAR_SETRECACCOUNT", "hero|");
    Press(CDlgNewFlashLogin::IDC_ACCOUNT_LIST_BUTTON);
    TakeCommands();
    Login().WindowProc(LuGui::LU_MSG_LIST_DELETE, CDlgNewFlashLogin::IDC_ACCOUNT_LIST, 0);
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"CMD_SELECTACCOUNT hero", "CMD_TEXTSELECT "}));
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), CDlgFlashConfirm::TYPE_CLEAR_ACCOUNT);
}

TEST_F(MainLoginTest, HostFocusMovesTheCaretToTheEndAndSelectionEdgesRoundTrip) {
    Start();
    Set("VAR_LOGINPASS", "secret");
    TakeCommands();
    Set("VAR_FOCUSTOFLASH", "2");
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_TEXTSELECT "});
    EXPECT_STREQ(m_sim->GetVariable("VAR_FOCUS"), "2");
    EXPECT_STREQ(m_sim->GetVariable("VAR_STARTTOVC"), "6");
    EXPECT_STREQ(m_sim->GetVariable("VAR_ENDTOVC"), "6");
    Set("VAR_STARTTOFLASH", "1");
    Set("VAR_ENDTOFLASH", "4");
    EXPECT_STREQ(m_sim->GetVariable("VAR_STARTTOVC"), "1");
    EXPECT_STREQ(m_sim->GetVariable("VAR_ENDTOVC"), "4");
    host::SetData("gamedata.inputflag", "1");
    EXPECT_STREQ(m_sim->GetVariable("VAR_FOCUS"), "0");
}

TEST_F(MainLoginTest, FocusAccountFieldMakesTheAccountTheCurrentField) {
    Start();
    Set("VAR_LOGINUSER", "hero");
    Set("VAR_LOGINPASS", "secret");
    Set("VAR_FOCUSTOFLASH", "2");
    TakeCommands();
    m_sim->FocusAccountField();
    EXPECT_STREQ(m_sim->GetVariable("VAR_FOCUS"), "1");
    EXPECT_TRUE(TakeCommands().empty()) << "the host asked for it, so it is not told";
    Set("VAR_STARTTOFLASH", "1");
    Set("VAR_ENDTOFLASH", "3");
    EXPECT_STREQ(m_sim->GetVariable("VAR_STARTTOVC"), "1");
    EXPECT_STREQ(m_sim->GetVariable("VAR_ENDTOVC"), "3");
    EXPECT_STREQ(Login().GetAccountText(), "hero");
}

TEST_F(MainLoginTest, ThePasswordIsNeverLogged) {
    Start();
    Set("VAR_LOGINPASS", "TopSecret42");
    Set("VAR_FOCUSTOFLASH", "2");
    EXPECT_STREQ(Login().GetPasswordText(), "TopSecret42");
    for (const host::LogRecord& record : testlog::Records()) {
        EXPECT_EQ(record.message.find("TopSecret42"), std::string::npos) << record.message;
        for (const auto& [key, value] : record.keys) EXPECT_EQ(value.find("TopSecret42"), std::string::npos);
    }
}

TEST_F(MainLoginTest, AccountCreationPageOpensEmbeddedOnceWhileLocked) {
    std::filesystem::create_directories(m_dir.Path() / "Chrome");
    host::SetData("strres.6124050", "https://example.com/register?from={}");
    host::SetData("strres.3001192", "1");
    host::SetData("gamedata.registerarg", "7");
    host::SetData("layout.1000", "0 0 800 600");
    Start();
    TakeCommands();
    Press(CDlgNewFlashLogin::IDC_CREATE_LINK);
    // The dialog shows before the click's usage event.
    EXPECT_EQ(TakeCommands(), (std::vector<std::string>{"CLEAR_KEY_INPUT 0", "BURYING_POINT 117"}));
    EXPECT_TRUE(m_sim->Dialogs().m_dlgWebRegister.IsWindowVisible());
    EXPECT_EQ(m_sim->Dialogs().m_webBrowser.GetUrl(), "https://example.com/register?from=7");
    EXPECT_TRUE(m_sim->IsRegisterOpen());
    Press(CDlgNewFlashLogin::IDC_CREATE_LINK); // locked: nothing
    EXPECT_TRUE(TakeCommands().empty());
    Set("SetRegisterOpen", "");
    EXPECT_FALSE(m_sim->IsRegisterOpen());
}

TEST_F(MainLoginTest, WithoutTheBrowserFolderThePageGoesToTheShell) {
    host::SetData("strres.6124050", "https://example.com/register");
    host::SetData("strres.3001192", "1");
    Start();
    const int nOpens = host::JournalCount("shell.open");
    Press(CDlgNewFlashLogin::IDC_CREATE_LINK);
    EXPECT_EQ(host::JournalCount("shell.open"), nOpens + 1);
    EXPECT_FALSE(m_sim->Dialogs().m_dlgWebRegister.IsWindowVisible());
    EXPECT_FALSE(m_sim->IsRegisterOpen());
}

TEST_F(MainLoginTest, WithoutAnyRecordTheFirstNewServerIsTaken) {
    host::SetData("newservers", "Tiger");
    Create(0, "");
    m_sim->SetSceneType(EST_LOGIN);
    Set("VAR_SERVER_AREA", "2#East|West|");
    Set("VAR_SERVER_NAME", "2#Dragon|Tiger|");
    Set("VAR_MAINPATH", "1");
    EXPECT_STREQ(Login().GetServerLabel(), "East -> Tiger");
    const auto commands = TakeCommands();
    ASSERT_GE(commands.size(), 2u);
    EXPECT_EQ(commands[0], "CMD_SELECTGROUP 1");
    EXPECT_EQ(commands[1], "CMD_EX_SELECTSERVER 2");
}

TEST_F(MainLoginTest, ComingBackFromTheGameOpensTheCreationPageOncePerInstallation) {
    host::SetData("strres.6124050", "https://example.com/register");
    Start();
    const int nOpens = host::JournalCount("shell.open");
    Set("VAR_GAME_BACKLOGOIN", "1");
    EXPECT_EQ(host::JournalCount("shell.open"), nOpens + 1);
    EXPECT_EQ(RoleDataQueryEn()->GetSetting("Register", 0), 1);
    Set("VAR_GAME_BACKLOGOIN", "1");
    Set("VAR_GAME_BACKLOGOIN", "0");
    EXPECT_EQ(host::JournalCount("shell.open"), nOpens + 1);
}

TEST_F(MainLoginTest, PlaceholdersComeFromTheServerStateFile) {
    m_dir.Write("ini/ServerState.ini", "[zrAccount]\nnormalTxt=Your account\n");
    Start();
    host::UseCanvas(host::CanvasKind::Recording);
    host::BeginFrame();
    m_sim->Show();
    bool bFound = false;
    for (const host::DrawOp& op : host::GetRecordedOps()) bFound = bFound || op.text == "Your account";
    EXPECT_TRUE(bFound);
}

TEST_F(MainLoginTest, ChoosingAnotherLanguageReloadsAndTellsTheHost) {
    host::SetData("languages", "0:Chinese|1:English|2:Deutsch");
    host::SetData("language.index", "0");
    Start();
    Press(CDlgNewFlashLogin::IDC_LANGUAGE_BUTTON);
    ASSERT_TRUE(Ctrl(CDlgNewFlashLogin::IDC_LANGUAGE_LIST).IsWindowVisible());
    TakeCommands();
    Login().WindowProc(LuGui::LU_MSG_LIST_SELECT, CDlgNewFlashLogin::IDC_LANGUAGE_LIST, 2);
    EXPECT_EQ(host::GetData("language.index"), "2");
    EXPECT_STREQ(Ctrl(CDlgNewFlashLogin::IDC_LANGUAGE_NAME).GetWindowTextA(), "Deutsch");
    EXPECT_FALSE(Ctrl(CDlgNewFlashLogin::IDC_LANGUAGE_LIST).IsWindowVisible());
    EXPECT_EQ(TakeCommands().back(), "CMD_SWITCH_LANGUAGE 0");
    Press(CDlgNewFlashLogin::IDC_LANGUAGE_BUTTON);
    Login().WindowProc(LuGui::LU_MSG_LIST_SELECT, CDlgNewFlashLogin::IDC_LANGUAGE_LIST, 2); // the same again
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(MainLoginTest, ActivationAndAttentionMessages) {
    Start();
    Press(CDlgNewFlashLogin::IDC_ACCOUNT_LIST_BUTTON);
    TakeCommands();
    Login().WindowProc(LuGui::LU_MSG_LOSE_FOCUS, 0, 0);
    EXPECT_FALSE(Ctrl(CDlgNewFlashLogin::IDC_ACCOUNT_LIST).IsWindowVisible());
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_TEXTSELECT "});
    m_sim->SetPlatformModeB(true);
    Login().WindowProc(LuGui::LU_MSG_ACTIVATE, 0, 0);
    EXPECT_FALSE(Ctrl(CDlgNewFlashLogin::IDC_BACK).IsWindowVisible());
    EXPECT_TRUE(Ctrl(CDlgNewFlashLogin::IDC_EXIT).IsWindowEnabled());
}

} // namespace

TEST_F(MainLoginTest, ResetReadsTheFiveTipsAndTheReloadButtonFromTheLayoutAgain) {
    m_dir.Write("FlashGui.ini", std::string(LAYOUT) + "[Dialog1013.1004]\nTip = Language\n"
                                                      "[Dialog1013.1006]\nTip = Token help\n"
                                                      "[Dialog1013.1002]\nRect = 400 10 40 20\nText = R\n");
    Start();
    LuGui::CLuCtrl& button = *Login().GetControl(CDlgNewFlashLogin::IDC_LANGUAGE_BUTTON);
    LuGui::CLuCtrl& help = *Login().GetControl(CDlgNewFlashLogin::IDC_TOKEN_HELP);
    LuGui::CLuCtrl& reload = *Login().GetControl(CDlgNewFlashLogin::IDC_RELOAD);
    button.SetTipText("stale");
    help.SetTipText("stale");
    reload.MoveWindow(0, 0, 1, 1);
    reload.SetWindowTextA("stale");
    Login().Reset();
    EXPECT_STREQ(button.GetTipText(), "Language");
    EXPECT_STREQ(help.GetTipText(), "Token help");
    EXPECT_EQ(reload.GetWidth(), 40);
    EXPECT_STREQ(reload.GetWindowTextA(), "R");
}
