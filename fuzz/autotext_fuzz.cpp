// Fuzzes the auto-text layout and drawing: parameters from the first bytes, the rest is the text.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "controls/SimAutoText.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"

namespace {
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
    if (size < 1) return 0;
    const std::uint8_t flags = *data++;
    --size;
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
    text.SetAlign(flags % 3);
    const std::string body(reinterpret_cast<const char*>(data), size);
    text.SetText(body.c_str(), (flags & 1) != 0, (flags & 2) != 0);
    for (const SAutoTextRun& run : text.GetRuns())
        if (run.strText.size() > CSimAutoText::MAX_RUN_TEXT) __builtin_trap();
    host::BeginFrame();
    text.ShowAt(3, 4);
    return 0;
}
