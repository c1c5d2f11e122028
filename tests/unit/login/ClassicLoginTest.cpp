// The classic login on a simulator: keyboard cells, masks and the picture's reload, the QR picture, presses
// that reach two handlers, the token-only and platform layouts, the host's fields and version, the quick
// entry (the keyboard's commands, the tabs and the switches are scenarios in tests/scenarios/login).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "SimulatorFixture.h"
#include "hostlibs/HostCanvas.h"
#include "platform/Graphics.h"

namespace {

constexpr const char* STRINGS = "3110000=Version %s\n3110006=Added\n3110007=Present\n4100009=0 -80\n"
                                "4000002=9 7\n4000003=4 5\n4000009=158 158\n";
constexpr const char* LAYOUT = "[Dialog1003]\nRect = 0 0 520 570\n"
                               "[Dialog1003.1013]\nKind = Edit\nRect = 150 112 240 28\n"
                               "[Dialog1003.1014]\nKind = Edit\nRect = 150 152 240 28\n"
                               "[Dialog1003.1015]\nKind = Edit\nRect = 150 192 240 28\n"
                               "[Dialog1003.1016]\nKind = Edit\nRect = 150 232 240 28\n"
                               "[Dialog1003.1126]\nRect = 40 232 100 28\n"
                               "[Dialog1003.1006]\nRect = 394 232 28 28\n"
                               "[Dialog1003.1101]\nRect = 50 330 390 120\n"
                               "[Dialog1003.1141]\nRect = 172 196 176 172\n"
                               "[Dialog1003.1150]\nRect = 182 472 100 20\n";
// The keyboard area on the screen (the dialog stands at 0, 0) and the centre of cell (column 4, row 2).
constexpr RECT AREA{50, 330, 440, 450};
constexpr int CELL_4_2_X = 50 + 4 * 30 + 15, CELL_4_2_Y = 330 + 2 * 30 + 15;

// 24-bit bitmap file of one colour.
std::string BitmapFile(int nWidth, int nHeight) {
    const int nRow = (nWidth * 3 + 3) / 4 * 4;
    std::string bytes(54 + static_cast<std::size_t>(nRow * nHeight), '\x40');
    auto put = [&bytes](std::size_t at, std::uint32_t v, int n) {
        for (int i = 0; i < n; ++i) bytes[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(2, static_cast<std::uint32_t>(bytes.size()), 4);
    put(6, 0, 4);
    put(10, 54, 4);
    put(14, 40, 4);
    put(18, static_cast<std::uint32_t>(nWidth), 4);
    put(22, static_cast<std::uint32_t>(nHeight), 4);
    put(26, 1, 2);
    put(28, 24, 2);
    for (std::size_t i = 30; i < 54; ++i) bytes[i] = 0;
    return bytes;
}

class FakeSources final : public IClassicLoginSources {
public:
    ~FakeSources() {
        if (m_pBitmap) m_pBitmap->Release();
    }
    void RenderQRKey(const char* szKey, int nScale) override {
        m_keys.push_back(std::string(szKey) + "@" + std::to_string(nScale));
        if (!m_pBitmap) m_pBitmap = MyBitmapCreateEmpty(63, 63);
    }
    CMyBitmap* GetQRBitmap() const override { return m_pBitmap; }
    void StartSoftKeyDownload(LuGui::CLuBaseWindow* pTarget, const char* szUrl) override {
        m_targets.push_back(pTarget);
        m_urls.push_back(szUrl);
    }

    std::vector<std::string> m_keys, m_urls;
    std::vector<LuGui::CLuBaseWindow*> m_targets;
    CMyBitmap* m_pBitmap = nullptr;
};

class ClassicLoginTest : public SimulatorFixture {
protected:
    void Start(bool bQRLogin = true, bool bWeChat = true) {
        host::SetData("gamedata.qrlogin", bQRLogin ? "1" : "0");
        host::SetData("gamedata.wechat", bWeChat ? "1" : "0");
        m_dir.Write("FlashGui.ini", LAYOUT);
        m_dir.Write("ini/ServerState.ini", "[loginUrl]\nsoftKeySite=http://127.0.0.1:8080/keys/\n");
        Create(0, STRINGS);
        m_sim->SetSceneType(EST_LOGIN);
        Set("VAR_SERVER_AREA", "1#East|");
        Set("VAR_SERVER_NAME", "2#Dragon|Tiger|");
        Classic().SetSources(&m_sources);
        Set("VAR_PLAYLOGIN", "0 1");
        ASSERT_TRUE(Classic().IsWindowVisible());
        TakeCommands();
    }
    CDlgFlashLogin& Classic() { return m_sim->Dialogs().m_dlgFlashLogin; }
    const LuGui::CLuCtrl* Ctrl(UINT nId) { return Classic().GetControl(nId); }
    bool Visible(UINT nId) { return Ctrl(nId) && Ctrl(nId)->IsWindowVisible(); }
    void Command(UINT nId) { Classic().WindowProc(WM_COMMAND, nId, 0); }
    void Mouse(UINT uMsg, int x, int y) {
        host::SetCursor(x, y);
        m_sim->WindowProc(nullptr, uMsg, 0, MAKELPARAM(x, y));
    }
    void Press(int x, int y) {
        Mouse(WM_LBUTTONDOWN, x, y);
        Mouse(WM_LBUTTONUP, x, y);
    }
    std::vector<host::DrawOp> Frame() {
        host::UseCanvas(host::CanvasKind::Recording);
        host::BeginFrame();
        m_sim->Show();
        return host::GetRecordedOps();
    }
    static std::vector<host::DrawOp> OfKind(const std::vector<host::DrawOp>& ops, const std::string& kind) {
        std::vector<host::DrawOp> found;
        std::copy_if(ops.begin(), ops.end(), std::back_inserter(found),
                     [&kind](const host::DrawOp& op) { return op.kind == kind; });
        return found;
    }

    FakeSources m_sources;
};

TEST(SoftKeyboard, CellsAreThirtyPixelsThirteenToARowAndNumberedFromOne) {
    EXPECT_EQ(CSoftKeyboard::KeyNumber(4, 2), 31);
    EXPECT_EQ(CSoftKeyboard::KeyNumber(0, 0), 1);
    EXPECT_EQ(CSoftKeyboard::KeyNumber(12, 0), 13);
    EXPECT_EQ(CSoftKeyboard::KeyNumber(0, 1), 14);

    CSoftKeyboard keyboard;
    const struct {
        POINT pt;
        int col, row;
    } moves[] = {{{50, 330}, 0, 0},    {{79, 359}, 0, 0},    {{80, 360}, 1, 1},  {{439, 449}, 12, 3},
                 {{440, 400}, -1, -1}, {{100, 450}, -1, -1}, {{49, 330}, -1, -1}};
    for (const auto& m : moves) {
        SCOPED_TRACE(std::to_string(m.pt.x) + "," + std::to_string(m.pt.y));
        keyboard.TrackMouse(AREA, m.pt);
        EXPECT_EQ(keyboard.GetHoverCol(), m.col);
        EXPECT_EQ(keyboard.GetHoverRow(), m.row);
    }
    // An area wider than thirteen cells has none right of them: they would carry the next row's numbers.
    keyboard.TrackMouse(RECT{0, 0, 600, 30}, POINT{13 * 30 + 1, 5});
    EXPECT_EQ(keyboard.GetHoverCol(), -1);

    keyboard.TrackMouse(AREA, POINT{CELL_4_2_X, CELL_4_2_Y});
    EXPECT_EQ(keyboard.KeyAt(AREA, POINT{CELL_4_2_X, CELL_4_2_Y}), 31);
    EXPECT_EQ(keyboard.KeyAt(AREA, POINT{60, 340}), 31) << "the press sends the cell of the last move";
    EXPECT_EQ(keyboard.KeyAt(AREA, POINT{20, 20}), std::nullopt);
    keyboard.ClearHover();
    EXPECT_EQ(keyboard.KeyAt(AREA, POINT{CELL_4_2_X, CELL_4_2_Y}), std::nullopt);
}

TEST_F(ClassicLoginTest, KeyboardIsMaskedWithoutTheFocusAndHidesTheHoveredCellWithIt) {
    Start();
    Set("VAR_SHOWSOFTKB", "1");
    auto blocks = OfKind(Frame(), "block");
    ASSERT_EQ(blocks.size(), 1u);
    EXPECT_EQ(blocks[0].colour, CSoftKeyboard::UNFOCUSED_MASK);
    EXPECT_EQ(std::vector<int>({blocks[0].x, blocks[0].y, blocks[0].w, blocks[0].h}),
              std::vector<int>({50, 330, 390, 120}));

    Set("VAR_FOCUSTOFLASH", "2");
    EXPECT_TRUE(OfKind(Frame(), "block").empty()) << "focused, no cell under the mouse";
    Mouse(WM_MOUSEMOVE, CELL_4_2_X, CELL_4_2_Y);
    blocks = OfKind(Frame(), "block");
    ASSERT_EQ(blocks.size(), 1u);
    EXPECT_EQ(blocks[0].colour, CSoftKeyboard::HOVER_MASK);
    EXPECT_EQ(std::vector<int>({blocks[0].x, blocks[0].y, blocks[0].w, blocks[0].h}),
              std::vector<int>({50 + 120, 330 + 60, 30, 30}));

    Set("VAR_SHOWSOFTKB", "0");
    EXPECT_FALSE(Visible(CDlgFlashLogin::IDC_SOFTKEY_AREA));
    EXPECT_FALSE(Visible(CDlgFlashLogin::IDC_SOFTKEY_SWITCH));
    EXPECT_TRUE(OfKind(Frame(), "block").empty());
}

TEST_F(ClassicLoginTest, PictureKeyIsFetchedFromTheSiteAndOnlyASuccessfulDownloadReplacesThePicture) {
    Start();
    Set("VAR_PICKEY", "k1.jpg");
    Set("VAR_PICKEY", std::string(3000, 'a').c_str());
    ASSERT_EQ(m_sources.m_urls.size(), 2u);
    EXPECT_EQ(m_sources.m_urls[0], "http://127.0.0.1:8080/keys/k1.jpg");
    EXPECT_EQ(m_sources.m_urls[1].size(), 1023u) << "cut to the address buffer";
    EXPECT_EQ(m_sources.m_targets[0], &Classic());

    m_dir.Write("data/softkey.jpg", BitmapFile(390, 120));
    Classic().WindowProc(CDlgFlashLogin::WM_SOFTKEY_DOWNLOADED, 1, 0);
    ASSERT_NE(Classic().GetSoftKeyboard().GetPicture(), nullptr);
    EXPECT_EQ(Classic().GetSoftKeyboard().GetPicture()->GetWidth(), 390);
    m_dir.Write("data/softkey.jpg", BitmapFile(60, 30));
    Classic().WindowProc(CDlgFlashLogin::WM_SOFTKEY_DOWNLOADED, 0, 0);
    EXPECT_EQ(Classic().GetSoftKeyboard().GetPicture()->GetWidth(), 390) << "a failure keeps the picture";
    Classic().WindowProc(CDlgFlashLogin::WM_SOFTKEY_DOWNLOADED, 1, 0);
    EXPECT_EQ(Classic().GetSoftKeyboard().GetPicture()->GetWidth(), 60) << "each success reads the file anew";

    Set("VAR_SHOWSOFTKB", "1");
    const auto bitmaps = OfKind(Frame(), "bitmap");
    ASSERT_EQ(bitmaps.size(), 1u);
    EXPECT_EQ(std::vector<int>({bitmaps[0].x, bitmaps[0].y}), std::vector<int>({50, 330}));
    Classic().ShowWindow(SW_HIDE);
    EXPECT_EQ(Classic().GetSoftKeyboard().GetPicture(), nullptr) << "hiding releases it";

    m_dir.Write("ini/ServerState.ini", "[loginUrl]\nsoftKeySite=\n");
    Set("VAR_PICKEY", "k2.jpg");
    EXPECT_EQ(m_sources.m_urls.size(), 2u) << "no site, no download";
}

TEST_F(ClassicLoginTest, WithoutTheQRLoginSwitchAStrayTabCommandFindsNoHandler) {
    Start(false, false);
    Command(CDlgFlashLogin::IDC_QR_TAB);
    EXPECT_EQ(Classic().GetPage(), CDlgFlashLogin::PAGE_PASSWORD);
    EXPECT_TRUE(Visible(CDlgFlashLogin::IDC_PASSWORD));
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ClassicLoginTest, APressOnTheExpiredCodeOrTheWeChatRowActsOnceThoughBothHandlersRun) {
    Start();
    Command(CDlgFlashLogin::IDC_QR_TAB);
    Classic().SetQRStatus(CDlgFlashLogin::QR_EXPIRED);
    TakeCommands();
    const RECT rc = Ctrl(CDlgFlashLogin::IDC_QR_PICTURE)->GetWindowRect();
    const int x = (rc.left + rc.right) / 2, y = (rc.top + rc.bottom) / 2;
    Mouse(WM_LBUTTONDOWN, x, y);
    EXPECT_EQ(Classic().GetQRStatus(), CDlgFlashLogin::QR_REQUESTED);
    Classic().SetQRStatus(CDlgFlashLogin::QR_EXPIRED); // expired again before the button reports the click
    Mouse(WM_LBUTTONUP, x, y);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"REQUEST_QRKey "});
    Command(CDlgFlashLogin::IDC_QR_PICTURE); // a command of its own acts
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"REQUEST_QRKey "});
    Classic().SetQRStatus(CDlgFlashLogin::QR_SHOWN);
    Press(x, y);
    EXPECT_TRUE(TakeCommands().empty()) << "a code that is shown is not renewed";

    Command(CDlgFlashLogin::IDC_PASSWORD_TAB);
    CSimDialog& weChat = m_sim->Dialogs().m_dlgWeiXinLogin;
    const RECT rcRow = Ctrl(CDlgFlashLogin::IDC_WECHAT)->GetWindowRect();
    Mouse(WM_LBUTTONDOWN, rcRow.left + 2, rcRow.top + 2);
    EXPECT_TRUE(weChat.IsWindowVisible());
    weChat.ShowWindow(SW_HIDE);
    Command(CDlgFlashLogin::IDC_WECHAT); // the same click reported as a command
    EXPECT_FALSE(weChat.IsWindowVisible());
    Command(CDlgFlashLogin::IDC_WECHAT);
    EXPECT_TRUE(weChat.IsWindowVisible());
}

TEST_F(ClassicLoginTest, QRPictureIsDrawnAtItsPlaceOnceShownAndOverlaidOnceExpired) {
    m_dir.Write("ani/Control.ani", "[Newlogin_NoQRCodeBG]\nFrame0=box 158 158 D0101820\n");
    Start();
    Command(CDlgFlashLogin::IDC_QR_TAB);
    Classic().SetQRKey("key-1", 3);
    EXPECT_EQ(m_sources.m_keys, std::vector<std::string>{"key-1@3"});
    EXPECT_TRUE(OfKind(Frame(), "bitmap").empty()) << "status 0: requested, nothing shown";
    Classic().SetQRStatus(CDlgFlashLogin::QR_SHOWN);
    auto ops = Frame();
    const auto bitmaps = OfKind(ops, "bitmap");
    ASSERT_EQ(bitmaps.size(), 1u);
    EXPECT_EQ(std::vector<int>({bitmaps[0].x, bitmaps[0].y, bitmaps[0].w, bitmaps[0].h}),
              std::vector<int>({172 + 9, 196 + 7, 158, 158}));
    EXPECT_TRUE(OfKind(ops, "ani").empty());
    Classic().SetQRStatus(CDlgFlashLogin::QR_EXPIRED);
    const auto anis = OfKind(Frame(), "ani");
    ASSERT_EQ(anis.size(), 1u);
    EXPECT_EQ(anis[0].name, "Newlogin_NoQRCodeBG");
    EXPECT_EQ(std::vector<int>({anis[0].x, anis[0].y}), std::vector<int>({172 + 4, 196 + 5}));
    Command(CDlgFlashLogin::IDC_PASSWORD_TAB);
    EXPECT_TRUE(OfKind(Frame(), "bitmap").empty());
}

TEST_F(ClassicLoginTest, TokenOnlyHidesTheAccountRowsAndMovesTheTokenRowOnceFromItsPlace) {
    Start();
    m_sim->SetClassicTokenOnly(true);
    Classic().ShowWindow(SW_SHOW);
    Classic().ShowWindow(SW_SHOW); // opened again: the row must not move twice
    for (UINT nId : {CDlgFlashLogin::IDC_ACCOUNT, CDlgFlashLogin::IDC_PASSWORD, CDlgFlashLogin::IDC_QR_TAB,
                     CDlgFlashLogin::IDC_ACCOUNT_LIST_BUTTON, CDlgFlashLogin::IDC_REMEMBER})
        EXPECT_FALSE(Visible(nId)) << nId;
    EXPECT_EQ(Ctrl(CDlgFlashLogin::IDC_TOKEN)->GetWindowRect().top, 232 - 80);
    EXPECT_EQ(Ctrl(CDlgFlashLogin::IDC_TOKEN_HELP)->GetWindowRect().top, 232 - 80);
    Set("VAR_FOCUSTOFLASH", "1");
    EXPECT_TRUE(TakeCommands().empty()) << "a hidden field takes no focus";
    Command(CDlgFlashLogin::IDC_PASSWORD_TAB);
    EXPECT_FALSE(Visible(CDlgFlashLogin::IDC_ACCOUNT)) << "a page change keeps the layout";

    m_sim->SetClassicTokenOnly(false);
    Classic().ShowWindow(SW_SHOW);
    EXPECT_TRUE(Visible(CDlgFlashLogin::IDC_ACCOUNT));
    EXPECT_EQ(Ctrl(CDlgFlashLogin::IDC_TOKEN)->GetWindowRect().top, 232);
}

TEST_F(ClassicLoginTest, PlatformModeAHidesTheFourFieldsOnEveryPage) {
    Start();
    m_sim->SetPlatformModeA(true);
    Classic().ShowWindow(SW_SHOW);
    Command(CDlgFlashLogin::IDC_QR_TAB);
    Command(CDlgFlashLogin::IDC_PASSWORD_TAB);
    for (UINT nId : {CDlgFlashLogin::IDC_ACCOUNT, CDlgFlashLogin::IDC_PASSWORD, CDlgFlashLogin::IDC_PROTECT,
                     CDlgFlashLogin::IDC_TOKEN}) {
        EXPECT_FALSE(Visible(nId)) << nId;
        EXPECT_FALSE(Ctrl(nId)->IsWindowEnabled()) << nId;
    }
    EXPECT_TRUE(Visible(CDlgFlashLogin::IDC_ACCOUNT_LABEL));
}

TEST_F(ClassicLoginTest, TheHostsFieldsAndFocusGoToTheClassicLogin) {
    Start();
    Set("VAR_LOGPROTECT", "prot-9");
    EXPECT_STREQ(Ctrl(CDlgFlashLogin::IDC_PROTECT)->GetWindowTextA(), "prot-9");
    Classic().SetInputText("x", INPUT_WEIXIN_TOKEN);
    EXPECT_EQ(testlog::Count("", "ASSERT(false)"), 1);
    Set("VAR_FOCUSTOFLASH", "3");
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"CMD_TEXTSELECT "});
    EXPECT_EQ(Classic().GetFocusField(), INPUT_PROTECT);
    const DWORD dwSel = static_cast<const CSimEdit*>(Ctrl(CDlgFlashLogin::IDC_PROTECT))->GetSel();
    EXPECT_EQ(LOWORD(dwSel), 6);
    EXPECT_EQ(HIWORD(dwSel), 6);
    Set("VAR_FOCUSTOFLASH", "5");
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ClassicLoginTest, VersionIsFilledPrintfStyleAndOddFormatsNeverBreakIt) {
    Start();
    const struct {
        const char* format;
        const char* shown;
    } cases[] = {{"Version %s", "Version 2.5"},
                 {"Version {}", "Version {}"},
                 {"v%s (%s)", "v%s (%s)"},
                 {"100%% sure", "100% sure"},
                 {"%d", "2.5"},
                 {"%n%s", "%n%s"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.format);
        m_dir.Write("ini/FlashString.ini", std::string("3110000=") + c.format + "\n");
        m_sim->ReloadStrings();
        Set("VAR_VERSION", "2.5");
        EXPECT_STREQ(Classic().GetFrame().GetVersionLabel().GetWindowTextA(), c.shown);
    }
}

TEST_F(ClassicLoginTest, KeepingTheServerTipsOnceThenOpensTheEditorWhenTheRecordsAreFull) {
    Start();
    Command(CDlgFlashLogin::IDC_RECORD_ENTRY);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"ADD_QUICK_RECORD 0_1_2"});
    EXPECT_STREQ(Ctrl(CDlgFlashLogin::IDC_TIP)->GetWindowTextA(), "Added");
    Command(CDlgFlashLogin::IDC_RECORD_ENTRY);
    EXPECT_STREQ(Ctrl(CDlgFlashLogin::IDC_TIP)->GetWindowTextA(), "Present");
    Set("VAR_QUICK_RECORD", "3|2_1_1_A$a*2_1_2_B$b*2_1_3_C$c*");
    Command(CDlgFlashLogin::IDC_RECORD_ENTRY);
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_TRUE(m_sim->Dialogs().m_dlgAddQuickEntry.IsWindowVisible());
}

} // namespace
