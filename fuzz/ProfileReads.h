// What the game-setup and server-state targets check of a profile read: the copy is the value (or the
// default) cut to the buffer, terminated, never past it.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "text/ProfileText.h"

namespace fuzzprofile {

/// A key the client reads and the size of the buffer it reads it into.
struct SRead {
    const char* szSection;
    const char* szKey;
    std::size_t nSize;
};

constexpr const char* DEFAULT_TEXT = "default";
// Sizes past every value, at the edges, and those the client uses.
constexpr std::size_t EDGE_SIZES[] = {1, 2, 255, 1024};

inline void CheckRead(const txt::ProfileText& profile, const char* szSection, const char* szKey,
                      std::size_t nSize) {
    std::vector<char> buf(nSize + 1, '#');
    const std::size_t n = profile.CopyString(szSection, szKey, DEFAULT_TEXT, buf.data(), nSize);
    const std::string* value = profile.Value(szSection, szKey);
    const std::string_view expected = value ? std::string_view(*value) : std::string_view(DEFAULT_TEXT);
    if (n >= nSize || buf[n] != '\0' || buf[nSize] != '#') __builtin_trap();
    if (n != std::min(expected.size(), nSize - 1) || std::memcmp(buf.data(), expected.data(), n) != 0)
        __builtin_trap();
}

inline bool HasNul(std::string_view name) {
    return name.find('\0') != std::string_view::npos;
}

/// Reads the client's keys, then every key of the text as spelled and in upper case.
inline void CheckReads(std::string_view text, const std::vector<SRead>& reads) {
    const txt::ProfileText profile = txt::ProfileText::Parse(text);
    for (const SRead& read : reads) CheckRead(profile, read.szSection, read.szKey, read.nSize);
    for (const txt::IniSection& section : profile.Document().Sections()) {
        if (HasNul(section.name)) continue; // no caller can name it
        for (const txt::IniEntry& entry : section.entries) {
            if (HasNul(entry.key)) continue;
            std::string upper = entry.key;
            for (char& c : upper)
                if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
            if (!profile.Value(section.name.c_str(), upper.c_str())) __builtin_trap();
            for (const std::size_t nSize : EDGE_SIZES)
                CheckRead(profile, section.name.c_str(), entry.key.c_str(), nSize);
        }
    }
}

} // namespace fuzzprofile
