// Fuzzes the string-table loader with arbitrary file contents, then looks up what it may have stored.
#include <cstddef>
#include <cstdint>
#include <string>

#include "TempClientDir.h"
#include "resources/FlashStringMgr.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static TempClientDir dir;
    dir.Write("ini/FlashString.ini", std::string(reinterpret_cast<const char*>(data), size));
    CFlashStringMgr mgr;
    mgr.Load();
    for (std::uint32_t id : {0u, 1u, 5u, 12u, 50000001u, 60000000u}) (void)mgr.GetStrInt(id);
    for (std::size_t i = 0; i <= mgr.GetRangedCount(); ++i) (void)mgr.GetRanged(i);
    return 0;
}
