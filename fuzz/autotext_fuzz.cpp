// Fuzzes the auto-text layout and drawing: parameters from the first bytes, the rest is the text.
//
// Input: a flag byte (1 wrap, 2 tags, 4 string-resource mode, 8 English, 16 English-only, 32/64 line
// spacing), an align byte (modulo 3), then width, font size and character spacing as 32-bit integers, then
// the text.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "controls/SimAutoText.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"

namespace {
std::uint8_t ReadByte(const std::uint8_t*& data, std::size_t& size) {
    if (size == 0) return 0;
    --size;
    return *data++;
}

int ReadInt(const std::uint8_t*& data, std::size_t& size) {
    std::int32_t value = 0;
    const std::size_t n = size < sizeof value ? size : sizeof value;
    std::memcpy(&value, data, n);
    data += n;
    size -= n;
    return value;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool bInit = [] {
        host::UseCanvas(host::CanvasKind::Recording);
        return true;
    }();
    (void)bInit;
    const std::uint8_t flags = ReadByte(data, size);
    const std::uint8_t align = ReadByte(data, size);
    const int nWidth = ReadInt(data, size);
    const int nFont = ReadInt(data, size);
    const int nSpacing = ReadInt(data, size) % 64;
    host::SetData("language", (flags & 8) ? "English" : "Chinese");
    host::SetData("englishonly", (flags & 16) ? "1" : "0");

    CSimAutoText text;
    text.SetFontSize(nFont);
    text.SetWidth(nWidth);
    text.SetCharSpacing(nSpacing);
    text.SetLineSpacing((flags >> 5) & 3);
    text.SetStrResMode((flags & 4) ? 1u : 0u);
    text.SetAlign(align % 3);
    const std::string body(reinterpret_cast<const char*>(data), size);
    if (text.SetText(body.c_str(), (flags & 1) != 0, (flags & 2) != 0) != 1) __builtin_trap();
    if (text.GetWidth() < nFont) __builtin_trap();
    // Runs belong to laid-out lines, except those of the line an oversized font cut short.
    for (const SAutoTextRun& run : text.GetRuns())
        if (run.strText.size() > CSimAutoText::MAX_RUN_TEXT || run.nLine < 0 ||
            run.nLine > text.GetLineCount())
            __builtin_trap();
    host::BeginFrame();
    text.ShowAt(3, 4);
    return 0;
}
