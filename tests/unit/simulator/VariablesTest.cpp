// The variable protocol: dispatch by scene and case, the login chain's commands, the getters' shared buffer.
#include "SimulatorFixture.h"

using CommandList = std::vector<std::string>;

class Variables : public SimulatorFixture {};

TEST_F(Variables, NamesMatchWithoutCaseOnlyInTheirOwnScene) {
    Create();
    Set("var_QrCode_Login", "");
    EXPECT_EQ(TakeCommands(), CommandList{"CMD_ENTERGAME 1"});
    m_sim->SetSceneType(EST_ROLE_CREATE);
    Set("VAR_QRCODE_LOGIN", "");
    Set("DarkKnightCanCrate", "1");
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_TRUE(m_sim->State().m_bDarkKnight);
    Set("DARKKNIGHTCANCRATE", "2");
    EXPECT_TRUE(m_sim->State().m_bDarkKnight) << "other values are ignored";
    Set("darkknightcancrate", "0");
    EXPECT_FALSE(m_sim->State().m_bDarkKnight);
    m_sim->SetSceneType(7);
    Set("DarkKnightCanCrate", "1");
    EXPECT_FALSE(m_sim->State().m_bDarkKnight) << "an unknown scene understands nothing";
    Set(std::string(5000, 'v').c_str(), "1");
}

TEST_F(Variables, GettersDependOnTheScene) {
    Create();
    EXPECT_STREQ(m_sim->GetVariable("VAR_INPUTSTATE"), "0");
    Set("VAR_MAINPATH", "");
    EXPECT_STREQ(m_sim->GetVariable("var_inputstate"), "1");
    EXPECT_STREQ(m_sim->GetVariable("VAR_UNKNOWN"), "");
    EXPECT_EQ(m_sim->GetVariable(nullptr), nullptr);
    m_sim->SetSceneType(EST_ROLE_CREATE);
    EXPECT_STREQ(m_sim->GetVariable("VAR_INPUTSTATE"), "");
    m_sim->SetSceneType(3);
    EXPECT_EQ(m_sim->GetVariable("VAR_INPUTSTATE"), nullptr);
}

TEST_F(Variables, MainPathStartsTheSceneOnlyOnce) {
    Create();
    Set("VAR_MAINPATH", "x");
    EXPECT_EQ(m_sim->State().m_nLoginStep, 4);
    // No last login is known: the current (unset) selection, then the main login's opening event.
    EXPECT_EQ(TakeCommands(), (CommandList{"CMD_SELECTMODEL 0", "CMD_SELECTGROUP 0", "CMD_EX_SELECTSERVER 0",
                                           "BURYING_POINT 112"}));
    Set("VAR_MAINPATH", "x");
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(Variables, GroupFirstLanguagesStartAtTheGroupDialog) {
    Create(1008);
    Set("VAR_SERVER_AREA", "1#East|");
    Set("VAR_MAINPATH", "");
    EXPECT_EQ(TakeCommands(), CommandList{"CMD_SELECTMODEL 2"});
    EXPECT_EQ(m_sim->State().m_nLoginStep, 1);
    EXPECT_EQ(m_sim->GetGroupCount(), 0) << "the list is emptied at the start";
    m_sim->OnReturn();
    EXPECT_EQ(TakeCommands(), CommandList{"CMD_RETURN "});
    EXPECT_EQ(m_sim->State().m_nLoginStep, 1);
}

TEST_F(Variables, QuickAndPlayLoginNeedTheirExactNumberCount) {
    Create();
    Set("VAR_QUICKLOGIN", "2 0");
    EXPECT_TRUE(TakeCommands().empty());
    Set("VAR_QUICKLOGIN", "2 0 3");
    // The main login's server label then reports the selection again.
    EXPECT_EQ(TakeCommands(), (CommandList{"CMD_SELECTMODEL 2", "CMD_SELECTGROUP 1", "CMD_EX_SELECTSERVER 4",
                                           "CMD_SELECTGROUP 1", "CMD_SELECTSERVER 4"}));
    Set("VAR_PLAYLOGIN", "1 2 3");
    EXPECT_TRUE(TakeCommands().empty());
    Set("VAR_PLAYLOGIN", "1 4");
    EXPECT_EQ(TakeCommands(), (CommandList{"CMD_SELECTGROUP 2", "CMD_SELECTSERVER 5"}));
    EXPECT_EQ(m_sim->State().m_nLoginStep, 3);
}

TEST_F(Variables, SpecialServersSignalOnceWhenEnteredAndOnceWhenLeft) {
    Create(0, "",
           "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=2\nServer1=1\nSpecialMark1=1\nServer2=2\n");
    m_sim->QuickSelect(2, 0, 0);
    m_sim->QuickSelect(2, 0, 0);
    m_sim->QuickSelect(2, 0, 1);
    m_sim->QuickSelect(2, 0, 1);
    m_sim->QuickSelect(1, 0, 0); // a model without configuration counts as unmarked
    const CommandList cmds = TakeCommands();
    EXPECT_EQ(std::count(cmds.begin(), cmds.end(), "CMD_RELOAD_INI 1"), 1);
    EXPECT_EQ(std::count(cmds.begin(), cmds.end(), "CMD_RELOAD_INI 0"), 1);
}

TEST_F(Variables, ReturnWalksTheChainBack) {
    Create();
    m_sim->OnSelectModel(3);
    Set("VAR_SERVER_AREA", "1#East|");
    m_sim->OnSelectGroup(0);
    m_sim->OnSelectServer(4);
    EXPECT_EQ(TakeCommands(), (CommandList{"CMD_SELECTMODEL 3", "CMD_SELECTGROUP 1", "CMD_SELECTSERVER 5"}));
    m_sim->OnReturn();
    EXPECT_EQ(TakeCommands(), CommandList{"KILL_All_TIMER "});
    m_sim->OnReturn();
    EXPECT_EQ(TakeCommands(), CommandList{"CMD_SELECTMODEL 3"});
    EXPECT_EQ(m_sim->GetGroupCount(), 0) << "the group list waits for the host again";
    m_sim->OnReturn();
    EXPECT_EQ(m_sim->State().m_nLoginStep, 0);
    EXPECT_EQ(TakeCommands(), CommandList{"GET_QUCIK_RECORD "}) << "the edition screen asks for the records";
    m_sim->OnReturn();
    EXPECT_EQ(TakeCommands(), CommandList{"CMD_RETURNLOGIN "});
}

TEST_F(Variables, LoginKeyChecksTheAgreementAndTheRegisterPage) {
    Create();
    Set("VAR_SETKEYDOWN", "1");
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), CDlgFlashConfirm::TYPE_ERROR);
    EXPECT_STREQ(m_sim->Dialogs().m_dlgConfirm.GetText(), "Tick the agreement.");

    m_sim->SetPlatformModeA(true);
    m_sim->SetRegisterOpen(true);
    Set("VAR_SETKEYDOWN", "1");
    EXPECT_TRUE(TakeCommands().empty()) << "the registration page is open";
    Set("SetRegisterOpen", "");
    Set("VAR_SETKEYDOWN", "1");
    EXPECT_EQ(TakeCommands(), (CommandList{"CMD_CLEARACCOUNT ", "BURYING_POINT 115", "CMD_ENTERGAME 0"}));
    Set("VAR_SETKEYDOWN", "3");
    Set("VAR_SETKEYDOWN", "9");
    EXPECT_EQ(TakeCommands(), CommandList{"CMD_ENTERGAME 3"});
    Set("VAR_SETKEYDOWN", "0");
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), CDlgFlashConfirm::TYPE_EXIT);
}

TEST_F(Variables, RecordedAccountsKeepEmptyPiecesButNoTrailingOne) {
    Create();
    Set("VAR_SETRECACCOUNT", "a||b");
    ASSERT_EQ(m_sim->GetRecAccountCount(), 3);
    EXPECT_STREQ(m_sim->GetRecAccount(1), "");
    Set("VAR_SETRECACCOUNT", "a|");
    EXPECT_EQ(m_sim->GetRecAccountCount(), 1);
    Set("VAR_SETRECACCOUNT", "");
    EXPECT_EQ(m_sim->GetRecAccountCount(), 0);
    EXPECT_EQ(m_sim->GetRecAccount(0), nullptr);
}

TEST_F(Variables, SafeTokenIsMaskedAndCutButLoggedAsSent) {
    Create();
    Set("VAR_LOGINHELMSAFE", "123456");
    EXPECT_STREQ(m_sim->Dialogs().m_dlgNewFlashLogin.GetTokenText(), "******");
    EXPECT_EQ(testlog::Count("DEBUG", "safetoken : 123456"), 1);
    Set("VAR_LOGINHELMSAFE", std::string(1000, '7').c_str());
    EXPECT_EQ(std::string(m_sim->Dialogs().m_dlgNewFlashLogin.GetTokenText()), std::string(255, '*'));
}

TEST_F(Variables, MusicAndManagerResets) {
    Create();
    Set("VAR_MUSIC", "1");
    Set("VAR_MUSIC", "1");
    EXPECT_EQ(host::JournalCount("sound.media"), 2) << "each switch-on starts the track";
    Set("VAR_MUSIC", "0");
    EXPECT_FALSE(m_sim->IsMusicOn());
    EXPECT_TRUE(TakeCommands().empty()) << "host-driven changes send no SET_MUSIC";
    Set("VAR_MUSICSWITCH", "1");
    EXPECT_EQ(host::JournalCount("gui.reset"), 0);
    Set("VAR_MUSICSWITCH", "0");
    EXPECT_EQ(host::JournalCount("gui.reset"), 1);
    Set("ReSetMainPath", "800-600-5");
    EXPECT_EQ(m_sim->GetMainPathWidth(), 800);
    EXPECT_EQ(m_sim->GetMainPathHeight(), 600);
}

TEST_F(Variables, LoginErrorWithANameRefusalDependsOnTheLayout) {
    Create();
    Set("SetLoginError", "Error: Illegal Name!");
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), CDlgFlashConfirm::TYPE_NAME_REFUSED);
    host::SetData("language", "English");
    Set("SetLoginError", "Error: Illegal Name!");
    EXPECT_EQ(m_sim->Dialogs().m_dlgConfirm.GetType(), CDlgFlashConfirm::TYPE_ERROR);
}
