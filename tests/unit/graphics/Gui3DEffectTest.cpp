// GUI effects: the named set, play timing by the host clock, placement in the show rectangle, the
// placeholder.
#include "Gui3DEffect.h"
#include "GraphicsFixture.h"

namespace gfxtest {
namespace {

class Gui3DEffectTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRecording();
        m_dir.Write("ani/Gui3DEffect.ani", "[Sparkle]\nInterval=100\n"
                                           "Frame0=box 10 10 FFFFFF00\nFrame1=box 10 10 FFFFFF00\n"
                                           "Frame2=box 10 10 FFFFFF00\n");
        m_effect = GameCreateGui3DEffect();
        m_effect->SetShowRect({300, 400, 340, 420});
        host::SetClock(5000);
    }
    void TearDown() override {
        m_effect->Release();
        GraphicsTest::TearDown();
    }
    std::string ShowOnce(int x, int y) {
        host::BeginFrame();
        m_effect->Show(x, y);
        return host::DumpRecordedOps();
    }

    CGui3DEffect* m_effect = nullptr;
};

TEST_F(Gui3DEffectTest, EffectPlaysItsFramesCentredInTheShowRectangleThenEnds) {
    m_effect->Add("Sparkle", 1, 1);
    EXPECT_EQ(ShowOnce(6, 8), "effect Sparkle#0 21,13 10x10\n");
    host::AdvanceClock(100);
    EXPECT_EQ(ShowOnce(6, 8), "effect Sparkle#1 21,13 10x10\n");
    host::AdvanceClock(199);
    EXPECT_EQ(ShowOnce(6, 8), "effect Sparkle#2 21,13 10x10\n");
    host::AdvanceClock(1);
    EXPECT_EQ(ShowOnce(6, 8), "") << "one play of three frames lasts 300 ms";
    EXPECT_TRUE(m_effect->TestEffect("Sparkle")) << "a played-out effect stays present";
}

TEST_F(Gui3DEffectTest, EverPlayLoopsAnEffect) {
    m_effect->Add("Sparkle", 1, 1);
    m_effect->EverPlay(CGui3DEffect::PLAY_FOREVER);
    host::AdvanceClock(3 * 100 * 7 + 100);
    EXPECT_EQ(ShowOnce(0, 0), "effect Sparkle#1 15,5 10x10\n");
}

TEST_F(Gui3DEffectTest, EffectWithoutAnimationIsOutlinedWhilePlaying) {
    m_effect->Add("newserver_light", 1, 1);
    EXPECT_EQ(ShowOnce(10, 20), "effect newserver_light 10,20 40x20\n");
    host::AdvanceClock(1000);
    EXPECT_EQ(ShowOnce(10, 20), "");

    host::UseCanvas(host::CanvasKind::Raster);
    host::BeginFrame(BACKGROUND);
    m_effect->Add("glow", 1, 1);
    m_effect->Show(10, 20);
    int width = 0, height = 0;
    const auto pixels = host::GetRasterPixels(width, height);
    auto painted = [&](int x, int y) { return pixels[(static_cast<std::size_t>(y) * width + x) * 4] != 0; };
    EXPECT_TRUE(painted(10, 20));
    EXPECT_TRUE(painted(49, 39));
    EXPECT_FALSE(painted(30, 30)) << "only the outline is drawn";
}

} // namespace
} // namespace gfxtest
