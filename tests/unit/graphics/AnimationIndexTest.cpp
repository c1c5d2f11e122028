// Animation index files read through the animation library: frames, settings, malformed entries, lookup and
// cache.
#include "GameDataSet.h"
#include "GameGraphic.h"
#include "Graphics.h"
#include "GraphicsFixture.h"
#include "LogCapture.h"
#include "MyAni.h"

namespace gfxtest {
namespace {

class AnimationIndexTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRecording();
    }
    static int IndexComplaints() { return testlog::Count("MSG", "animation index"); }
};

TEST_F(AnimationIndexTest, ReadsPicturesPlaceholdersIntervalAndBorder) {
    WriteBmp("data/ui/hook.bmp", 3, 2, [](int, int) { return DWORD{0xFFFFFFFF}; });
    m_dir.Write("ani/Control.ani", "; widgets\n"
                                   "[Hook]\r\n"
                                   "Interval = 50\r\n"
                                   "Border=1,2,3,4\n"
                                   "Frame0 = data/ui/hook.bmp\n"
                                   "frame1=BOX 40 20 336699 none Log in now\n");
    CMyAni* ani = QueryMyAniMgr()->QueryAni("ani/Control.ani", "Hook");
    ASSERT_NE(ani, nullptr);
    EXPECT_EQ(ani->GetFrameAmount(), 2);
    EXPECT_EQ(ani->GetInterval(), 50);
    EXPECT_EQ(ani->GetSize(0).cx, 3);
    EXPECT_EQ(ani->GetSize(0).cy, 2);
    EXPECT_EQ(ani->GetSize(1).cx, 40);
    EXPECT_EQ(ani->GetSize(1).cy, 20);
    EXPECT_EQ(ani->GetSize(2).cx, 0);
    EXPECT_STREQ(ani->GetTitle(), "Hook");
    ani->Release();
    EXPECT_EQ(IndexComplaints(), 0);
}

TEST_F(AnimationIndexTest, MalformedEntriesAreSkippedAndReportedOnce) {
    m_dir.Write("ani/Bad.ani", "Frame0=box 1 1 FF000000\n" // outside a title
                               "[Good]\n"
                               "Frame0=box 10 10 FF000000\n"
                               "Frame1=box -3 10 FF000000\n"    // negative size
                               "Frame2=box 10 10 GREEN\n"       // bad colour
                               "Frame3=box 5000 10 FF000000\n"  // too large
                               "Frame1024=box 10 10 FF000000\n" // frame number too large
                               "FrameX=box 10 10 FF000000\n"    // not a number
                               "Interval=0\n"                   // out of range
                               "Border=1,2,3\n"                 // three insets
                               "Colour=red\n"                   // unknown key
                               "no equals sign\n"
                               "[Open\n"                     // section without ']'
                               "Frame0=box 10 10 FF000000\n" // belongs to no title
                               "[]\n"
                               "[Empty]\n"
                               "Frame0=box 0 0 FF000000\n");
    CMyAni* good = QueryMyAniMgr()->QueryAni("ani/bad.ani", "good");
    ASSERT_NE(good, nullptr);
    EXPECT_EQ(good->GetFrameAmount(), 1) << "only the valid frame counts";
    EXPECT_EQ(good->GetInterval(), 100);
    EXPECT_EQ(QueryMyAniMgr()->QueryAni("ani/Bad.ani", "Empty"), nullptr)
        << "a title without frames is dropped";
    EXPECT_EQ(QueryMyAniMgr()->QueryAni("ani/Bad.ani", "Open"), nullptr);
    EXPECT_EQ(IndexComplaints(), 15);

    QueryMyAniMgr()->QueryAni("ani/Bad.ani", "Good");
    EXPECT_EQ(IndexComplaints(), 15) << "a file is parsed and reported once";
}

TEST_F(AnimationIndexTest, MissingIndexAndUndecodablePictureSayWhichFileOncePerLoad) {
    m_dir.Write("data/ui/bad.png", "\x89PNG but not a picture");
    m_dir.Write("ani/Control.ani", "[Bad]\nFrame0=data/ui/bad.png\nFrame1=box 2 2 FF000000\n");
    for (int frame = 0; frame < 3; ++frame) {
        EXPECT_FALSE(CGameGraphic::ShowAni("ani/None.ani", "Any", 0, 0));
        CGameGraphic::ShowCtrlAni("Bad", 0, 0, 0);
    }
    EXPECT_EQ(testlog::Count("MSG", "animation index ani/None.ani missing"), 1);
    EXPECT_EQ(
        testlog::Count("MSG", "picture data/ui/bad.png cannot be decoded: not a BMP, JPEG or PNG picture"),
        1);

    CMyBitmap* bitmap = MyBitmapCreate("DATA\\UI\\BAD.PNG");
    EXPECT_EQ(bitmap->GetWidth(), 0);
    bitmap->Release();
    EXPECT_EQ(testlog::Count("MSG", "picture DATA\\UI\\BAD.PNG cannot be decoded"), 1)
        << "each bitmap load says so";

    host::ClearGraphicsCaches();
    EXPECT_FALSE(CGameGraphic::ShowAni("ani/None.ani", "Any", 0, 0));
    EXPECT_EQ(testlog::Count("MSG", "animation index ani/None.ani missing"), 2) << "a new load looks again";
}

TEST_F(AnimationIndexTest, ProblemsPastTheTwentiethAreCountedInOneLine) {
    std::string text = "[T]\nFrame0=box 1 1 FF000000\n";
    for (int i = 0; i < 25; ++i) text += "Unknown" + std::to_string(i) + "=1\n";
    m_dir.Write("ani/Many.ani", text);
    EXPECT_NE(QueryMyAniMgr()->QueryAni("ani/Many.ani", "T"), nullptr);
    EXPECT_EQ(testlog::Count("MSG", "animation index ani/Many.ani, line"), 20);
    EXPECT_EQ(testlog::Count("MSG", "animation index ani/Many.ani, 5 more problems not listed"), 1);
}

TEST_F(AnimationIndexTest, FileAndTitleAreFoundWhateverTheirCase) {
    m_dir.Write("Ani/Control.ani", "[NewLogin_HookPic]\nFrame0=box 8 8 FF000000\n");
    for (const char* file : {"ani/control.ani", "ANI\\CONTROL.ANI", "./Ani/Control.ani"}) {
        EXPECT_NE(QueryMyAniMgr()->QueryAni(file, "newlogin_hookpic"), nullptr) << file;
    }
    EXPECT_TRUE(QueryMyAniMgr()->HasAni("ani/Control.ani", "NEWLOGIN_HOOKPIC"));
    EXPECT_FALSE(QueryMyAniMgr()->HasAni("ani/Control.ani", "NewLogin_HookPic2"));
}

TEST_F(AnimationIndexTest, ParsedFilesAreKeptUntilTheCachesAreCleared) {
    m_dir.Write("ani/Control.ani", "[A]\nFrame0=box 1 1 FF000000\n");
    ASSERT_NE(QueryMyAniMgr()->QueryAni("ani/Control.ani", "A"), nullptr);
    m_dir.Write("ani/Control.ani", "[B]\nFrame0=box 1 1 FF000000\n");
    EXPECT_NE(QueryMyAniMgr()->QueryAni("ani/Control.ani", "A"), nullptr);
    EXPECT_EQ(QueryMyAniMgr()->QueryAni("ani/Control.ani", "B"), nullptr);

    host::ClearGraphicsCaches();
    EXPECT_EQ(QueryMyAniMgr()->QueryAni("ani/Control.ani", "A"), nullptr);
    EXPECT_NE(QueryMyAniMgr()->QueryAni("ani/Control.ani", "B"), nullptr);
}

TEST_F(AnimationIndexTest, FrameByTimeFollowsTheHostClock) {
    m_dir.Write("ani/Control.ani",
                "[Blink]\nInterval=250\nFrame0=box 2 2 FF000000\nFrame1=box 3 3 FF000000\n");
    host::SetClock(1000);
    EXPECT_TRUE(CGameGraphic::ShowCtrlAni("Blink", 0, 0));
    host::AdvanceClock(250);
    EXPECT_TRUE(CGameGraphic::ShowCtrlAni("Blink", 0, 0));
    host::AdvanceClock(250);
    EXPECT_TRUE(CGameGraphic::ShowCtrlAni("Blink", 0, 0));
    EXPECT_EQ(host::DumpRecordedOps(), "ani ani/Control.ani:Blink#0 0,0 2x2 a=255\n"
                                       "ani ani/Control.ani:Blink#1 0,0 3x3 a=255\n"
                                       "ani ani/Control.ani:Blink#0 0,0 2x2 a=255\n");
}

} // namespace
} // namespace gfxtest
