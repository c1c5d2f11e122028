// The code-scanning dialog on a simulator: the key reaches both login dialogs, the code's states and what
// each draws, the handlers, and the placement from the game data's window record.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "GameData.h"
#include "SimulatorFixture.h"
#include "hostlibs/HostCanvas.h"

namespace {

constexpr const char* STRINGS = "8000112=Scan to log in\n8000113=Open the app\n8000114=Get the app\n"
                                "8000115=____\n8000116=https://example.com/app\n4000002=6 7\n4000003=20 30\n"
                                "4000009=120 121\n";
constexpr const char* LAYOUT = "[Dialog1021]\nRect = 100 50 300 320\n"
                               "[Dialog1021.1141]\nKind = Button\nRect = 40 60 200 200\n"
                               "[Dialog1021.1021]\nKind = Button\nRect = 270 5 20 20\n"
                               "[Dialog1021.1093]\nKind = Button\nRect = 100 280 80 24\n";
constexpr const char* ANIS = "[Padre_BgSudokuBG]\nFrame0=box 64 64 FF203040\n"
                             "[enqrlogin_qrerror]\nFrame0=box 100 100 C0000000\n";

class ScanCodeLoginTest : public SimulatorFixture {
protected:
    void SetUp() override {
        m_dir.Write("FlashGui.ini", LAYOUT);
        m_dir.Write("ani/Control.ani", ANIS);
        std::filesystem::create_directories(m_dir.Path() / "k7pack/data");
        std::filesystem::create_directories(m_dir.Path() / "data");
        host::ClearGraphicsCaches();
        Create(0, STRINGS);
        m_sim->SetSceneType(EST_LOGIN);
    }
    CDlgScanCodeLoginEn& Scan() { return m_sim->Dialogs().m_dlgScanCodeLogin; }
    CDlgFlashLogin& Classic() { return m_sim->Dialogs().m_dlgFlashLogin; }
    void Press(UINT nId) { Scan().WindowProc(WM_COMMAND, nId, 0); }
    void Open() {
        Scan().ShowWindow(SW_SHOW);
        ASSERT_EQ(TakeCommands(), std::vector<std::string>{"REQUEST_QRKey "});
    }
    /// The frame's operations of a kind, as text.
    static std::vector<std::string> Drawn(const std::string& kind) {
        host::UseCanvas(host::CanvasKind::Recording);
        host::BeginFrame();
        FlashSimQuery()->Show();
        std::vector<std::string> ops;
        for (const host::DrawOp& op : host::GetRecordedOps())
            if (op.kind == kind) ops.push_back(op.ToString());
        return ops;
    }
    /// Lines about missing layout numbers that this dialog wrote.
    static int MissingNumberLines() {
        int n = 0;
        for (const host::LogRecord& r : testlog::Records())
            n += r.level == "LOCALERR" && r.message.find("DlgScanCodeLoginEn.cpp") != std::string::npos;
        return n;
    }
    static std::string Contents(const std::filesystem::path& path) {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
};

TEST_F(ScanCodeLoginTest, AKeyReachesBothDialogsShownOrNotAndIsEncodedOnce) {
    const int nEncodes = CQRCodeRenderer::EncodeCount();
    Set("SetQRKey", "key-1");
    EXPECT_EQ(CQRCodeRenderer::EncodeCount(), nEncodes + 1);
    EXPECT_EQ(Scan().GetQRStatus(), CDlgScanCodeLoginEn::QR_SHOWN);
    EXPECT_EQ(Classic().GetQRStatus(), CDlgScanCodeLoginEn::QR_SHOWN);
    ASSERT_NE(Scan().GetQRBitmap(), nullptr);
    ASSERT_NE(Classic().GetQRBitmap(), nullptr);
    const std::string scan = Contents(m_dir.Path() / "k7pack/data/ScanCodeLogin.bmp");
    EXPECT_EQ(scan.size(), 12150u);
    EXPECT_EQ(scan, Contents(m_dir.Path() / "data/QRCode.bmp"));

    Set("SetQRCodeStatus", "2");
    EXPECT_EQ(Scan().GetQRStatus(), 2);
    EXPECT_EQ(Classic().GetQRStatus(), 2);
    Set("setqrcodestatus", "7abc"); // read as atoi reads it; stored as it is
    EXPECT_EQ(Scan().GetQRStatus(), 7);
    Set("SetQRCodeStatus", "x");
    EXPECT_EQ(Classic().GetQRStatus(), 0);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ScanCodeLoginTest, OpeningAsksForAKeyAndShowsNoPictureUntilItComes) {
    Set("SetQRKey", "old-key"); // a key from before: opening forgets it
    Open();
    EXPECT_STREQ(Scan().GetControl(CDlgScanCodeLoginEn::IDC_TITLE)->GetWindowTextA(), "Scan to log in");
    EXPECT_STREQ(Scan().GetControl(CDlgScanCodeLoginEn::IDC_DOWNLOAD)->GetWindowTextA(), "Get the app");
    EXPECT_EQ(Scan().GetQRStatus(), CDlgScanCodeLoginEn::QR_REQUESTED);
    EXPECT_TRUE(Drawn("bitmap").empty());

    Set("SetQRKey", "new-key");
    // The picture at the placeholder (140, 110) plus the offset, at the configured size; no overlay.
    const auto bitmaps = Drawn("bitmap");
    ASSERT_EQ(bitmaps.size(), 1u);
    EXPECT_NE(bitmaps[0].find(" 146,117 120x121"), std::string::npos) << bitmaps[0];
    for (const std::string& ani : Drawn("ani")) EXPECT_EQ(ani.find("enqrlogin_qrerror"), std::string::npos);
    // The nine-grid background reaches past the dialog.
    bool bBackground = false;
    for (const std::string& nine : Drawn("nine"))
        bBackground = bBackground || nine.find("Padre_BgSudokuBG 91,35 319x345") != std::string::npos;
    EXPECT_TRUE(bBackground);
}

TEST_F(ScanCodeLoginTest, AnExpiredCodeShowsTheOverlayAndIsRenewedOnceByAClick) {
    Open();
    Set("SetQRKey", "k");
    Press(CDlgScanCodeLoginEn::IDC_CODE); // shown: a click does nothing
    EXPECT_TRUE(TakeCommands().empty());
    EXPECT_EQ(Scan().GetQRStatus(), 1);

    Set("SetQRCodeStatus", "2");
    const auto overlays = Drawn("ani");
    ASSERT_EQ(overlays.size(), 1u);
    EXPECT_NE(overlays[0].find("enqrlogin_qrerror#0 160,140"), std::string::npos) << overlays[0];
    EXPECT_EQ(Drawn("bitmap").size(), 1u);

    Press(CDlgScanCodeLoginEn::IDC_CODE);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"REQUEST_QRKey "});
    EXPECT_EQ(Scan().GetQRStatus(), 0);
    EXPECT_TRUE(Drawn("ani").empty());
    EXPECT_TRUE(Drawn("bitmap").empty());
    Press(CDlgScanCodeLoginEn::IDC_CODE);
    EXPECT_TRUE(TakeCommands().empty());
}

TEST_F(ScanCodeLoginTest, RefreshAsksAgainAndCloseStopsTheHostsTimers) {
    Open();
    Set("SetQRKey", "k");
    Press(CDlgScanCodeLoginEn::IDC_REFRESH);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"REQUEST_QRKey "});
    EXPECT_EQ(Scan().GetQRStatus(), 0);

    Set("SetQRKey", "k2");
    Press(CDlgScanCodeLoginEn::IDC_CLOSE);
    EXPECT_EQ(TakeCommands(), std::vector<std::string>{"KILL_All_TIMER "});
    EXPECT_FALSE(Scan().IsWindowVisible());
    EXPECT_EQ(Scan().GetQRStatus(), 0);
    Open(); // each opening asks once

    const int nOpens = host::JournalCount("shell.open");
    Press(CDlgScanCodeLoginEn::IDC_DOWNLOAD);
    EXPECT_EQ(host::JournalCount("shell.open"), nOpens + 1);
}

TEST_F(ScanCodeLoginTest, TheWindowRecordSizesAndCentresTheDialog) {
    host::SetData("layout.7", "0 0 300 280");
    testlog::Expect("LOCALERR", "sscanf_s source NULL");
    Open(); // no string resource: 24 and 45 wider and higher, 15 above the centre
    EXPECT_EQ(MissingNumberLines(), 1);
    RECT rc = Scan().GetWindowRect();
    EXPECT_EQ(rc.right - rc.left, 324);
    EXPECT_EQ(rc.bottom - rc.top, 325);
    EXPECT_EQ(Scan().GetPos().x, (1024 - 324) / 2);
    EXPECT_EQ(Scan().GetPos().y, (768 - 325) / 2 - 15);
    EXPECT_EQ(rc.left, Scan().GetPos().x);

    host::SetData("strres.1010113", "10 20 0 0 5");
    host::SetScreenSize(800, 600);
    Scan().ShowWindow(SW_HIDE);
    Open();
    rc = Scan().GetWindowRect();
    EXPECT_EQ(rc.right - rc.left, 310);
    EXPECT_EQ(rc.bottom - rc.top, 300);
    EXPECT_EQ(rc.left, (800 - 310) / 2);
    EXPECT_EQ(rc.top, (600 - 300) / 2 - 5);
}

TEST_F(ScanCodeLoginTest, AWindowRecordWithANumberPast32BitsIsNoRecord) {
    RECT rc{};
    host::SetData("layout.7", " +1 -2 300 280 tail");
    ASSERT_TRUE(MyGameDataQuery()->GetWindowRecord(7, rc));
    EXPECT_EQ(rc.left, 1);
    EXPECT_EQ(rc.bottom, 278);
    for (const char* bad : {"0 0 99999999999 280", "0 0 300 -2147483649", "0 0 300"}) {
        host::SetData("layout.7", bad);
        EXPECT_FALSE(MyGameDataQuery()->GetWindowRecord(7, rc)) << bad;
    }
}

TEST_F(ScanCodeLoginTest, MissingDrawingNumbersAreLoggedOncePerOpening) {
    m_dir.Write("ini/FlashString.ini", "8000112=Scan\n");
    m_sim->ReloadStrings();
    testlog::Expect("LOCALERR", "sscanf_s source NULL");
    Open();
    EXPECT_EQ(MissingNumberLines(), 3);
    Set("SetQRKey", "k");
    const auto bitmaps = Drawn("bitmap"); // at the placeholder, natural size
    Drawn("bitmap");
    ASSERT_EQ(bitmaps.size(), 1u);
    EXPECT_NE(bitmaps[0].find(" 140,110 63x63"), std::string::npos) << bitmaps[0];
    EXPECT_EQ(MissingNumberLines(), 3);
}

} // namespace
