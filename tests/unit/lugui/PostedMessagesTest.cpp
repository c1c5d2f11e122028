// Messages posted to windows: delivered in order on the manager's Process, from any thread, never to a window
// that no longer exists.
#include <thread>

#include "GuiTestFixture.h"
#include "hostlibs/HostGui.h"

namespace {

using luguitest::GuiTest;

constexpr UINT WM_POSTED = WM_USER + 77;

class PostedMessagesTest : public GuiTest {
protected:
    /// The posted messages a dialog received, as their first parameters.
    static std::vector<WPARAM> Received(luguitest::TestDialog& dlg) {
        std::vector<WPARAM> out;
        const std::string prefix = "WindowProc " + std::to_string(WM_POSTED) + ' ';
        for (const std::string& call : dlg.TakeCalls())
            if (call.rfind(prefix, 0) == 0) out.push_back(std::stoul(call.substr(prefix.size())));
        return out;
    }
};

TEST_F(PostedMessagesTest, PostsFromOtherThreadsArriveInOrderAtTheNextProcess) {
    Start();
    std::thread worker([&] {
        for (WPARAM n = 1; n <= 3; ++n) m_dlg.PostMessageA(WM_POSTED, n, 0);
    });
    worker.join();
    m_other.PostMessageA(WM_POSTED, 9, 0);
    EXPECT_TRUE(host::WaitForPostedMessage(0));
    EXPECT_TRUE(Received(m_dlg).empty()); // nothing before the frame
    m_mgr->Process();
    EXPECT_EQ(Received(m_dlg), (std::vector<WPARAM>{1, 2, 3}));
    EXPECT_EQ(Received(m_other), (std::vector<WPARAM>{9}));
    EXPECT_FALSE(host::WaitForPostedMessage(0));
}

TEST_F(PostedMessagesTest, AWindowDestroyedBeforeTheFrameGetsNothing) {
    Start();
    {
        luguitest::TestDialog doomed(luguitest::IDD_OTHER);
        ASSERT_TRUE(m_mgr->RegisterDialog(&doomed, 0, 0));
        doomed.PostMessageA(WM_POSTED, 1, 0);
    }
    m_dlg.PostMessageA(WM_POSTED, 2, 0);
    m_mgr->Process();
    EXPECT_EQ(Received(m_dlg), (std::vector<WPARAM>{2}));
}

} // namespace
