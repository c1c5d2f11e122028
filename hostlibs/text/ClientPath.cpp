// Case-insensitive lookup of client files part by part, because the system spells one file several ways.
#include "ClientPath.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "BaseLib.h"

namespace txt {
namespace fs = std::filesystem;
namespace {

char LowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char x, char y) { return LowerAscii(x) == LowerAscii(y); });
}

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

// The parts of a relative name with "." dropped and ".." applied; nothing when ".." climbs above the start.
std::optional<std::vector<std::string_view>> Parts(std::string_view name) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    while (start <= name.size()) {
        std::size_t end = start;
        while (end < name.size() && !IsSeparator(name[end])) ++end;
        const std::string_view part = name.substr(start, end - start);
        start = end + 1;
        if (part.empty() || part == ".") continue;
        if (part != "..") {
            parts.push_back(part);
            continue;
        }
        if (parts.empty()) return std::nullopt;
        parts.pop_back();
    }
    return parts;
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

bool IsKind(const fs::path& path, ClientEntry kind) {
    std::error_code error;
    switch (kind) {
    case ClientEntry::File:
        return fs::is_regular_file(path, error);
    case ClientEntry::Folder:
        return fs::is_directory(path, error);
    case ClientEntry::Any:
        return fs::exists(path, error);
    case ClientEntry::NewFile:
        return !fs::is_directory(path, error) && fs::is_directory(path.parent_path(), error);
    }
    return false;
}
} // namespace

std::string ClientPath::Resolve(std::string_view name, ClientEntry kind) {
    if (name.empty() || name.size() > MAX_NAME_LENGTH) return {};
    if (IsSeparator(name.front())) {
        std::string absolute(name);
        std::replace(absolute.begin(), absolute.end(), '\\', '/');
        return IsKind(absolute, kind) ? absolute : std::string();
    }
    const auto parts = Parts(name);
    if (!parts || parts->empty()) return {};
    fs::path current = GetClientDirectory();
    if (current.empty()) current = ".";
    for (std::size_t i = 0; i < parts->size(); ++i) {
        const std::string_view part = (*parts)[i];
        fs::path next = FindEntry(current, part);
        // A file to be written keeps its own spelling when no entry of that name exists yet.
        if (next.empty() && kind == ClientEntry::NewFile && i + 1 == parts->size()) next = current / part;
        if (next.empty()) return {};
        current = std::move(next);
    }
    return IsKind(current, kind) ? current.string() : std::string();
}

std::string ClientPath::NormalKey(std::string_view name) {
    name = name.substr(0, MAX_NAME_LENGTH);
    std::string key;
    if (const auto parts = Parts(name)) {
        for (std::string_view part : *parts) key.append(key.empty() ? "" : "/").append(part);
    } else {
        // NOTE: a name that climbs out resolves to nothing; its key only has to differ from every other.
        key = "..";
        key.append(name);
    }
    if (!name.empty() && IsSeparator(name.front())) key.insert(0, "/");
    std::transform(key.begin(), key.end(), key.begin(), LowerAscii);
    return key;
}

} // namespace txt
