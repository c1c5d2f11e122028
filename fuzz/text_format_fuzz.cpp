// Fuzzes texts from the client's files and the host's data used as formats (the registration address of
// 6124050, the version label, load tips): any bytes, filled with the argument kinds the screens pass.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "resources/MyString.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view format(reinterpret_cast<const char*>(data), size);
    const std::string text = CMyString::Format(format, "7", 75, 2.5);
    if (text.size() > CMyString::MAX_TEXT) __builtin_trap();
    (void)CMyString::Format(format);
    (void)CMyString::Format(format, std::string(300, 'w'));
    return 0;
}
