// Fuzzes the profile reading of the server-state file (web addresses, field placeholders, edition
// descriptions) with arbitrary texts.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "ProfileReads.h"
#include "servers/EditionInfo.h"

namespace {
constexpr std::size_t CLIENT_READ_SIZE = 1024;

std::vector<fuzzprofile::SRead> ClientReads() {
    std::vector<fuzzprofile::SRead> reads = {{"loginUrl", "tokenQuestion", CLIENT_READ_SIZE},
                                             {"joinedServerBtn", "linkUrl", CLIENT_READ_SIZE},
                                             {"zrAccount", "normalTxt", CLIENT_READ_SIZE},
                                             {"zrPassword", "normalTxt", CLIENT_READ_SIZE},
                                             {"zrTel", "normalTxt", CLIENT_READ_SIZE}};
    for (int edition = 1; edition <= EDITION_COUNT; ++edition)
        reads.push_back({"VerTip", FindEdition(edition)->szTipKey, CLIENT_READ_SIZE});
    return reads;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<fuzzprofile::SRead> reads = ClientReads();
    fuzzprofile::CheckReads(std::string_view(reinterpret_cast<const char*>(data), size), reads);
    return 0;
}
