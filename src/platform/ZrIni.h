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

    // ---- blocks ----------------------------------------------------------------------------------
    // A block file is read with OpenBlocks: "[Title]" lines open blocks, "Key=Value" lines follow (blanks
    // around both dropped; ";" and "#" start comments). Unlike the profile reading above, a repeated title
    // is a block of its own and every line is kept, a repeated key too. ReadBlock steps through the blocks.

    /// Reads a block file below the client directory; false when it cannot be read.
    bool OpenBlocks(const char* szFile);
    /// Reads block-file text held in memory.
    void OpenBlocksText(std::string_view text);
    /// Moves to the next block (the first after opening); false when there is none.
    bool ReadBlock();
    /// Copies the current block's title (at most nSize - 1 bytes); false when its title line could not be
    /// read ("[" without "]", or "[]") or there is no current block.
    bool GetBlockTitle(char* szBuf, int nSize) const;
    /// The first value of a key in the current block, read with SafeAtoi; false when the key is absent.
    bool GetBlockValueInt(const char* szKey, int& nValue) const;
    /// Number of key-value lines of the current block.
    int GetBlockLineAmount() const;
    /// Key and value of line nIndex of the current block (valid until the next open); false out of range.
    bool GetBlockLineByIndexKV(int nIndex, const char*& szKey, const char*& szValue) const;
    /// Lines the reader could not take (no "=", no key, outside any block) and the first such line number
    /// (0 when none), so that a caller can name the fault once.
    int GetSkippedLineCount() const;
    int GetFirstSkippedLine() const;

    /// The reader's insides, defined by the base library.
    struct SData;

private:
    std::unique_ptr<SData> m_pData;
};
