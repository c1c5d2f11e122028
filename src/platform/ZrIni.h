// The base library's reader of block-structured INI files (CZrIni): a file read once, its keys looked up in
// memory.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "BaseLib.h"

class CZrIni {
public:
    CZrIni();
    ~CZrIni();
    CZrIni(const CZrIni&) = delete;
    CZrIni& operator=(const CZrIni&) = delete;

    /// Reads a file below the client directory (or its packed archives), as the profile functions read one:
    /// sections and keys match without regard to case, a repeated section adds its keys, the first value of a
    /// key counts, blanks around keys and values are dropped. False when the file cannot be read; the reader
    /// is empty then.
    bool Open(const char* szFile);
    /// Reads the text of such a file held in memory, with the same rules.
    void OpenText(std::string_view text);
    bool IsOpen() const;
    bool HasSection(const char* szSection) const;
    /// The value of a key, szDefault when the section or the key is missing. Valid until the next Open.
    const char* GetString(const char* szSection, const char* szKey, const char* szDefault = "") const;
    /// The value read as a decimal number (SafeAtoi), nDefault when missing.
    int GetInt(const char* szSection, const char* szKey, int nDefault = 0) const;
    /// The keys of a section in file order, as spelled; empty when there is no such section.
    std::vector<std::string> GetKeys(const char* szSection) const;

private:
    struct SData;
    std::unique_ptr<SData> m_pData;
};
