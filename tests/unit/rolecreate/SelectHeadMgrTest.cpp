// The head configuration: the load rules of "ini/SelectHead.ini", its edge cases and malformed files.
#include <gtest/gtest.h>

#include <string>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "resources/SelectHeadMgr.h"

namespace {

class SelectHeadMgrTest : public testing::Test {
protected:
    void SetUp() override { CSelectHeadMgr::DestroyInstance(); }
    void TearDown() override { CSelectHeadMgr::DestroyInstance(); }
    CSelectHeadMgr m_heads;
};

TEST_F(SelectHeadMgrTest, ReadsTheThreeBlocksByTheirRules) {
    m_heads.LoadText("[ProHeadSet]\nProHeadAni_10=3\nProHeadAni_10=4\nProHeadAni_22=10022\n"
                     "[Other]\nMaleHead_1=5\n"
                     "[MaleHeadSet]\nMaleHeadAmount=3\nMaleHead_3=30\nMaleHead_1=10\n"
                     "[FemaleHeadSet]\nFemaleHeadAmount=2\nFemaleHead_1=7\nFemaleHead_2=8\nFemaleHead_3=9\n");
    // A repeated key keeps the last value; a key that is not configured answers 0.
    EXPECT_EQ(m_heads.GetProHeadAni(10), 4);
    EXPECT_EQ(m_heads.GetProHeadAni(22), 10022);
    EXPECT_EQ(m_heads.GetProHeadAni(11), 0);
    // MaleHead_2 is missing: two heads in the order of their numbers; blocks of other titles are skipped.
    ASSERT_EQ(m_heads.GetMaleHeadCount(), 2);
    EXPECT_EQ(m_heads.GetMaleHead(0), 10);
    EXPECT_EQ(m_heads.GetMaleHead(1), 30);
    // Keys past the amount are not read; lookups outside the lists answer 0, negative ones too.
    EXPECT_EQ(m_heads.GetFemaleHeadCount(), 2);
    EXPECT_EQ(m_heads.GetFemaleHead(2), 0);
    EXPECT_EQ(m_heads.GetFemaleHead(-1), 0);
    EXPECT_EQ(m_heads.GetMaleHead(-2147483647 - 1), 0);
}

TEST_F(SelectHeadMgrTest, MalformedLinesAreSkippedWithOneLineAndTheRestIsRead) {
    testlog::Expect("WARN", "lines without key=value skipped");
    m_heads.LoadText(
        "garbage before\n[ProHeadSet]\nno equals here\nProHeadAni_x=5\nProHeadAni_99999999999=6\n"
        "ProHeadAni_-3=7\nProHeadAni_31=99999999999\n\x01\x02\xff\xfe\n=1\n"
        "[MaleHeadSet]\nMaleHeadAmount=2147483647\nMaleHead_2147483647=1\nMaleHead_01=2\n"
        "MaleHead_1=3\nMaleHead_1=4\nMaleHead_4294967297=5\n"
        "[MaleHeadSet]\nMaleHeadAmount=1\nMaleHead_1=6\n");
    EXPECT_EQ(testlog::Count("WARN", "lines without key=value skipped"), 1);
    // "ProHeadAni_x" and a number past 32 bits name no key; a negative key is a key; a value past 32 bits
    // saturates as the base library reads numbers.
    EXPECT_EQ(m_heads.GetProHeadAni(-3), 7);
    EXPECT_EQ(m_heads.GetProHeadAni(31), 2147483647);
    EXPECT_EQ(m_heads.GetProHeadAni(0), 0);
    // Amount 2147483647 reads the keys present (the first line of a key counts, "01" is not "%d" of 1), and
    // a repeated block adds its heads.
    ASSERT_EQ(m_heads.GetMaleHeadCount(), 3);
    EXPECT_EQ(m_heads.GetMaleHead(0), 3);
    EXPECT_EQ(m_heads.GetMaleHead(1), 1);
    EXPECT_EQ(m_heads.GetMaleHead(2), 6);
}

TEST_F(SelectHeadMgrTest, AnUnreadableTitleStopsTheReadingWithAnError) {
    testlog::Expect("ERROR", "read block title error");
    m_heads.LoadText(
        "[MaleHeadSet]\nMaleHeadAmount=1\nMaleHead_1=5\n[Broken\n[FemaleHeadSet]\nFemaleHeadAmount=1\n"
        "FemaleHead_1=6\n");
    EXPECT_EQ(m_heads.GetMaleHeadCount(), 1);
    EXPECT_EQ(m_heads.GetFemaleHeadCount(), 0);
}

TEST_F(SelectHeadMgrTest, TheInstanceLoadsOnFirstUseAndAgainAfterItsDestruction) {
    TempClientDir dir;
    testlog::Expect("ERROR", "open file failed");
    EXPECT_EQ(CSelectHeadMgr::GetInstance().GetMaleHeadCount(), 0);
    EXPECT_EQ(testlog::Count("ERROR", "open file failed"), 1);
    dir.Write(CSelectHeadMgr::HEAD_FILE, "[MaleHeadSet]\nMaleHeadAmount=1\nMaleHead_1=10201\n");
    // Between creation and destruction the file is not read again.
    EXPECT_EQ(CSelectHeadMgr::GetInstance().GetMaleHeadCount(), 0);
    CSelectHeadMgr::DestroyInstance();
    EXPECT_FALSE(CSelectHeadMgr::HasInstance());
    EXPECT_EQ(CSelectHeadMgr::GetInstance().GetMaleHead(0), 10201);
}

} // namespace
