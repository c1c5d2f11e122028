// Parsing of the layout file: INI-like sections "[Dialog1000]" and "[Dialog1000.1001]" with "key = value".
#include "LayoutFile.h"

#include <algorithm>
#include <cctype>

#include "Log.h"
#include "text/IniDocument.h"

namespace LuGui {
namespace {

std::string ToLower(std::string_view s) {
    std::string out(s);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return std::tolower(c); });
    return out;
}

void Report(const txt::IniIssue& issue, const char* szFile) {
    using Kind = txt::IniIssue::Kind;
    switch (issue.kind) {
    case Kind::UnclosedSection:
    case Kind::EmptySectionName:
        LogMsg("layout %s, line %d: bad section", szFile, issue.line);
        return;
    case Kind::RepeatedSection:
        LogMsg("layout %s, line %d: section [%s] repeated, first kept", szFile, issue.line,
               issue.name.c_str());
        return;
    case Kind::MissingEquals:
    case Kind::EmptyKey:
        LogMsg("layout %s, line %d: no key", szFile, issue.line);
        return;
    case Kind::RepeatedKey:
        LogMsg("layout %s, line %d: key %s repeated, first kept", szFile, issue.line, issue.name.c_str());
        return;
    case Kind::OutsideSection:
        return; // keys outside a section describe nothing
    }
}

} // namespace

bool CLayoutFile::Load(const char* szFile) {
    const auto text = szFile ? txt::IniDocument::ReadClientFile(szFile) : std::nullopt;
    if (!text) return false;
    Parse(*text, szFile);
    return true;
}

void CLayoutFile::Parse(std::string_view text, const char* szFile) {
    const txt::IniDocument doc = txt::IniDocument::Parse(text, txt::LAYOUT_RULES);
    for (const txt::IniIssue& issue : doc.Issues()) Report(issue, szFile);
    for (const txt::IniSection& section : doc.Sections()) {
        const auto [it, inserted] = m_mapRecords.try_emplace(ToLower(section.name));
        if (!inserted) { // a text parsed after another adds only keys the record lacks
            for (const txt::IniEntry& entry : section.entries) it->second.AddValue(entry.key, entry.value);
            continue;
        }
        // NOTE: the reader keeps a key's first value, so the keys are distinct: adding them one by one would
        // compare each with all before it, which is quadratic in a section's size.
        CLuLayoutRecord::Values values;
        values.reserve(section.entries.size());
        for (const txt::IniEntry& entry : section.entries) values.emplace_back(entry.key, entry.value);
        it->second = CLuLayoutRecord(section.name, std::move(values));
    }
}

const CLuLayoutRecord* CLayoutFile::Find(const std::string& strSection) const {
    const auto it = m_mapRecords.find(ToLower(strSection));
    return it == m_mapRecords.end() ? nullptr : &it->second;
}

int CLayoutFile::ReadNumbers(const char* sz, int* pOut, int nMax) {
    if (!sz) return 0;
    int nRead = 0;
    const char* p = sz;
    while (nRead < nMax) {
        while (*p == ' ' || *p == '\t' || *p == ',') ++p;
        const char* pStart = p;
        if (*p == '-' || *p == '+') ++p;
        if (!std::isdigit(static_cast<unsigned char>(*p))) break;
        while (std::isdigit(static_cast<unsigned char>(*p))) ++p;
        pOut[nRead++] = SafeAtoi(std::string(pStart, p).c_str());
    }
    return nRead;
}

std::string CLayoutFile::DialogSection(UINT nTemplateId) {
    return "Dialog" + std::to_string(nTemplateId);
}

std::string CLayoutFile::ControlSection(UINT nTemplateId, UINT nCtrlId) {
    return DialogSection(nTemplateId) + "." + std::to_string(nCtrlId);
}

} // namespace LuGui
