// Fuzzes the profile reading of the game-setup file (the last login) with arbitrary texts.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ProfileReads.h"

namespace {
constexpr std::size_t LAST_LOGIN_SIZE = 255;
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<fuzzprofile::SRead> reads = {{"LastLogin", "Record", LAST_LOGIN_SIZE}};
    fuzzprofile::CheckReads(std::string_view(reinterpret_cast<const char*>(data), size), reads);
    return 0;
}
