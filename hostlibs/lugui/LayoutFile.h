// The layout file of the widget toolkit: sections of keys, one per dialog template and per control.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "LuLayoutRecord.h"

namespace LuGui {

/// A parsed layout file. Parsing never fails: malformed lines and repeated sections or keys are reported with
/// LogMsg and skipped (the first occurrence wins).
class CLayoutFile {
public:
    /// Reads the file below the client directory; false (and nothing read) when it cannot be opened.
    bool Load(const char* szFile);
    /// Parses text as the content of a file named szFile (for messages).
    void Parse(std::string_view text, const char* szFile);
    /// The record of a section, null when there is none (matched without regard to case).
    const CLuLayoutRecord* Find(const std::string& strSection) const;
    std::size_t GetRecordCount() const { return m_mapRecords.size(); }

    /// Section names of dialogs and controls.
    static std::string DialogSection(UINT nTemplateId);
    static std::string ControlSection(UINT nTemplateId, UINT nCtrlId);
    /// Reads up to N decimal numbers separated by blanks or commas into out (unread ones stay); returns how
    /// many were read.
    template <std::size_t N> static int ReadNumbers(const char* sz, int (&out)[N]) {
        return ReadNumbers(sz, out, static_cast<int>(N));
    }
    static int ReadNumbers(const char* sz, int* pOut, int nMax);

private:
    std::unordered_map<std::string, CLuLayoutRecord> m_mapRecords; ///< by lower-cased section name
};

} // namespace LuGui
