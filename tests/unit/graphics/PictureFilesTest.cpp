// Picture files that were hard to decode, drawn through the graphics library.
#include <cstdlib>
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

TEST_F(PictureFilesTest, PngDataChunksThatAreEmptyAddNothingAndOverlongOnesAreRefused) {
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

    // A data chunk claiming 1.5 GB in a file of 80 bytes, and one whose length and type end the file, are
    // refused before anything is allocated for them.
    for (const char* name : {"data_chunk_longer_than_file.png", "data_chunk_header_at_the_end.png"}) {
        CopyPicture(name);
        bitmap = MyBitmapCreate(name);
        ASSERT_NE(bitmap, nullptr);
        EXPECT_EQ(bitmap->GetWidth(), 0) << name;
        bitmap->Release();
        EXPECT_EQ(testlog::Count("MSG", std::string("picture ") + name +
                                            " cannot be decoded: damaged: data chunk longer than the file"),
                  1);
    }
}

TEST_F(PictureFilesTest, BmpPicturesTopDownShortAndClaimingTooMuch) {
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

    // A file that ends a row early decodes with the rest black, as it always did; a 78-byte file claiming
    // 4000 x 3000 pixels (more than even one bit a pixel could hold) is refused.
    CopyPicture("last_row_missing.bmp");
    bitmap = MyBitmapCreate("last_row_missing.bmp");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 3);
    bitmap->Release();
    CopyPicture("claims_4000x3000_without_pixels.bmp");
    bitmap = MyBitmapCreate("claims_4000x3000_without_pixels.bmp");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 0);
    bitmap->Release();
    EXPECT_EQ(testlog::Count("MSG",
                             "picture claims_4000x3000_without_pixels.bmp cannot be decoded: damaged: size "
                             "4000x3000 larger than its data"),
              1);
}

TEST_F(PictureFilesTest, JpegPicturesDecodeAndDamagedOnesAreRefused) {
    CopyPicture("small.jpg");
    CMyBitmap* bitmap = MyBitmapCreate("small.jpg");
    ASSERT_NE(bitmap, nullptr);
    EXPECT_EQ(bitmap->GetWidth(), 4);
    EXPECT_EQ(bitmap->GetHeight(), 3);
    bitmap->Release();

    // 8 x 2 grey levels rising from black to near white: grey stays grey.
    CopyPicture("grey.jpg");
    bitmap = MyBitmapCreate("grey.jpg");
    ASSERT_NE(bitmap, nullptr);
    ASSERT_EQ(bitmap->GetWidth(), 8);
    bitmap->Show(0, 0);
    const DWORD light = Pixel(7, 1);
    EXPECT_EQ(light >> 24, 0xFFu);
    EXPECT_EQ(light & 0xFF, (light >> 8) & 0xFF);
    EXPECT_EQ(light & 0xFF, (light >> 16) & 0xFF);
    EXPECT_GT(light & 0xFF, Pixel(0, 0) & 0xFF);
    bitmap->Release();

    // Adobe CMYK, stored inverted: red on the left half, blue on the right.
    CopyPicture("cmyk_red_blue.jpg");
    bitmap = MyBitmapCreate("cmyk_red_blue.jpg");
    ASSERT_NE(bitmap, nullptr);
    ASSERT_EQ(bitmap->GetWidth(), 8);
    bitmap->Show(20, 20);
    const auto near = [](DWORD colour, DWORD expected) {
        for (int shift = 0; shift < 32; shift += 8)
            if (std::abs(static_cast<int>((colour >> shift) & 0xFF) -
                         static_cast<int>((expected >> shift) & 0xFF)) > 8)
                return false;
        return true;
    };
    EXPECT_TRUE(near(Pixel(21, 22), kRed)) << std::hex << Pixel(21, 22);
    EXPECT_TRUE(near(Pixel(26, 22), kBlue)) << std::hex << Pixel(26, 22);
    bitmap->Release();

    // A Huffman table of 433 codes (the decoder once wrote past its 256), one that made it shift its bit
    // buffer past 32 bits, and 16000 x 16000 pixels claimed by a 638-byte file.
    const char* damaged[] = {"huffman_table_too_long.jpg", "entropy_data_past_its_bits.jpg",
                             "claims_16000_square.jpg"};
    for (const char* name : damaged) {
        CopyPicture(name);
        bitmap = MyBitmapCreate(name);
        ASSERT_NE(bitmap, nullptr);
        EXPECT_EQ(bitmap->GetWidth(), 0) << name;
        bitmap->Release();
        EXPECT_EQ(testlog::Count("MSG", std::string("picture ") + name + " cannot be decoded: damaged: "), 1)
            << name;
    }
}

} // namespace
} // namespace gfxtest
