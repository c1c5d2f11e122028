// Live server lists from the host's variables, their reads, and the decorations copied from the
// configuration.
#include "SimulatorFixture.h"

using CommandList = std::vector<std::string>;

class ServerLists : public SimulatorFixture {
protected:
    void Push(const char* area, std::initializer_list<const char*> names) {
        Set("VAR_SERVER_AREA", area);
        for (const char* n : names) Set("VAR_SERVER_NAME", n);
    }
};

TEST_F(ServerLists, AreaTakesOnlyNamesClosedByABarUpToTheCount) {
    Create();
    Set("VAR_SERVER_AREA", "2#East|West|North|");
    ASSERT_EQ(m_sim->GetGroupCount(), 2);
    EXPECT_STREQ(m_sim->GetGroupName(1), "West");
    Set("VAR_SERVER_AREA", "3#East|West");
    ASSERT_EQ(m_sim->GetGroupCount(), 1);
    EXPECT_STREQ(m_sim->GetGroupName(0), "East");
    Set("VAR_SERVER_AREA", "3#A||C|");
    EXPECT_EQ(m_sim->GetGroupCount(), 3) << "an empty name between bars is a name";
    for (const char* ignored : {"0#X|", "-1#X|", "X|Y|", ""}) {
        Set("VAR_SERVER_AREA", ignored);
        EXPECT_EQ(m_sim->GetGroupCount(), 3) << ignored;
    }
    EXPECT_EQ(m_sim->GetGroupName(3), nullptr);
    EXPECT_EQ(m_sim->GetGroupName(-1), nullptr);
}

TEST_F(ServerLists, NamesFillGroupsInOrderAndStopAfterTheLast) {
    Create();
    Push("2#East|West|", {"2#S1|S2|", "1#W1|", "1#Extra|"});
    EXPECT_EQ(m_sim->Lists().GetServerCount(0), 2);
    EXPECT_STREQ(m_sim->GetServerName(1, 0), "W1");
    EXPECT_EQ(m_sim->Lists().GetServerCount(2), 0);
    EXPECT_EQ(m_sim->GetServerName(0, 2), nullptr);
    const SServerItem* s = m_sim->Lists().GetServer(0, 1);
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(s->nStatus, 1);
    EXPECT_EQ(s->nMaxPlayers, 100);
}

TEST_F(ServerLists, StatusUpdatesServersAndLoadsReadBack) {
    Create();
    Push("1#East|", {"3#A|B|C|"});
    Set("VAR_SERVERSTATUS", "1#2_50_0_1|1_30_60_1|3_5_10_0|0_1_1_1|9_1_1_1|2_1_1|");
    m_sim->SetGroup(0);
    m_sim->SetServer(1, false);
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(m_sim->GetCurServer()), 5000.0f) << "capacity 0 counts as 1";
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(0), 50.0f);
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(2), -1.0f) << "state 0: maintenance";
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(5), 0.0f);
    Set("VAR_SERVERSTATUS", "1#1_99_100_1");
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(0), 99.0f) << "an entry without its closing bar still counts";
    testlog::Expect("WARN", "negative player count");
    Set("VAR_SERVERSTATUS", "1#1_-2147483648_1_1|");
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(0), 0.0f)
        << "a negative count is no players, not a load past any bar";
    Set("VAR_SERVERSTATUS", "1#1_99_100_1|");
    Set("VAR_SERVERSTATUS", "2#1_1_1_1|");
    Set("VAR_SERVERSTATUS", "0#1_1_1_1|");
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(0), 99.0f);
    m_sim->SetGroup(4);
    EXPECT_FLOAT_EQ(m_sim->GetServerLoad(m_sim->GetCurServer()), 0.0f);
    EXPECT_EQ(m_sim->GetCurGroupName(), nullptr);
}

TEST_F(ServerLists, AchievementTipsNeedAMatchingCountAndAWindowAroundNow) {
    Create(
        0, "",
        "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=2\nServer1=1\nAchTips1=1\nAchTime1=100-200000000\n"
        "Server2=2\nAchTips2=1\nAchTime2=100-50\n");
    Push("2#East|West|", {"2#A|B|", "1#C|"});
    Set("VAR_AREA_ACH_TIPS", "1");
    EXPECT_FALSE(m_sim->Lists().GetGroup(0)->bAchTips) << "one value for two groups changes nothing";
    Set("VAR_AREA_ACH_TIPS", "0|1");
    EXPECT_FALSE(m_sim->Lists().GetGroup(0)->bAchTips);
    EXPECT_TRUE(m_sim->Lists().GetGroup(1)->bAchTips);

    Set("VAR_CUR_VER", "2");
    EXPECT_TRUE(m_sim->Lists().GetGroup(0)->bAchTips);
    EXPECT_EQ(m_sim->Lists().GetAchState(0, 0), ACH_INSIDE);
    EXPECT_EQ(m_sim->Lists().GetAchState(0, 1), ACH_AFTER) << "an end before the start is never inside";
    EXPECT_EQ(m_sim->Lists().GetAchState(3, 0), ACH_AFTER);
    EXPECT_TRUE(m_sim->IsGroupAchTip(0));
    EXPECT_FALSE(m_sim->IsGroupAchTip(1)) << "flag set but no server inside its window";
    m_sim->SetGroup(0);
    EXPECT_TRUE(m_sim->IsServerAchTip(0));
    EXPECT_FALSE(m_sim->IsServerAchTip(1));

    host::SetLocalTime({1970, 1, 1, 0, 30, 0});
    EXPECT_EQ(m_sim->Lists().GetAchState(0, 0), ACH_BEFORE);
}

TEST_F(ServerLists, GroupFirstLanguagesIgnoreTheModelsDecorations) {
    Create(1007, "", "[Header]\nGroupAmount=1\n[Group1]\nServerAmount=1\nServer1=1\nAchTips1=1\n");
    Set("VAR_SERVER_AREA", "1#East|");
    Set("VAR_CUR_VER", "2");
    EXPECT_FALSE(m_sim->Lists().GetGroup(0)->bAchTips);
}
