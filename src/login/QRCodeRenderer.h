// A login key as a QR-code picture: a 24-bit bitmap file, read back as the bitmap a login dialog draws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

class CMyBitmap;

/// Each login dialog that shows the QR code holds one renderer, which differs only in its file and in the
/// text it logs when the working block cannot be locked.
class CQRCodeRenderer {
public:
    /// The scale every key is rendered with (pixels per module).
    static constexpr int SCALE = 3;
    /// The file header and the information header of the picture file.
    static constexpr std::size_t FILE_HEADER_SIZE = 14;
    static constexpr std::size_t INFO_HEADER_SIZE = 40;
    static constexpr std::size_t HEADERS_SIZE = FILE_HEADER_SIZE + INFO_HEADER_SIZE;

    /// Allocates the pixel bytes; null when there is no memory.
    using PixelAllocator = std::unique_ptr<std::uint8_t[]> (*)(std::size_t nBytes);

    CQRCodeRenderer(const char* szFile, const char* szLockFailText);
    ~CQRCodeRenderer();
    CQRCodeRenderer(const CQRCodeRenderer&) = delete;
    CQRCodeRenderer& operator=(const CQRCodeRenderer&) = delete;

    /// Encodes the key exactly as given and writes it as the picture file with nScale pixels per module, then
    /// holds the file's bitmap. On any failure one error line is logged and the file and the held bitmap stay
    /// as they were. Returns whether a new bitmap is held.
    bool Render(const char* szKey, int nScale);

    /// The picture of the last successful render; null before one.
    CMyBitmap* GetBitmap() const { return m_pQRBitmap; }
    const std::string& GetFile() const { return m_strFile; }

    /// Bytes of one pixel row of a picture nWidth pixels wide: three per pixel, rounded up to a multiple
    /// of 4.
    static std::size_t RowBytes(std::size_t nWidth);
    /// How many keys were encoded since the process started: a key rendered by several dialogs in a row is
    /// encoded once.
    static int EncodeCount();
    /// Replaces the allocator of the pixel bytes (tests make it fail); null restores the default.
    void SetPixelAllocator(PixelAllocator pfnAllocate);

private:
    void ReplaceBitmap();

    std::string m_strFile;
    std::string m_strLockFailText;
    CMyBitmap* m_pQRBitmap = nullptr; ///< owned; ended with its Release
    PixelAllocator m_pfnAllocate;
};
