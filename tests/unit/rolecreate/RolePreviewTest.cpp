// The creation preview on our role library and the virtual clock: camera frames, leave and show actions,
// rebuilds, missing records and the professions a layout builds.
#include <gtest/gtest.h>

#include <string>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "hostlibs/HostEnv.h"
#include "rolecreate/RolePreview.h"

namespace {

constexpr DWORD FRAME_MS = 16;

class RolePreviewTest : public testing::Test {
protected:
    void SetUp() override {
        for (const int key : {11, 12, 21, 22, 101})
            host::SetData("roledata." + std::to_string(key),
                          std::to_string(1000 + key) + " 1 2 3 4 5 6 7 8 90 Text");
        host::SetData("action.98", "300");
        host::SetData("action.99", "200");
    }
    void Frames(int n) {
        for (int i = 0; i < n; ++i) {
            host::AdvanceClock(FRAME_MS);
            m_preview.Show();
        }
    }
    /// The looks built so far, in order.
    static std::string Built() {
        std::string looks;
        for (const host::LogRecord& r : testlog::Records())
            if (r.message == "role.create") looks += testlog::Key(r, "look") + " ";
        return looks;
    }
    static std::string Played() {
        std::string actions;
        for (const host::LogRecord& r : testlog::Records())
            if (r.message == "role.play") actions += testlog::Key(r, "action") + " ";
        return actions;
    }

    TempClientDir m_dir; // no creation-record file: only the host data above
    CRolePreview m_preview{CRolePreview::SOptions{false, true}};
};

TEST_F(RolePreviewTest, TheCameraFrameIsRoundedElapsedTimeIn33MsSteps) {
    EXPECT_EQ(CRolePreview::CameraFrameAt(1000, 1016), 0);
    EXPECT_EQ(CRolePreview::CameraFrameAt(1000, 1017), 1);
    EXPECT_EQ(CRolePreview::CameraFrameAt(1000, 1000 + 33 * 10 + 16), 10);
    // The clock wraps: elapsed time stays right.
    EXPECT_EQ(CRolePreview::CameraFrameAt(0xFFFFFFF0u, 0x11u), 1);
}

TEST_F(RolePreviewTest, AChangeWhileIdleLeavesFirstAndBuildsWhenTheLeaveActionEnds) {
    m_preview.SetProfessionAndSex(10, 1, true);
    EXPECT_EQ(Built(), "1011 ");
    EXPECT_EQ(m_preview.GetState(), CRolePreview::STATE_SHOWING);
    Frames(20); // the show action (300 ms) ends: idle
    m_preview.SetProfessionAndSex(20, 1, false);
    EXPECT_EQ(m_preview.GetState(), CRolePreview::STATE_LEAVING);
    Frames(5);
    EXPECT_EQ(Built(), "1011 ") << "the new figure waits for the leave action";
    Frames(10);
    EXPECT_EQ(Built(), "1011 1021 ");
    EXPECT_EQ(Played(), "100 98 99 100 98 ");
    EXPECT_EQ(m_preview.GetState(), CRolePreview::STATE_SHOWING);
}

TEST_F(RolePreviewTest, AChangeDuringTheShowActionReplacesTheFigureAtOnce) {
    m_preview.SetProfessionAndSex(10, 1, true);
    Frames(3);
    m_preview.SetProfessionAndSex(20, 1, false);
    EXPECT_EQ(Built(), "1011 1021 ");
    EXPECT_EQ(m_preview.GetState(), CRolePreview::STATE_SHOWING);
}

TEST_F(RolePreviewTest, TheCameraRestartsOnASexChangeOnlyWhenNotForced) {
    host::SetClock(5000);
    m_preview.SetProfessionAndSex(10, 1, true);
    EXPECT_EQ(m_preview.GetCameraStart(), 0u) << "a forced application keeps the start time";
    host::SetClock(6000);
    m_preview.SetProfessionAndSex(10, 2, false);
    EXPECT_EQ(m_preview.GetCameraObj(), CRolePreview::CAMERA_FEMALE);
    EXPECT_EQ(m_preview.GetCameraStart(), 6000u);
    host::SetClock(7000);
    EXPECT_FALSE(m_preview.SetProfessionAndSex(10, 2, false));
    EXPECT_EQ(m_preview.GetCameraStart(), 6000u) << "the same sex again restarts nothing";
    m_preview.SetProfessionAndSex(20, 1, true);
    EXPECT_EQ(m_preview.GetCameraObj(), CRolePreview::CAMERA_MALE);
    EXPECT_EQ(m_preview.GetCameraStart(), 6000u);
}

TEST_F(RolePreviewTest, AMissingRecordOrProfession100KeepsTheFigure) {
    m_preview.SetProfessionAndSex(10, 1, true);
    m_preview.SetProfessionAndSex(30, 1, true);  // no record for 31
    m_preview.SetProfessionAndSex(100, 1, true); // the standard layout never builds 100
    m_preview.SetProfessionAndSex(20, 3, true);  // no such sex
    EXPECT_EQ(Built(), "1011 ");
    EXPECT_EQ(Played(), "100 98 98 98 98 ");
    CRolePreview english{CRolePreview::SOptions{true, false}};
    english.SetProfessionAndSex(100, 1, true);
    EXPECT_EQ(Built(), "1011 1101 ");
}

TEST_F(RolePreviewTest, TheFigureKeepsItsScaleAndFallsBackToIdle) {
    m_preview.SetProfessionAndSex(10, 1, true);
    EXPECT_EQ(m_preview.GetScalePercent(), 90);
    Frames(19);
    EXPECT_EQ(testlog::Count("HOST", "role.idle"), 1);
    Frames(200); // idle loops: no further fall back
    EXPECT_EQ(testlog::Count("HOST", "role.idle"), 1);
    EXPECT_EQ(m_preview.GetState(), CRolePreview::STATE_FREE);
}

} // namespace
