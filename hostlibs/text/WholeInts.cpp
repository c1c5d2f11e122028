// Reading 32-bit integers from outside text whole.
#include "WholeInts.h"

#include <cctype>
#include <charconv>
#include <system_error>

namespace txt {

bool ReadWholeInts(std::string_view text, std::span<int> out, char cSeparator) {
    const char* p = text.data();
    const char* const end = p + text.size();
    const auto skipBlanks = [&] {
        while (p != end && std::isspace(static_cast<unsigned char>(*p))) ++p;
    };
    for (std::size_t i = 0; i < out.size(); ++i) {
        skipBlanks();
        if (i > 0 && cSeparator != ' ') {
            if (p == end || *p != cSeparator) return false;
            ++p;
            skipBlanks();
        }
        if (p != end && *p == '+') ++p;
        const auto [next, ec] = std::from_chars(p, end, out[i]);
        if (ec != std::errc()) return false;
        p = next;
    }
    return true;
}

} // namespace txt
