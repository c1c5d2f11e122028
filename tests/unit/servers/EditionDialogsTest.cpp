// The edition screen's record buttons and the quick-entry replacement dialog, on a simulator.
#include <gtest/gtest.h>

#include "SimulatorFixture.h"

namespace {

constexpr const char* STRINGS = "3110009=Records full\n3110010=All three are used.\n3110011=Choose one.\n"
                                "3110012=Classic\n3110013=Normal\n3110014=Time\n3110019=Empty\n";
constexpr const char* SERVER_STATE = "[VerTip]\noldTip=The first edition.\nbossTip=Bosses everywhere.\n";

class EditionDialogsTest : public SimulatorFixture {
protected:
    void SetUp() override {
        m_dir.Write("ini/ServerState.ini", SERVER_STATE);
        Create(0, STRINGS);
    }
    CDlgSelectEdition& Editions() { return m_sim->Dialogs().m_dlgSelectEdition; }
    CDlgAddQuickEntry& Replacer() { return m_sim->Dialogs().m_dlgAddQuickEntry; }
    /// Sends command 273 of a control to a dialog, as a click does.
    static void Press(LuGui::CLuDialog& dlg, UINT nId) { dlg.WindowProc(WM_COMMAND, nId, 0); }
    void ThreeRecords() {
        Set("VAR_QUICK_RECORD", "3|1_1_1_AB$CD*2_2_3_East$Two*3_1_2_West$Three");
        ASSERT_EQ(m_sim->GetQuickEntryCount(), 3);
    }
};

TEST_F(EditionDialogsTest, WithoutRecordsEverySlotIsEmptyAndHasNoDeleteButton) {
    Editions().ShowWindow(SW_SHOW);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"GET_QUCIK_RECORD "});
    for (int k = 0; k < 3; ++k) {
        EXPECT_STREQ(Editions().GetRecordButton(k).GetSubGround(), "EntryBtn_Default");
        EXPECT_STREQ(Editions().GetRecordButton(k).GetWindowTextA(), "Empty");
        EXPECT_EQ(Editions().GetRecordButton(k).GetFontColor(), 0xFFFFFFFFu);
        EXPECT_FALSE(Editions().GetDeleteButton(k).IsWindowVisible());
    }
    EXPECT_STREQ(Editions().GetEditionTip(0).GetWindowTextA(), "The first edition.");
    EXPECT_STREQ(Editions().GetEditionTip(1).GetWindowTextA(), ""); // no key: empty
    EXPECT_STREQ(Editions().GetEditionTip(4).GetWindowTextA(), "Bosses everywhere.");
}

TEST_F(EditionDialogsTest, RecordsShowPictureAndJoinedTextsAndDeletionMovesThemUp) {
    ThreeRecords();
    Editions().ShowWindow(SW_SHOW);
    EXPECT_STREQ(Editions().GetRecordButton(0).GetWindowTextA(), "ABCD");
    EXPECT_STREQ(Editions().GetRecordButton(0).GetSubGround(), "EntryBtn_classic");
    EXPECT_EQ(Editions().GetRecordButton(0).GetFontColor(), 0xFFA2FEFFu);
    EXPECT_STREQ(Editions().GetRecordButton(2).GetSubGround(), "EntryBtn_Time");
    TakeCommands();
    Press(Editions(), CDlgSelectEdition::IDC_DELETE_RECORDS[0]);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"DELETE_QUICK_RECORD 1_1_1"});
    EXPECT_STREQ(Editions().GetRecordButton(0).GetWindowTextA(), "EastTwo");
    EXPECT_STREQ(Editions().GetRecordButton(1).GetWindowTextA(), "WestThree");
    EXPECT_STREQ(Editions().GetRecordButton(2).GetWindowTextA(), "Empty");
    EXPECT_FALSE(Editions().GetDeleteButton(2).IsWindowVisible());
}

TEST_F(EditionDialogsTest, RecordAndEditionButtonsSelect) {
    Editions().ShowWindow(SW_SHOW);
    TakeCommands();
    Press(Editions(), CDlgSelectEdition::IDC_RECORDS[0]); // an empty slot
    EXPECT_TRUE(TakeCommands().empty());
    ThreeRecords();
    Press(Editions(), CDlgSelectEdition::IDC_RECORDS[1]);
    const auto commands = TakeCommands();
    ASSERT_GE(commands.size(), 3u);
    EXPECT_EQ(commands[0], "CMD_SELECTMODEL 2");
    EXPECT_EQ(commands[1], "CMD_SELECTGROUP 2");
    EXPECT_EQ(commands[2], "CMD_SELECTSERVER 3");
    EXPECT_EQ(m_sim->State().m_nLoginStep, 3);

    Editions().ShowWindow(SW_SHOW);
    TakeCommands();
    Press(Editions(), CDlgSelectEdition::IDC_EDITION_FIRST + 4);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_SELECTMODEL 5"});
    EXPECT_FALSE(Editions().IsWindowVisible());
}

TEST_F(EditionDialogsTest, ReplacementShowsTheRecordsAndAutomaticReplacementTakesSlotOne) {
    ThreeRecords();
    m_sim->OnSelectModel(1);
    Set("VAR_SERVER_AREA", "1#North|");
    Set("VAR_SERVER_NAME", "1#N1|");
    m_sim->OnSelectGroup(0);
    m_sim->OnSelectServer(0);
    TakeCommands();
    Replacer().ShowWindow(SW_SHOW);
    EXPECT_STREQ(Replacer().GetReplacedText().GetWindowTextA(), "Classic AB CD");
    EXPECT_STREQ(Replacer().GetNewRecordText().GetWindowTextA(), "Classic North N1");
    EXPECT_STREQ(Replacer().GetRowEdition(1).GetBackGroundAni(), "EntryBtn_Normal");
    Press(Replacer(), CDlgAddQuickEntry::IDC_AUTO_REPLACE);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CHANGE_QUICK_RECORD 1_1_1_1"});
    EXPECT_FALSE(Replacer().IsWindowVisible());
    EXPECT_EQ(m_sim->GetQuickEntry(0)->strGroupName, "North");
}

TEST_F(EditionDialogsTest, ReplacementWithFewerRecordsOnlyReportsAndRefuses) {
    Set("VAR_QUICK_RECORD", "1|1_1_1_AB$CD");
    Replacer().ShowWindow(SW_SHOW);
    EXPECT_EQ(testlog::Count("MSG", "ASSERT(nRecordAmount == MAX_QUICK_ENTRY_AMOUNT) in "), 1);
    EXPECT_STREQ(Replacer().GetReplacedText().GetWindowTextA(), "");
    Press(Replacer(), CDlgAddQuickEntry::IDC_REPLACE_FIRST + 2);
    EXPECT_EQ(testlog::Count("MSG", "ASSERT(m_vecQuickEntry.size() == MAX_QUICK_ENTRY_AMOUNT)"), 1);
    EXPECT_TRUE(TakeCommands().empty());
}

} // namespace
