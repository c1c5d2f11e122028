// Picture files that were hard to decode, drawn through the graphics library.
#include <fstream>
#include <iterator>
#include <string>

#include "Graphics.h"
#include "GraphicsFixture.h"
#include "LogCapture.h"

namespace gfxtest {
namespace {
constexpr DWORD kRed = 0xFFFF0000;
constexpr DWORD kGreen = 0xFF00FF00;
constexpr DWORD kBlue = 0xFF0000FF;

class PictureFilesTest : public GraphicsTest {
protected:
    void SetUp() override {
        GraphicsTest::SetUp();
        UseRaster();
    }
    /// Copies a file of tests/data/pictures into the client directory under the same name.
    void CopyPicture(const std::string& name) {
        std::ifstream in(std::string(FLASHSIM_TEST_DATA) + "/pictures/" + name, std::ios::binary);
        ASSERT_TRUE(in) << name;
        m_dir.Write(name, std::string(std::istreambuf_iterator<char>(in), {}));
    }
};

TEST_F(PictureFilesTest, EmptyPngDataChunksAddNothing) {
    // A palette picture of three pixels whose data comes in pieces, with an empty chunk first and another
    // between the pieces.
    CopyPicture("empty_data_chunks.png");
    CMyBitmap* bitmap = MyBitmapCreate("empty_data_chunks.png");
    ASSERT_NE(bitmap, nullptr);
    ASSERT_EQ(bitmap->GetWidth(), 3);
    ASSERT_EQ(bitmap->GetHeight(), 1);
    bitmap->Show(5, 5);
    EXPECT_EQ(Pixel(5, 5), kRed);
    EXPECT_EQ(Pixel(6, 5), kGreen);
    EXPECT_EQ(Pixel(7, 5), kBlue);
    bitmap->Release();

    // An empty first data chunk followed by damage is refused, and reported, like any damaged picture.
    CopyPicture("empty_data_chunk_then_damage.png");
    bitmap = MyBitmapCreate("empty_data_chunk_then_damage.png");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 0);
    bitmap->Release();
    EXPECT_EQ(testlog::Count("MSG", "picture empty_data_chunk_then_damage.png cannot be decoded"), 1);
}

TEST_F(PictureFilesTest, TopDownBmpDrawsItsFirstRowAtTheTop) {
    // 4 x 2, 8-bit palette, rows stored top first (a negative height): black red green blue, then reversed.
    CopyPicture("top_down_palette.bmp");
    CMyBitmap* bitmap = MyBitmapCreate("top_down_palette.bmp");
    ASSERT_NE(bitmap, nullptr);
    ASSERT_EQ(bitmap->GetWidth(), 4);
    ASSERT_EQ(bitmap->GetHeight(), 2);
    bitmap->Show(5, 5);
    EXPECT_EQ(Pixel(6, 5), kRed);
    EXPECT_EQ(Pixel(8, 5), kBlue);
    EXPECT_EQ(Pixel(5, 6), kBlue);
    EXPECT_EQ(Pixel(7, 6), kRed);
    bitmap->Release();
}

TEST_F(PictureFilesTest, JpegHuffmanTableOfMoreThan256CodesIsRefusedUnread) {
    CopyPicture("small.jpg");
    CMyBitmap* bitmap = MyBitmapCreate("small.jpg");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 4) << "tables within their bounds decode";
    EXPECT_EQ(bitmap->GetHeight(), 3);
    bitmap->Release();

    // Its first table's code counts add up to 433: the decoder would write past its tables.
    CopyPicture("huffman_table_too_long.jpg");
    bitmap = MyBitmapCreate("huffman_table_too_long.jpg");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 0);
    bitmap->Release();
    EXPECT_EQ(testlog::Count("MSG",
                             "picture huffman_table_too_long.jpg cannot be decoded: damaged: Huffman table "
                             "with more than 256 codes"),
              1);
}

} // namespace
} // namespace gfxtest
