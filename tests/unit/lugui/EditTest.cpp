// Edit boxes: the keyboard focus, typed UTF-16 characters stored as UTF-8, deleting whole characters, the
// byte limit, the selection and caret keys, the change notifications, passwords and the blinking caret.
#include <gmock/gmock.h>

#include "GuiTestFixture.h"

namespace luguitest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// "é" is two bytes in UTF-8, "€" three, and U+1F600 (typed as a surrogate pair) four.
constexpr const char* E_ACUTE = "\xC3\xA9";
constexpr const char* EURO = "\xE2\x82\xAC";
constexpr const char* GRIN = "\xF0\x9F\x98\x80";

class EditTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        Start();
        Open(m_dlg);
    }
    /// Gives the edit of dialog 2000 the focus as a player would, and forgets what was noted so far.
    void FocusEdit() {
        ClickOn(m_dlg.m_edit);
        ASSERT_TRUE(m_dlg.m_edit.IsFocus());
        m_dlg.m_edit.TakeNotes();
    }
    std::string Text() const {
        char buf[64];
        m_dlg.m_edit.GetWindowText(buf, sizeof buf);
        return buf;
    }
    int SelStart() const { return static_cast<int>(m_dlg.m_edit.GetSel() & 0xFFFF); }
    int SelEnd() const { return static_cast<int>(m_dlg.m_edit.GetSel() >> 16); }
};

// ---- focus -----------------------------------------------------------------------------------------

TEST_F(EditTest, PressGivesTheFocusUntilAnotherEditTakesItOrTheDialogHides) {
    const std::string setFocus = "WindowProc 273 " + std::to_string(MAKEWPARAM(IDC_EDIT, EN_SETFOCUS)) + " 0";
    EXPECT_FALSE(m_dlg.m_edit.IsFocus());
    ClickOn(m_dlg.m_edit);
    EXPECT_TRUE(m_dlg.m_edit.IsFocus());
    EXPECT_EQ(m_mgr->GetFocusEdit(), &m_dlg.m_edit);
    EXPECT_THAT(m_dlg.TakeCalls(), ElementsAre(setFocus)) << "the dialog hears of the focus";
    ClickOn(m_dlg.m_edit);
    EXPECT_THAT(m_dlg.TakeCalls(), IsEmpty()) << "only when the focus arrives";

    ClickOn(m_dlg.m_button);
    EXPECT_TRUE(m_dlg.m_edit.IsFocus()) << "a button does not take the focus";

    Open(m_other);
    ClickOn(m_other.m_edit);
    EXPECT_TRUE(m_other.m_edit.IsFocus());
    EXPECT_FALSE(m_dlg.m_edit.IsFocus());

    m_other.ShowWindow(SW_HIDE);
    EXPECT_FALSE(m_other.m_edit.IsFocus());
    EXPECT_EQ(m_mgr->GetFocusEdit(), nullptr);
}

TEST_F(EditTest, HidingTheFocusedEditDropsTheFocusAtOnce) {
    FocusEdit();
    m_dlg.m_edit.ShowWindow(SW_HIDE);
    EXPECT_FALSE(m_dlg.m_edit.IsFocus());
    EXPECT_EQ(m_mgr->GetFocusEdit(), nullptr) << "not only when the next key comes";
    m_dlg.m_edit.ShowWindow(SW_SHOW);
    Type('a');
    EXPECT_EQ(Text(), "") << "showing it again does not give the focus back";

    Open(m_other);
    ClickOn(m_other.m_edit);
    m_dlg.m_edit.ShowWindow(SW_HIDE);
    EXPECT_TRUE(m_other.m_edit.IsFocus()) << "hiding another edit leaves the focus where it is";
}

// ---- typing ----------------------------------------------------------------------------------------

TEST_F(EditTest, TypedCharactersAreStoredAsUtf8) {
    FocusEdit();
    Type('a');
    Type(0xE9);
    Type(0xD83D);
    EXPECT_EQ(Text(), std::string("a") + E_ACUTE) << "half a pair adds nothing yet";
    Type(0xDE00);
    Type(0x20AC);
    EXPECT_EQ(Text(), std::string("a") + E_ACUTE + GRIN + EURO);
    EXPECT_EQ(SelStart(), 1 + 2 + 4 + 3);
    EXPECT_EQ(SelEnd(), SelStart());

    Type(0xDE00);
    Type(VK_RETURN);
    Type(0x1B);
    Type(0x7F);
    EXPECT_EQ(Text(), std::string("a") + E_ACUTE + GRIN + EURO)
        << "lone halves and control codes are ignored";
}

TEST_F(EditTest, WithChineseInputOffOnlyWhatAnInputMethodWritesIsRefused) {
    FocusEdit();
    m_dlg.m_edit.EnableChinese(false);
    for (UINT ch : {0x4E2DU, 0x3042U, 0xAC00U, 0xFF21U, 0xD840U, 0xDC00U}) Type(ch); // 中 あ 가 Ａ 𠀀
    Type(0xE9);
    EXPECT_EQ(Text(), E_ACUTE);
    m_dlg.m_edit.EnableChinese(true);
    Type(0x4E2D);
    EXPECT_EQ(Text(), std::string(E_ACUTE) + "\xE4\xB8\xAD");
}

TEST_F(EditTest, BackspaceRemovesAWholeCharacter) {
    FocusEdit();
    for (UINT ch : {UINT{'a'}, UINT{0xE9}, UINT{0xD83D}, UINT{0xDE00}}) Type(ch);
    Type(VK_BACK);
    EXPECT_EQ(Text(), std::string("a") + E_ACUTE);
    Type(VK_BACK);
    EXPECT_EQ(Text(), "a");
    EXPECT_EQ(SelStart(), 1);
    Type(VK_BACK);
    m_dlg.m_edit.TakeNotes();
    Type(VK_BACK);
    EXPECT_EQ(Text(), "");
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), IsEmpty()) << "nothing to delete, nothing to tell";
}

// ---- the byte limit --------------------------------------------------------------------------------

TEST_F(EditTest, CharacterThatWouldPassTheLimitIsRefused) {
    FocusEdit();
    EXPECT_EQ(m_dlg.m_edit.GetLimitText(), LuGui::CLuEdit::DEFAULT_LIMIT_TEXT);
    m_dlg.m_edit.SetLimitText(4);
    Type('a');
    Type('b');
    Type('c');
    m_dlg.m_edit.TakeNotes();
    Type(0xE9);
    EXPECT_EQ(Text(), "abc") << "two bytes do not fit in one";
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), IsEmpty());
    Type('d');
    EXPECT_EQ(Text(), "abcd");
    Type('e');
    EXPECT_EQ(Text(), "abcd");

    m_dlg.m_edit.SetSel(0, 2);
    Type(0xE9);
    EXPECT_EQ(Text(), std::string(E_ACUTE) + "cd") << "replacing a selection frees its bytes";
}

TEST_F(EditTest, SetWindowTextCutsAtTheLimitBetweenCharacters) {
    LuGui::CLuEdit& edit = m_dlg.m_edit;
    edit.SetLimitText(4);
    edit.SetWindowTextA((std::string("ab") + EURO).c_str()); // 5 bytes; the limit falls inside the euro
    EXPECT_EQ(Text(), "ab");
    EXPECT_EQ(SelStart(), 2) << "the caret goes to the end";
    EXPECT_EQ(SelEnd(), 2);
    edit.SetWindowTextA((std::string("a") + EURO).c_str());
    EXPECT_EQ(Text(), std::string("a") + EURO) << "exactly the limit fits";

    edit.SetWindowTextA((std::string("a") + E_ACUTE).c_str());
    edit.SetLimitText(2);
    EXPECT_EQ(Text(), "a") << "lowering the limit cuts the text the same way";
    edit.SetLimitText(0);
    EXPECT_EQ(edit.GetLimitText(), 1);
    edit.SetWindowTextA(nullptr);
    EXPECT_EQ(Text(), "");
}

// ---- selection and keys ----------------------------------------------------------------------------

TEST_F(EditTest, CaretKeysStepOverWholeCharacters) {
    FocusEdit();
    m_dlg.m_edit.SetWindowTextA((std::string("a") + E_ACUTE + EURO).c_str()); // bytes: 1 + 2 + 3
    Key(VK_LEFT);
    EXPECT_EQ(SelEnd(), 3);
    Key(VK_LEFT);
    EXPECT_EQ(SelEnd(), 1);
    Key(VK_LEFT);
    Key(VK_LEFT);
    EXPECT_EQ(SelEnd(), 0);
    Key(VK_END);
    EXPECT_EQ(SelStart(), 6);
    Key(VK_RIGHT);
    EXPECT_EQ(SelEnd(), 6);
    Key(VK_HOME);
    EXPECT_EQ(SelEnd(), 0);

    Key(VK_DELETE);
    EXPECT_EQ(Text(), std::string(E_ACUTE) + EURO);
    Key(VK_RIGHT);
    EXPECT_EQ(SelEnd(), 2);
    Key(VK_DELETE);
    EXPECT_EQ(Text(), E_ACUTE);
    m_dlg.m_edit.TakeNotes();
    Key(VK_DELETE);
    EXPECT_EQ(Text(), E_ACUTE);
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), IsEmpty()) << "delete at the end changes nothing";
}

TEST_F(EditTest, TextChangeIsToldBeforeTheSelectionChange) {
    FocusEdit();
    Type('x');
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), ElementsAre("text", "sel"));
    Type(VK_BACK);
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), ElementsAre("text", "sel"));
    m_dlg.m_edit.SetWindowTextA("ab");
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), IsEmpty()) << "only typing is told";
    Key(VK_LEFT);
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), ElementsAre("sel"));
    Key(VK_DELETE);
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), ElementsAre("text", "sel"));
    Key(VK_UP);
    EXPECT_THAT(m_dlg.m_edit.TakeNotes(), IsEmpty());
}

// ---- drawing ---------------------------------------------------------------------------------------

TEST_F(EditTest, PasswordEditDrawsOneStarPerCharacter) {
    m_dlg.m_edit.SetPassword(true);
    m_dlg.m_edit.SetWindowTextA((std::string("a") + E_ACUTE + GRIN).c_str());
    const std::vector<host::DrawOp> texts = OpsOfKind(Draw(m_dlg.m_edit), "text");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "***");
    EXPECT_EQ(texts[0].size, 16);
    EXPECT_EQ(Text(), std::string("a") + E_ACUTE + GRIN) << "only the drawing hides the text";
}

} // namespace
} // namespace luguitest
