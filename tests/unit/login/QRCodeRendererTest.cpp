// The QR picture renderer: file layout byte for byte, modules against libqrencode, failures that keep the
// previous file and bitmap, and a round trip through an independent reader (zbarimg).
#include <gtest/gtest.h>
#include <qrencode.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "hostlibs/HostEnv.h"
#include "login/QRCodeRenderer.h"
#include "platform/Graphics.h"

namespace {

constexpr const char* FILE_NAME = "k7pack/data/ScanCodeLogin.bmp";

std::vector<std::uint8_t> ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<std::uint8_t>(std::istreambuf_iterator<char>(in), {});
}

std::uint32_t U32(const std::vector<std::uint8_t>& b, std::size_t at) {
    return b[at] | b[at + 1] << 8 | b[at + 2] << 16 | static_cast<std::uint32_t>(b[at + 3]) << 24;
}
std::uint16_t U16(const std::vector<std::uint8_t>& b, std::size_t at) {
    return static_cast<std::uint16_t>(b[at] | b[at + 1] << 8);
}

// Printable keys (zbarimg prints what it decodes as text) of a given length, different for each seed.
std::string Key(std::size_t nLength, unsigned nSeed = 1) {
    std::string key;
    for (std::size_t i = 0; i < nLength; ++i) key += static_cast<char>('!' + (i * 7 + nSeed * 13) % 94);
    return key;
}

class QRCodeRendererTest : public testing::Test {
protected:
    void SetUp() override { std::filesystem::create_directories(m_dir.Path() / "k7pack/data"); }
    std::vector<std::uint8_t> Picture() const { return ReadFile(m_dir.Path() / FILE_NAME); }

    TempClientDir m_dir;
    CQRCodeRenderer m_renderer{FILE_NAME, "GlobalLock fail"};
};

struct SizeCase {
    std::size_t nKeyLength;
    int nModules;
    std::uint32_t nRowBytes;
    std::uint32_t nFileSize;
};

TEST_F(QRCodeRendererTest, FileIsA24BitTopDownBitmapWithPaddedRowsForEverySize) {
    for (const SizeCase& c :
         {SizeCase{5, 21, 192, 12150}, SizeCase{64, 33, 300, 29754}, SizeCase{2953, 177, 1596, 847530}}) {
        SCOPED_TRACE(c.nKeyLength);
        const std::string key(c.nKeyLength, 'k');
        ASSERT_TRUE(m_renderer.Render(key.c_str(), CQRCodeRenderer::SCALE));
        const std::vector<std::uint8_t> b = Picture();
        const std::uint32_t nWidth = static_cast<std::uint32_t>(c.nModules) * 3;
        ASSERT_EQ(b.size(), c.nFileSize);
        EXPECT_EQ(U16(b, 0), 0x4D42);
        EXPECT_EQ(U32(b, 2), c.nFileSize);
        EXPECT_EQ(U32(b, 6), 0u); // both reserved words
        EXPECT_EQ(U32(b, 10), 54u);
        EXPECT_EQ(U32(b, 14), 40u);
        EXPECT_EQ(U32(b, 18), nWidth);
        EXPECT_EQ(static_cast<std::int32_t>(U32(b, 22)), -static_cast<std::int32_t>(nWidth));
        EXPECT_EQ(U16(b, 26), 1);
        EXPECT_EQ(U16(b, 28), 24);
        for (std::size_t at = 30; at < 54; at += 4) EXPECT_EQ(U32(b, at), 0u) << "offset " << at;
        EXPECT_EQ(CQRCodeRenderer::RowBytes(nWidth), c.nRowBytes);

        // Pixels are only black or white, padding is 0xFF, and each module is a uniform 3 x 3 square that
        // is dark exactly where libqrencode's module is.
        QRcode* pCode = QRcode_encodeString(key.c_str(), 0, QR_ECLEVEL_L, QR_MODE_8, 1);
        ASSERT_NE(pCode, nullptr);
        ASSERT_EQ(pCode->width, c.nModules);
        std::set<std::uint8_t> bytes;
        int nWrong = 0;
        for (std::uint32_t y = 0; y < nWidth; ++y) {
            const std::uint8_t* pRow = b.data() + 54 + y * c.nRowBytes;
            for (std::uint32_t x = 0; x < nWidth; ++x) {
                const bool bDark = pCode->data[(y / 3) * pCode->width + x / 3] & 1;
                for (int k = 0; k < 3; ++k) {
                    bytes.insert(pRow[x * 3 + k]);
                    nWrong += pRow[x * 3 + k] != (bDark ? 0x00 : 0xFF);
                }
            }
            for (std::uint32_t p = nWidth * 3; p < c.nRowBytes; ++p) nWrong += pRow[p] != 0xFF;
        }
        QRcode_free(pCode);
        EXPECT_EQ(nWrong, 0);
        EXPECT_EQ(bytes, (std::set<std::uint8_t>{0x00, 0xFF}));
        // No quiet zone: the finder pattern's dark corner is the picture's first pixel.
        EXPECT_EQ(b[54], 0x00);

        ASSERT_NE(m_renderer.GetBitmap(), nullptr);
        EXPECT_EQ(m_renderer.GetBitmap()->GetWidth(), static_cast<int>(nWidth));
        EXPECT_EQ(m_renderer.GetBitmap()->GetHeight(), static_cast<int>(nWidth));
    }
}

std::unique_ptr<std::uint8_t[]> NoMemory(std::size_t) {
    return nullptr;
}

TEST_F(QRCodeRendererTest, EveryFailureLogsOneLineAndKeepsTheFileAndTheBitmap) {
    ASSERT_TRUE(m_renderer.Render("first", CQRCodeRenderer::SCALE));
    const std::vector<std::uint8_t> before = Picture();
    CMyBitmap* pBefore = m_renderer.GetBitmap();

    const auto expectKept = [&](const char* szLine) {
        EXPECT_EQ(testlog::Count("ERROR", szLine), 1) << szLine;
        EXPECT_EQ(Picture(), before) << szLine;
        EXPECT_EQ(m_renderer.GetBitmap(), pBefore) << szLine;
    };
    testlog::Expect("ERROR", "QRCodeEncode Failed");
    EXPECT_FALSE(m_renderer.Render(std::string(3000, 'a').c_str(), CQRCodeRenderer::SCALE));
    expectKept("QRCodeEncode Failed");
    EXPECT_FALSE(m_renderer.Render("", CQRCodeRenderer::SCALE));
    std::string huge(1 << 20, '\x80'); // any bytes, any length
    huge[7] = '\xFF';
    EXPECT_FALSE(m_renderer.Render(huge.c_str(), CQRCodeRenderer::SCALE));
    EXPECT_EQ(testlog::Count("ERROR", "QRCodeEncode Failed"), 3);

    testlog::Expect("ERROR", "out of memory");
    m_renderer.SetPixelAllocator(&NoMemory);
    EXPECT_FALSE(m_renderer.Render("second", CQRCodeRenderer::SCALE));
    expectKept("out of memory");
    m_renderer.SetPixelAllocator(nullptr);

    testlog::Expect("ERROR", "GlobalLock fail");
    host::SetData("memory.lockfail", "1");
    EXPECT_FALSE(m_renderer.Render("third", CQRCodeRenderer::SCALE));
    expectKept("GlobalLock fail");
    host::SetData("memory.lockfail", "0");

    // Every line carries the keys of the system's lines.
    for (const host::LogRecord& r : testlog::Records()) {
        if (r.level != "ERROR") continue;
        EXPECT_FALSE(testlog::Key(r, "svr_time").empty()) << r.message;
        EXPECT_EQ(r.file, "QRCodeRenderer.cpp");
    }
    EXPECT_TRUE(m_renderer.Render("fourth", CQRCodeRenderer::SCALE));
    EXPECT_NE(Picture(), before);
}

TEST_F(QRCodeRendererTest, AMissingFolderIsNotCreatedAndNamesTheFile) {
    CQRCodeRenderer classic("data/QRCode.bmp", "globalLock fail");
    testlog::Expect("ERROR", "open file failed");
    EXPECT_FALSE(classic.Render("key", CQRCodeRenderer::SCALE));
    EXPECT_EQ(classic.GetBitmap(), nullptr);
    EXPECT_FALSE(std::filesystem::exists(m_dir.Path() / "data"));
    ASSERT_EQ(testlog::Count("ERROR", "open file failed"), 1);
    for (const host::LogRecord& r : testlog::Records())
        if (r.message == "open file failed") {
            EXPECT_EQ(testlog::Key(r, "file_name"), "data/QRCode.bmp");
        }

    testlog::Expect("ERROR", "globalLock fail");
    host::SetData("memory.lockfail", "1");
    EXPECT_FALSE(classic.Render("key", CQRCodeRenderer::SCALE));
    EXPECT_EQ(testlog::Count("ERROR", "globalLock fail"), 1);
}

// zbarimg cannot find a code without a quiet zone, so the picture is copied into a grey map with a white
// border of four modules first.
std::string DecodeWithZbar(const std::vector<std::uint8_t>& bmp, const std::filesystem::path& dir) {
    const std::uint32_t nWidth = U32(bmp, 18);
    const std::size_t nRowBytes = CQRCodeRenderer::RowBytes(nWidth);
    const std::uint32_t nBorder = 4 * CQRCodeRenderer::SCALE;
    const std::uint32_t nSide = nWidth + 2 * nBorder;
    std::string pgm = "P5\n" + std::to_string(nSide) + " " + std::to_string(nSide) + "\n255\n";
    const std::size_t nHeader = pgm.size();
    pgm.resize(nHeader + static_cast<std::size_t>(nSide) * nSide, static_cast<char>(0xFF));
    for (std::uint32_t y = 0; y < nWidth; ++y)
        for (std::uint32_t x = 0; x < nWidth; ++x)
            pgm[nHeader + (y + nBorder) * nSide + x + nBorder] =
                static_cast<char>(bmp[54 + y * nRowBytes + x * 3]);
    const auto pgmPath = dir / "code.pgm";
    std::ofstream(pgmPath, std::ios::binary) << pgm;
    const std::string command =
        "zbarimg --raw -q -Sdisable -Sqrcode.enable '" + pgmPath.string() + "' 2>/dev/null";
    std::unique_ptr<FILE, int (*)(FILE*)> pipe(::popen(command.c_str(), "r"), &::pclose);
    if (!pipe) return "(zbarimg did not start)";
    std::string out;
    char buf[4096];
    for (std::size_t n; (n = std::fread(buf, 1, sizeof buf, pipe.get())) > 0;) out.append(buf, n);
    if (!out.empty() && out.back() == '\n') out.pop_back();
    return out;
}

TEST_F(QRCodeRendererTest, ZbarReadsTheKeyBackAtEverySize) {
    ASSERT_EQ(std::system("command -v zbarimg >/dev/null 2>&1"), 0)
        << "zbarimg missing: run scripts/bootstrap";
    for (std::size_t nLength : {5u, 64u, 2953u}) {
        const std::string key = Key(nLength, static_cast<unsigned>(nLength));
        ASSERT_TRUE(m_renderer.Render(key.c_str(), CQRCodeRenderer::SCALE));
        const std::string decoded = DecodeWithZbar(Picture(), m_dir.Path());
        EXPECT_TRUE(decoded == key) << nLength << " bytes, read back " << decoded.size() << ": "
                                    << decoded.substr(0, 80);
    }
}

} // namespace
