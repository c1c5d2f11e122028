// Fuzzes the head configuration reading with arbitrary texts: every head comes from a line of its own,
// lookups outside the lists answer 0, and reading the same text again gives the same configuration.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "resources/SelectHeadMgr.h"

namespace {
std::size_t CountLines(std::string_view text) {
    std::size_t n = 1;
    for (const char c : text) n += c == '\n' ? 1 : 0;
    return n;
}

std::vector<std::int32_t> Snapshot(const CSelectHeadMgr& heads) {
    std::vector<std::int32_t> values;
    for (int i = 0; i < heads.GetMaleHeadCount(); ++i) values.push_back(heads.GetMaleHead(i));
    values.push_back(-1);
    for (int i = 0; i < heads.GetFemaleHeadCount(); ++i) values.push_back(heads.GetFemaleHead(i));
    return values;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    CSelectHeadMgr heads;
    heads.LoadText(text);
    const std::size_t nLines = CountLines(text);
    if (static_cast<std::size_t>(heads.GetMaleHeadCount() + heads.GetFemaleHeadCount()) > nLines)
        __builtin_trap();
    for (const int outside : {-1, heads.GetMaleHeadCount(), 2147483647})
        if (heads.GetMaleHead(outside) != 0) __builtin_trap();
    for (const int outside : {-2147483647 - 1, heads.GetFemaleHeadCount()})
        if (heads.GetFemaleHead(outside) != 0) __builtin_trap();
    const std::vector<std::int32_t> first = Snapshot(heads);
    heads.LoadText(text);
    if (Snapshot(heads) != first) __builtin_trap();
    return 0;
}
