// Case-insensitive lookup of client files, part by part, because the system spells one file several ways.
#include "ClientPath.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "BaseLib.h"

namespace gfx {
namespace fs = std::filesystem;
namespace {
constexpr std::size_t kMaxNameLength = 4096;

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return LowerAscii(x) == LowerAscii(y); });
}

std::string Slashed(std::string_view name) {
    std::string out(name);
    std::replace(out.begin(), out.end(), '\\', '/');
    return out;
}

// The entry of dir named like part, exactly or else without regard to case; empty when none.
fs::path FindEntry(const fs::path& dir, std::string_view part) {
    std::error_code error;
    fs::path exact = dir / std::string(part);
    if (fs::exists(exact, error)) return exact;
    for (fs::directory_iterator it(dir, error), end; !error && it != end; it.increment(error)) {
        if (EqualNoCase(it->path().filename().string(), part)) return it->path();
    }
    return {};
}
} // namespace

std::string ClientPath::Resolve(std::string_view name) {
    if (name.empty() || name.size() > kMaxNameLength) return {};
    const std::string slashed = Slashed(name);
    std::error_code error;
    if (slashed.front() == '/') return fs::is_regular_file(slashed, error) ? slashed : std::string();
    fs::path current = GetClientDirectory();
    if (current.empty()) current = ".";
    std::size_t start = 0;
    while (start <= slashed.size()) {
        const std::size_t end = std::min(slashed.find('/', start), slashed.size());
        const std::string_view part = std::string_view(slashed).substr(start, end - start);
        start = end + 1;
        if (part.empty() || part == ".") continue;
        if (part == "..") {
            current /= "..";
            continue;
        }
        current = FindEntry(current, part);
        if (current.empty()) return {};
    }
    return fs::is_regular_file(current, error) ? current.string() : std::string();
}

std::string ClientPath::NormalKey(std::string_view name) {
    std::string key = Slashed(name.substr(0, kMaxNameLength));
    while (key.rfind("./", 0) == 0) key.erase(0, 2);
    std::transform(key.begin(), key.end(), key.begin(), LowerAscii);
    return key;
}

} // namespace gfx
