// Shared set-up of the graphics tests: a small screen, a fresh canvas, a temporary client directory, tiny
// pictures.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"

namespace gfxtest {

inline constexpr int SCREEN_WIDTH = 64;
inline constexpr int SCREEN_HEIGHT = 48;
inline constexpr DWORD BACKGROUND = 0xFF000000;

/// 0xAARRGGBB of each pixel of a small test picture.
using PixelFn = DWORD (*)(int x, int y);

class GraphicsTest : public testing::Test {
protected:
    void SetUp() override {
        host::SetScreenSize(SCREEN_WIDTH, SCREEN_HEIGHT);
        host::ClearGraphicsCaches();
    }
    void TearDown() override { host::ClearGraphicsCaches(); }

    void UseRaster() {
        host::UseCanvas(host::CanvasKind::Raster);
        host::BeginFrame(BACKGROUND);
    }
    void UseRecording() {
        host::UseCanvas(host::CanvasKind::Recording);
        host::BeginFrame();
    }

    /// 0xAARRGGBB of one pixel of the raster frame.
    static DWORD Pixel(int x, int y) {
        int width = 0, height = 0;
        const auto pixels = host::GetRasterPixels(width, height);
        EXPECT_TRUE(x >= 0 && y >= 0 && x < width && y < height);
        if (x < 0 || y < 0 || x >= width || y >= height) return 0;
        const std::uint8_t* p = &pixels[(static_cast<std::size_t>(y) * width + x) * 4];
        return (DWORD{p[3]} << 24) | (DWORD{p[0]} << 16) | (DWORD{p[1]} << 8) | DWORD{p[2]};
    }

    /// Number of pixels inside [x0, x1) x [y0, y1) that differ from the background.
    static int PaintedPixels(int x0, int y0, int x1, int y1) {
        int count = 0;
        for (int y = y0; y < y1; ++y)
            for (int x = x0; x < x1; ++x) count += Pixel(x, y) != BACKGROUND ? 1 : 0;
        return count;
    }

    /// Writes a 24-bit bottom-up BMP of the picture (alpha is dropped).
    void WriteBmp(const std::string& relative, int width, int height, PixelFn pixel) const {
        const int stride = (width * 3 + 3) / 4 * 4;
        const std::uint32_t imageBytes = static_cast<std::uint32_t>(stride * height);
        std::string bytes;
        auto put16 = [&](std::uint32_t v) {
            bytes += static_cast<char>(v & 0xFF);
            bytes += static_cast<char>((v >> 8) & 0xFF);
        };
        auto put32 = [&](std::uint32_t v) {
            put16(v & 0xFFFF);
            put16(v >> 16);
        };
        bytes += "BM";
        put32(54 + imageBytes);
        put32(0);
        put32(54);
        put32(40);
        put32(static_cast<std::uint32_t>(width));
        put32(static_cast<std::uint32_t>(height));
        put16(1);
        put16(24);
        put32(0);
        put32(imageBytes);
        put32(2835);
        put32(2835);
        put32(0);
        put32(0);
        for (int y = height - 1; y >= 0; --y) {
            int written = 0;
            for (int x = 0; x < width; ++x) {
                const DWORD c = pixel(x, y);
                bytes += static_cast<char>(c & 0xFF);
                bytes += static_cast<char>((c >> 8) & 0xFF);
                bytes += static_cast<char>((c >> 16) & 0xFF);
                written += 3;
            }
            for (; written < stride; ++written) bytes += '\0';
        }
        m_dir.Write(relative, bytes);
    }

    TempClientDir m_dir;
};

} // namespace gfxtest
