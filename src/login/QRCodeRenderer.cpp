// A login key as a QR-code picture: a 24-bit bitmap file, read back as the bitmap a login dialog draws.
#include "login/QRCodeRenderer.h"

#include <qrencode.h>

#include <cstring>
#include <new>

#include "common/SysLog.h"
#include "platform/GlobalMemory.h"
#include "platform/Graphics.h"

namespace {
constexpr std::uint8_t LIGHT = 0xFF;
constexpr std::uint8_t DARK = 0x00;
constexpr std::uint8_t DARK_MODULE_BIT = 0x01;
constexpr int BYTES_PER_PIXEL = 3;
constexpr std::uint16_t BITMAP_SIGNATURE = 0x4D42; // "BM"
constexpr std::uint16_t BITMAP_PLANES = 1;
constexpr std::uint16_t BITS_PER_PIXEL = 24;
// Scales beyond this would make pictures wider than any screen; they are refused like a failed encoding.
constexpr int MAX_SCALE = 64;

int g_nEncodeCount = 0;

// The last key encoded and its code (null when it could not be encoded). The simulator hands every key to
// both login dialogs in a row, so the second finds it here. Host's thread only.
struct LastEncoding {
    std::string key;
    std::shared_ptr<const QRcode> code;
    bool bValid = false;
};

std::shared_ptr<const QRcode> Encode(const char* szKey) {
    static LastEncoding last;
    if (last.bValid && last.key == szKey) return last.code;
    ++g_nEncodeCount;
    // Version 0: the smallest that holds the key; level L; 8-bit; case-sensitive.
    QRcode* pCode = QRcode_encodeString(szKey, 0, QR_ECLEVEL_L, QR_MODE_8, 1);
    last.key = szKey;
    last.code = pCode ? std::shared_ptr<const QRcode>(
                            pCode, [](const QRcode* p) { QRcode_free(const_cast<QRcode*>(p)); })
                      : nullptr;
    last.bValid = true;
    return last.code;
}

std::unique_ptr<std::uint8_t[]> AllocatePixels(std::size_t nBytes) {
    return std::unique_ptr<std::uint8_t[]>(new (std::nothrow) std::uint8_t[nBytes]);
}

void Put16(std::uint8_t* p, std::uint16_t v) {
    p[0] = static_cast<std::uint8_t>(v);
    p[1] = static_cast<std::uint8_t>(v >> 8);
}

void Put32(std::uint8_t* p, std::uint32_t v) {
    for (int i = 0; i < 4; ++i) p[i] = static_cast<std::uint8_t>(v >> (8 * i));
}

// The two headers, little-endian; rows are stored top to bottom (negative height).
void WriteHeaders(std::uint8_t* p, std::uint32_t nWidth, std::uint32_t nPixelBytes) {
    std::memset(p, 0, CQRCodeRenderer::HEADERS_SIZE);
    Put16(p + 0, BITMAP_SIGNATURE);
    Put32(p + 2, nPixelBytes + static_cast<std::uint32_t>(CQRCodeRenderer::HEADERS_SIZE));
    Put32(p + 10, static_cast<std::uint32_t>(CQRCodeRenderer::HEADERS_SIZE));
    std::uint8_t* pInfo = p + CQRCodeRenderer::FILE_HEADER_SIZE;
    Put32(pInfo + 0, static_cast<std::uint32_t>(CQRCodeRenderer::INFO_HEADER_SIZE));
    Put32(pInfo + 4, nWidth);
    Put32(pInfo + 8, static_cast<std::uint32_t>(-static_cast<std::int32_t>(nWidth)));
    Put16(pInfo + 12, BITMAP_PLANES);
    Put16(pInfo + 14, BITS_PER_PIXEL);
    // Compression, image size, resolutions and colour counts stay 0.
}

// Dark modules as scale x scale black squares; each module row is drawn once and copied to its other rows.
void DrawModules(const QRcode& code, int nScale, std::uint8_t* pPixels, std::size_t nRowBytes) {
    const int nModules = code.width;
    for (int y = 0; y < nModules; ++y) {
        std::uint8_t* pFirstRow = pPixels + static_cast<std::size_t>(y) * nScale * nRowBytes;
        const unsigned char* pModules = code.data + static_cast<std::size_t>(y) * nModules;
        for (int x = 0; x < nModules; ++x)
            if (pModules[x] & DARK_MODULE_BIT)
                std::memset(pFirstRow + static_cast<std::size_t>(x) * nScale * BYTES_PER_PIXEL, DARK,
                            static_cast<std::size_t>(nScale) * BYTES_PER_PIXEL);
        for (int k = 1; k < nScale; ++k) std::memcpy(pFirstRow + k * nRowBytes, pFirstRow, nRowBytes);
    }
}

// A locked working block of the system's global memory, freed at the end of the render.
class LockedBlock {
public:
    explicit LockedBlock(std::size_t nBytes) : m_hBlock(GlobalAlloc(GMEM_MOVEABLE, nBytes)) {
        if (m_hBlock) m_pBytes = static_cast<std::uint8_t*>(GlobalLock(m_hBlock));
    }
    ~LockedBlock() {
        if (m_pBytes) GlobalUnlock(m_hBlock);
        GlobalFree(m_hBlock);
    }
    LockedBlock(const LockedBlock&) = delete;
    LockedBlock& operator=(const LockedBlock&) = delete;
    std::uint8_t* Bytes() const { return m_pBytes; }

private:
    HGLOBAL m_hBlock;
    std::uint8_t* m_pBytes = nullptr;
};

bool WritePictureFile(const std::string& file, const std::uint8_t* pHeaders, const std::uint8_t* pPixels,
                      std::size_t nPixelBytes) {
    ZrFile* pFile = Safefopen(file.c_str(), "wb");
    if (!pFile) {
        SysLogError(__FILE__, __LINE__, "open file failed", "file_name", file);
        return false;
    }
    const bool bWritten = Safefwrite(pHeaders, CQRCodeRenderer::FILE_HEADER_SIZE, 1, pFile) == 1 &&
                          Safefwrite(pHeaders + CQRCodeRenderer::FILE_HEADER_SIZE,
                                     CQRCodeRenderer::INFO_HEADER_SIZE, 1, pFile) == 1 &&
                          Safefwrite(pPixels, nPixelBytes, 1, pFile) == 1;
    Safefclose(pFile);
    if (!bWritten) SysLogError(__FILE__, __LINE__, "write file failed", "file_name", file);
    return bWritten;
}
} // namespace

CQRCodeRenderer::CQRCodeRenderer(const char* szFile, const char* szLockFailText)
    : m_strFile(szFile), m_strLockFailText(szLockFailText), m_pfnAllocate(&AllocatePixels) {
}

CQRCodeRenderer::~CQRCodeRenderer() {
    if (m_pQRBitmap) m_pQRBitmap->Release();
}

std::size_t CQRCodeRenderer::RowBytes(std::size_t nWidth) {
    return (nWidth * BYTES_PER_PIXEL + 3) / 4 * 4;
}

int CQRCodeRenderer::EncodeCount() {
    return g_nEncodeCount;
}

void CQRCodeRenderer::SetPixelAllocator(PixelAllocator pfnAllocate) {
    m_pfnAllocate = pfnAllocate ? pfnAllocate : &AllocatePixels;
}

bool CQRCodeRenderer::Render(const char* szKey, int nScale) {
    const std::shared_ptr<const QRcode> code =
        szKey && nScale > 0 && nScale <= MAX_SCALE ? Encode(szKey) : nullptr;
    if (!code) {
        SysLogError(__FILE__, __LINE__, "QRCodeEncode Failed");
        return false;
    }
    const std::size_t nWidth = static_cast<std::size_t>(code->width) * static_cast<std::size_t>(nScale);
    const std::size_t nRowBytes = RowBytes(nWidth);
    const std::size_t nPixelBytes = nRowBytes * nWidth;

    const std::unique_ptr<std::uint8_t[]> pixels = m_pfnAllocate(nPixelBytes);
    if (!pixels) {
        SysLogError(__FILE__, __LINE__, "out of memory");
        return false;
    }
    std::memset(pixels.get(), LIGHT, nPixelBytes);

    const LockedBlock block(nPixelBytes + HEADERS_SIZE);
    if (!block.Bytes()) {
        SysLogError(__FILE__, __LINE__, m_strLockFailText);
        return false;
    }
    WriteHeaders(block.Bytes(), static_cast<std::uint32_t>(nWidth), static_cast<std::uint32_t>(nPixelBytes));
    DrawModules(*code, nScale, pixels.get(), nRowBytes);
    if (!WritePictureFile(m_strFile, block.Bytes(), pixels.get(), nPixelBytes)) return false;
    ReplaceBitmap();
    return true;
}

void CQRCodeRenderer::ReplaceBitmap() {
    if (m_pQRBitmap) m_pQRBitmap->Release();
    m_pQRBitmap = MyBitmapCreate(m_strFile.c_str());
}
