// Quick-entry records: the host's list, additions, replacements, deletions and what the host hears of them.
#include "SimulatorFixture.h"

using CommandList = std::vector<std::string>;

namespace {
SQuickEntry Entry(int model, int group, int server) {
    SQuickEntry e;
    e.nModel = model;
    e.nGroup = group;
    e.nServer = server;
    return e;
}
} // namespace

class QuickEntries : public SimulatorFixture {};

TEST_F(QuickEntries, AddRefusesDuplicatesAndAFullList) {
    Create();
    EXPECT_EQ(m_sim->AddQuickEntry(Entry(2, 1, 3)), 0);
    EXPECT_EQ(m_sim->AddQuickEntry(Entry(2, 1, 3)), 1);
    EXPECT_EQ(m_sim->AddQuickEntry(Entry(2, 1, 4)), 0);
    EXPECT_EQ(m_sim->AddQuickEntry(Entry(3, 1, 4)), 0);
    EXPECT_EQ(m_sim->AddQuickEntry(Entry(4, 1, 4)), 2);
    EXPECT_EQ(TakeCommands(),
              (CommandList{"ADD_QUICK_RECORD 2_1_3", "ADD_QUICK_RECORD 2_1_4", "ADD_QUICK_RECORD 3_1_4"}));
}

TEST_F(QuickEntries, ReplaceNeedsAFullListAndAValidIndex) {
    Create();
    m_sim->AddQuickEntry(Entry(1, 1, 1));
    m_sim->AddQuickEntry(Entry(1, 1, 2));
    TakeCommands();
    testlog::Expect("MSG", "ASSERT(");
    m_sim->ReplaceQuickEntry(Entry(1, 2, 5), 1);
    EXPECT_EQ(testlog::Count("MSG", "ASSERT(m_vecQuickEntry.size() == MAX_QUICK_ENTRY_AMOUNT) in "), 1);
    EXPECT_EQ(m_sim->GetQuickEntry(1)->nServer, 2);
    m_sim->AddQuickEntry(Entry(1, 1, 3));
    TakeCommands();
    m_sim->ReplaceQuickEntry(Entry(1, 2, 5), 3);
    EXPECT_EQ(
        testlog::Count("MSG", "ASSERT(nReplaceIndex >= 0 && nReplaceIndex < m_vecQuickEntry.size()) in "), 1);
    m_sim->ReplaceQuickEntry(Entry(1, 2, 5), 1);
    EXPECT_EQ(TakeCommands(), CommandList{"CHANGE_QUICK_RECORD 1_2_5_2"});
    EXPECT_EQ(m_sim->GetQuickEntry(1)->nGroup, 2);
}

TEST_F(QuickEntries, DeleteMovesTheRestUp) {
    Create();
    for (int s = 1; s <= 3; ++s) m_sim->AddQuickEntry(Entry(2, 1, s));
    TakeCommands();
    m_sim->DeleteQuickEntry(-5);
    EXPECT_EQ(TakeCommands(), CommandList{"DELETE_QUICK_RECORD 2_1_1"});
    ASSERT_EQ(m_sim->GetQuickEntryCount(), 2);
    EXPECT_EQ(m_sim->GetQuickEntry(0)->nServer, 2);
    m_sim->DeleteQuickEntry(7);
    EXPECT_TRUE(TakeCommands().empty()) << "an index past the list is ignored";
    EXPECT_EQ(m_sim->GetQuickEntry(2), nullptr);
}

TEST_F(QuickEntries, HostListIsReadRecordByRecordWithoutLimit) {
    Create();
    Set("VAR_QUICK_RECORD", "2|2_1_3_East$Dragon Gate*1_2_1_West$Tiger*bad*4_4_4*5_5_5_$X*6_6_6_Long$Name");
    ASSERT_EQ(m_sim->GetQuickEntryCount(), 5);
    EXPECT_EQ(m_sim->GetQuickEntry(0)->strServerName, "Dragon") << "the server name stops at a blank";
    EXPECT_EQ(m_sim->GetQuickEntry(1)->strGroupName, "West");
    EXPECT_EQ(m_sim->GetQuickEntry(2)->strGroupName, "") << "names are empty when absent";
    EXPECT_EQ(m_sim->GetQuickEntry(3)->strGroupName, "") << "an empty group name stops the reading";
    EXPECT_EQ(m_sim->GetQuickEntry(4)->strServerName, "Name") << "a long enough trailing record counts";
    EXPECT_EQ(m_sim->AddQuickEntry(Entry(9, 9, 9)), 2);

    Set("VAR_QUICK_RECORD", "1|1_1_1*2_2");
    EXPECT_EQ(m_sim->GetQuickEntryCount(), 1) << "a trailing record under six characters is dropped";
    Set("VAR_QUICK_RECORD", "0|1_1_1*");
    Set("VAR_QUICK_RECORD", "1_1_1*");
    EXPECT_EQ(m_sim->GetQuickEntryCount(), 1) << "no count or a count below 1 changes nothing";
    const std::string longName = "1|1_1_1_" + std::string(5000, 'g') + "$s*";
    Set("VAR_QUICK_RECORD", longName.c_str());
    EXPECT_EQ(m_sim->GetQuickEntry(0)->strGroupName.length(), 259u) << "names are cut to their buffer";
}

TEST_F(QuickEntries, FillTakesTheCurrentSelectionOneBased) {
    Create();
    Set("VAR_SERVER_AREA", "1#East|");
    Set("VAR_SERVER_NAME", "2#A|B|");
    m_sim->SetGroup(0);
    m_sim->SetServer(1, true);
    SQuickEntry e;
    m_sim->FillQuickEntry(e);
    EXPECT_EQ(e.nGroup, 1);
    EXPECT_EQ(e.nServer, 2);
    EXPECT_EQ(e.strServerName, "B");
    m_sim->SetServer(7, true);
    m_sim->FillQuickEntry(e);
    EXPECT_EQ(e.strServerName, "") << "an invalid index gives an empty name";
    EXPECT_EQ(e.strGroupName, "East");
}
