// The registration dialog around its page: placement from the page's record and the frame numbers, and every
// way it is hidden telling the host and closing the page.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SimulatorFixture.h"
#include "controls/WebBrowserEn.h"
#include "hostlibs/HostEnv.h"
#include "login/DlgWebRegisterEn.h"

namespace {

constexpr std::uint64_t HOST_WINDOW = 1;

class WebRegisterTest : public SimulatorFixture {
protected:
    void SetUp() override {
        host::SetData("layout.1000", "0 0 800 600");
        host::SetData("roletext.1010113", "");
        Create(0, "8000102=x\n", "", HOST_WINDOW);
    }
    void TearDown() override {
        host::SetData("layout.1000", "");
        host::SetData("roletext.1010113", "");
        SimulatorFixture::TearDown();
    }
    CDlgWebRegisterEn& Page() { return m_sim->Dialogs().m_dlgWebRegister; }
    void Open() {
        m_sim->OpenWebRegisterPage(CDlgWebRegisterEn::PAGE_KIND_BROWSER, 1000, "https://example.com/r");
    }
};

TEST_F(WebRegisterTest, DialogIsSizedAroundThePageAndCentredAboveTheMiddle) {
    Open();
    EXPECT_EQ(Page().GetPos().x, 100);
    EXPECT_EQ(Page().GetPos().y, 46);
    EXPECT_EQ(Page().GetWidth(), 824);
    EXPECT_EQ(Page().GetHeight(), 645);
    const RECT rcClose = Page().GetControl(CDlgWebRegisterEn::IDC_CLOSE)->GetWindowRect();
    EXPECT_EQ(rcClose.left, 100 + 824 - 45);
    EXPECT_EQ(rcClose.top, 46 + 2);
    Page().ShowWindow(SW_HIDE);
    host::SetData("roletext.1010113", "0 0 10 20 -100"); // fewer extras, lowered instead of lifted
    Open();
    EXPECT_EQ(Page().GetWidth(), 800);
    EXPECT_EQ(Page().GetPos().y, 84 + 100);
    EXPECT_EQ(Page().GetControl(CDlgWebRegisterEn::IDC_CLOSE)->GetWindowRect().top, 84 + 100 + 20);
}

TEST_F(WebRegisterTest, WithoutThePageRecordTheDialogKeepsItsPlaceAndThePageItsDefault) {
    host::SetData("layout.1000", "");
    const RECT before = Page().GetWindowRect();
    Open();
    EXPECT_EQ(Page().GetWindowRect().left, before.left);
    EXPECT_EQ(Page().GetWidth(), before.right - before.left);
    EXPECT_EQ(Page().GetPos().x, 0);
    EXPECT_FALSE(m_sim->Dialogs().m_webBrowser.IsOpen()) << "the address was not taken without a record";
}

TEST_F(WebRegisterTest, EveryHideTellsTheHostAndClosesThePage) {
    Open();
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CLEAR_KEY_INPUT 0"});
    ASSERT_TRUE(m_sim->Dialogs().m_webBrowser.IsOpen());
    Page().ShowWindow(SW_HIDE); // not through the close button
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CLEAR_KEY_INPUT 1"});
    EXPECT_FALSE(m_sim->Dialogs().m_webBrowser.IsOpen());
    EXPECT_EQ(host::GetData("gamedata.webswitch"), "0");
    Open();
    m_sim->SetRegisterOpen(true);
    TakeCommands();
    Page().WindowProc(WM_COMMAND, CDlgWebRegisterEn::IDC_CLOSE, 0);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CLEAR_KEY_INPUT 1"});
    EXPECT_FALSE(m_sim->IsRegisterOpen()) << "the close button clears the registration state";
    EXPECT_FALSE(m_sim->IsWebRegisterVisible());
}

} // namespace
