// Fuzzes the string-table reading with arbitrary texts, then looks up what it may have stored.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "resources/FlashStringMgr.h"

namespace {
// A line is read into 1024 bytes and its id takes at least one digit and "=".
constexpr std::size_t MAX_VALUE = 1024 - 1 - 2;
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CFlashStringMgr mgr;
    mgr.LoadFromTexts(std::string_view(reinterpret_cast<const char*>(data), size), {});
    if (mgr.IsLoading()) __builtin_trap();
    for (std::uint32_t id : {0u, 1u, 5u, 12u, 50000001u, 60000000u})
        if (std::strlen(mgr.GetStr(id)) > MAX_VALUE) __builtin_trap();
    for (std::size_t i = 0; i <= mgr.GetRangedCount(); ++i)
        if (std::strlen(mgr.GetRanged(i).second) > MAX_VALUE) __builtin_trap();
    return 0;
}
