// One client INI text read as the profile functions read it, for the file functions and for callers that
// hold the text.
#pragma once

#include <cstddef>
#include <string_view>

#include "IniDocument.h"

namespace txt {

class ProfileText {
public:
    /// Parses the text of a client INI file: sections and keys match without regard to case, a repeated
    /// section adds its keys, the first value of a key counts.
    static ProfileText Parse(std::string_view text);

    /// Copies the value of a key, or szDefault (null reads as empty) when the section or the key is missing,
    /// into szBuf of nSize bytes: truncated, always terminated. Returns the bytes copied; 0 without a buffer.
    std::size_t CopyString(const char* szSection, const char* szKey, const char* szDefault, char* szBuf,
                           std::size_t nSize) const;
    /// The value of a key, null when the section or the key is missing.
    const std::string* Value(const char* szSection, const char* szKey) const;
    const IniDocument& Document() const { return m_doc; }

private:
    IniDocument m_doc;
};

} // namespace txt
