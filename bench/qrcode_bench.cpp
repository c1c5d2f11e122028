// The QR picture: a 64-byte key encoded, written as the bitmap file and read back, against libqrencode's bare
// encoding plus the same file written plainly; and one frame of the code-scanning dialog with its picture.
#include <benchmark/benchmark.h>
#include <qrencode.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "TempClientDir.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "login/QRCodeRenderer.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr std::size_t KEY_BYTES = 64;
constexpr int SCALE = 3;

// A different 64-byte key each time, so that every render encodes anew.
std::string NextKey(unsigned& nCounter) {
    std::string key = "https://login.example.com/qr?key=" + std::to_string(++nCounter);
    key.resize(KEY_BYTES, 'x');
    return key;
}

void BM_QRRenderWriteLoad(benchmark::State& state) {
    TempClientDir dir;
    std::filesystem::create_directories(dir.Path() / "k7pack/data");
    CQRCodeRenderer renderer("k7pack/data/ScanCodeLogin.bmp", "GlobalLock fail");
    unsigned nCounter = 0;
    for (auto _ : state) {
        const std::string key = NextKey(nCounter);
        benchmark::DoNotOptimize(renderer.Render(key.c_str(), SCALE));
    }
}
BENCHMARK(BM_QRRenderWriteLoad)->Unit(benchmark::kMicrosecond);

// The least a renderer can do: encode, lay the modules out as 24-bit rows, write the file.
void BM_QRBareEncodeWrite(benchmark::State& state) {
    TempClientDir dir;
    const std::string path = (dir.Path() / "bare.bmp").string();
    unsigned nCounter = 0;
    std::vector<unsigned char> file;
    for (auto _ : state) {
        const std::string key = NextKey(nCounter);
        QRcode* pCode = QRcode_encodeString(key.c_str(), 0, QR_ECLEVEL_L, QR_MODE_8, 1);
        const std::size_t nWidth = static_cast<std::size_t>(pCode->width) * SCALE;
        const std::size_t nRow = (nWidth * 3 + 3) / 4 * 4;
        file.assign(54 + nRow * nWidth, 0xFF);
        for (std::size_t y = 0; y < nWidth; ++y)
            for (std::size_t x = 0; x < nWidth; ++x)
                if (pCode->data[(y / SCALE) * pCode->width + x / SCALE] & 1)
                    std::fill_n(file.begin() + 54 + y * nRow + x * 3, 3, 0);
        QRcode_free(pCode);
        std::FILE* fp = std::fopen(path.c_str(), "wb");
        std::fwrite(file.data(), 1, file.size(), fp);
        std::fclose(fp);
    }
}
BENCHMARK(BM_QRBareEncodeWrite)->Unit(benchmark::kMicrosecond);

// One frame of the code-scanning dialog alone, showing its picture, on the recording canvas.
void BM_ScanCodeDialogFrame(benchmark::State& state) {
    TempClientDir dir;
    std::filesystem::copy(FLASHSIM_RES_DIR, dir.Path(), std::filesystem::copy_options::recursive);
    std::filesystem::create_directories(dir.Path() / "k7pack/data");
    std::filesystem::create_directories(dir.Path() / "data");
    host::UseCanvas(host::CanvasKind::Recording);
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, true);
    sim->SetSceneType(EST_LOGIN);
    CDlgScanCodeLoginEn& scan = sim->Dialogs().m_dlgScanCodeLogin;
    scan.ShowWindow(SW_SHOW);
    sim->SetVariable("SetQRKey", "https://login.example.com/qr?key=0123456789abcdef0123456789abcdef");
    for (auto _ : state) {
        host::BeginFrame();
        benchmark::DoNotOptimize(scan.Show());
    }
    FlashSimDestroy();
}
BENCHMARK(BM_ScanCodeDialogFrame)->Unit(benchmark::kMicrosecond);
} // namespace

BENCHMARK_MAIN();
