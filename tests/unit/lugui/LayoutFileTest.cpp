// The layout file as the toolkit reads it: parsing and its tolerance, the language fallback, the keys applied
// to windows, and the geometry that follows from the rectangles.
#include <gmock/gmock.h>

#include "GuiTestFixture.h"

namespace luguitest {
namespace {

using LayoutFileTest = GuiTest;

TEST_F(LayoutFileTest, SectionsAndKeysMatchWithoutRegardToCase) {
    Start("[dialog2000]\nrect = 100 50 300 200\n[DIALOG2000.10]\nTEXT = Go\nfontcolor = FF00FF00\n");
    const LuGui::CLuLayoutRecord* pRecord = m_mgr->FindLayout("Dialog2000.10");
    ASSERT_NE(pRecord, nullptr);
    EXPECT_EQ(m_mgr->FindLayout("dialog2000.10"), pRecord);
    EXPECT_STREQ(pRecord->GetValue("Text"), "Go");
    EXPECT_STREQ(pRecord->GetValue("tExT"), "Go");
    EXPECT_EQ(pRecord->GetValue("Tip"), nullptr);
    EXPECT_EQ(pRecord->GetInt("Frame", -7), -7) << "an absent key gives the default";

    EXPECT_EQ(m_dlg.m_button.GetLayoutRecord(), pRecord);
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "Go");
    EXPECT_EQ(m_dlg.m_button.GetFontColor(), 0xFF00FF00u);
    EXPECT_EQ(m_dlg.GetWindowRect().left, 100);
}

TEST_F(LayoutFileTest, RepeatedSectionsAndKeysKeepTheFirstAndAreLogged) {
    Start("[Dialog2000]\n"
          "Rect = 100 50 300 200\n"
          "RECT = 1 1 1 1\n"
          "[Dialog2000.10]\n"
          "Text = First\n"
          "[DIALOG2000.10]\n"
          "Text = Second\n"
          "Tip = only in the repeat\n");
    EXPECT_EQ(m_dlg.GetWindowRect().left, 100);
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "First");
    EXPECT_STREQ(m_dlg.m_button.GetTipText(), "") << "a repeated section adds nothing";
    EXPECT_EQ(m_dlg.m_button.GetLayoutRecord()->GetKeyCount(), 1u);
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line 3: key RECT repeated, first kept"), 1);
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line 6: section [DIALOG2000.10] repeated"), 1);
}

TEST_F(LayoutFileTest, MalformedLinesAreSkippedAndTheRestIsRead) {
    Start("; comment\n"
          "# comment\n"
          "[Dialog2000]\n"
          "Rect = 100 50 300 200\n"
          "this line has no equals sign\n"
          "= value without a key\n"
          "[]\n"
          "Text = outside any section\n"
          "[Dialog2000.10\n"
          "Text = under a broken section\n"
          "\n"
          "  [Dialog2000.10]  \n"
          "\tText =  Go  \n");
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line 5: no key"), 1);
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line 6: no key"), 1);
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line 7: bad section"), 1);
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line 9: bad section"), 1);
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui.ini, line"), 4) << "comments and blank lines are quiet";
    EXPECT_EQ(m_dlg.GetLayoutRecord()->GetValue("Text"), nullptr);
    EXPECT_EQ(m_dlg.GetWidth(), 300);
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "Go") << "blanks around names and values are dropped";
}

TEST_F(LayoutFileTest, MissingLanguageFileFallsBackToTheDefaultFile) {
    m_dir.Write("FlashGui.ini", "[Dialog2000.10]\nText = Default\n");
    EXPECT_TRUE(StartManager("FlashGui_3.ini"));
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui_3.ini missing, reading FlashGui.ini"), 1);
    Register(m_dlg);
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "Default");
}

TEST_F(LayoutFileTest, ALanguageChangeReadsThatLanguagesFileAndKeepsTextsTheSystemSet) {
    host::SetData("languages", "0:Base|1:Missing|2:Deutsch");
    host::SetData("language.index", "0");
    const std::string section = "[Dialog2000." + std::to_string(IDC_BUTTON) + "]\n";
    const std::string label = "[Dialog2000." + std::to_string(IDC_STATIC) + "]\n";
    m_dir.Write("FlashGui.ini", section + "Text = Go\nTip = Go on\n" + label + "Text = Label\n");
    m_dir.Write("FlashGui_2.ini", section + "Text = Los\nTip = Weiter\n" + label + "Text = Etikett\n");
    ASSERT_TRUE(StartManager("FlashGui.ini"));
    Register(m_dlg);
    m_mgr->Process();
    m_dlg.m_static.SetWindowTextA("set by the system");

    host::SetData("language.index", "2");
    m_mgr->Process();
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "Los");
    m_dlg.m_button.PreInitData_Tip();
    EXPECT_STREQ(m_dlg.m_button.GetTipText(), "Weiter") << "what a reset reads again comes from the new file";
    EXPECT_STREQ(m_dlg.m_static.GetWindowTextA(), "set by the system");

    host::SetData("language.index", "1");
    m_mgr->Process();
    EXPECT_EQ(testlog::Count("MSG", "layout FlashGui_1.ini missing, reading FlashGui.ini"), 1);
    EXPECT_STREQ(m_dlg.m_button.GetWindowTextA(), "Go");
    host::SetData("languages", "");
    host::SetData("language.index", "");
}

TEST_F(LayoutFileTest, WindowKeysAreAppliedAndTheRecordStaysReachable) {
    Start("[Dialog2000]\n"
          "Rect = 100 50 300 200\n"
          "[Dialog2000.10]\n"
          "Kind = Button\n"
          "Rect = 10, 20, 80, 30\n"
          "Font = 16\n"
          "FontColor = FF112233\n"
          "Align = center\n"
          "MultiLine = 1\n"
          "Wrap = yes\n"
          "Background = Btn4\n"
          "BackgroundOffset = 3 -4\n"
          "Frame = 2\n"
          "Tip = Press me\n"
          "[Dialog2000.11]\n"
          "Font = 6 12\n"
          "Align = 2\n"
          "Visible = 0\n"
          "[Dialog2000.15]\n"
          "Align = right\n"
          "Enabled = 0\n"
          "HideState = 1\n"
          "BackgroundFile = ani/Other.ani\n");
    const LuGui::CLuButton& btn = m_dlg.m_button;
    ASSERT_NE(btn.GetLayoutRecord(), nullptr);
    EXPECT_STREQ(btn.GetLayoutRecord()->GetName(), "Dialog2000.10");
    EXPECT_STREQ(btn.GetLayoutRecord()->GetValue("Kind"), "Button");
    EXPECT_STREQ(m_dlg.GetLayoutRecord()->GetName(), "Dialog2000");
    EXPECT_EQ(btn.GetWidth(), 80);
    EXPECT_EQ(btn.GetHeight(), 30);
    EXPECT_EQ(btn.GetFontSize().cx, 8) << "one number is the height, the width is half of it";
    EXPECT_EQ(btn.GetFontSize().cy, 16);
    EXPECT_EQ(btn.GetFontColor(), 0xFF112233u);
    EXPECT_EQ(btn.GetAlign(), LuGui::LU_ALIGN_CENTER);
    EXPECT_EQ(btn.GetMultiLine(), 1);
    EXPECT_TRUE(btn.IsWrap());
    EXPECT_STREQ(btn.GetBackGroundAni(), "Btn4");
    EXPECT_TRUE(btn.IsBackGroundEnabled());
    EXPECT_STREQ(btn.GetBackGroundAniFile(), "ani/Control.ani");
    EXPECT_EQ(btn.GetBackGroundOffset().x, 3);
    EXPECT_EQ(btn.GetBackGroundOffset().y, -4);
    EXPECT_EQ(btn.GetCurFrame(), 2);
    EXPECT_STREQ(btn.GetTipText(), "Press me");

    const LuGui::CLuCheck& check = m_dlg.m_check;
    EXPECT_EQ(check.GetFontSize().cx, 6);
    EXPECT_EQ(check.GetFontSize().cy, 12);
    EXPECT_EQ(check.GetAlign(), LuGui::LU_ALIGN_RIGHT);
    EXPECT_FALSE(check.IsWindowVisible());

    const LuGui::CLuStatic& label = m_dlg.m_static;
    EXPECT_EQ(label.GetAlign(), LuGui::LU_ALIGN_RIGHT);
    EXPECT_FALSE(label.IsWindowEnabled());
    EXPECT_TRUE(label.IsHideState());
    EXPECT_STREQ(label.GetBackGroundAniFile(), "ani/Other.ani");
    EXPECT_FALSE(label.IsBackGroundEnabled()) << "a file alone does not switch the background on";
}

TEST_F(LayoutFileTest, ControlBoundAsAnotherKindIsLogged) {
    Start("[Dialog2000.10]\nKind = Edit\n[Dialog2000.11]\nKind = Check\n");
    EXPECT_EQ(testlog::Count("MSG", "layout Dialog2000.10: a Edit is bound as a Button"), 1);
    EXPECT_EQ(testlog::Count("MSG", "layout Dialog2000.11"), 0);
    EXPECT_STREQ(m_dlg.m_button.GetLayoutRecord()->GetName(), "Dialog2000.10") << "it binds all the same";
}

// ---- geometry --------------------------------------------------------------------------------------

} // namespace
} // namespace luguitest
