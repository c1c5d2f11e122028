// Parsing of the layout file: INI-like sections "[Dialog1000]" and "[Dialog1000.1001]" with "key = value".
#include "LayoutFile.h"

#include <algorithm>
#include <cctype>

#include "Log.h"

namespace LuGui {
namespace {

// Lines are read in pieces of this size and joined again.
constexpr int MAX_LAYOUT_LINE = 2048;

std::string ToLower(std::string_view s) {
    std::string out(s);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return std::tolower(c); });
    return out;
}

std::string_view Trim(std::string_view s) {
    const auto begin = s.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos) return {};
    const auto end = s.find_last_not_of(" \t\r\n");
    return s.substr(begin, end - begin + 1);
}

} // namespace

bool CLayoutFile::Load(const char* szFile) {
    ZrFile* pFile = Safefopen(szFile, "rb");
    if (!pFile) return false;
    std::string text;
    char buf[MAX_LAYOUT_LINE];
    while (Safefgets(buf, sizeof buf, pFile)) text += buf;
    Safefclose(pFile);
    Parse(text, szFile);
    return true;
}

void CLayoutFile::Parse(const std::string& strText, const char* szFile) {
    CLuLayoutRecord* pCurrent = nullptr;
    std::size_t pos = 0;
    int nLine = 0;
    while (pos < strText.size()) {
        std::size_t end = strText.find('\n', pos);
        if (end == std::string::npos) end = strText.size();
        ParseLine(std::string_view(strText).substr(pos, end - pos), ++nLine, szFile, pCurrent);
        pos = end + 1;
    }
}

void CLayoutFile::ParseLine(std::string_view line, int nLine, const char* szFile,
                            CLuLayoutRecord*& pCurrent) {
    line = Trim(line);
    if (line.empty() || line.front() == ';' || line.front() == '#') return;
    if (line.front() == '[') {
        const auto close = line.find(']');
        const std::string_view name =
            close == std::string_view::npos ? std::string_view{} : Trim(line.substr(1, close - 1));
        if (name.empty()) {
            LogMsg("layout %s, line %d: bad section", szFile, nLine);
            pCurrent = nullptr;
            return;
        }
        auto [it, inserted] = m_mapRecords.try_emplace(ToLower(name), std::string(name));
        if (!inserted)
            LogMsg("layout %s, line %d: section [%.*s] repeated, first kept", szFile, nLine,
                   static_cast<int>(name.size()), name.data());
        pCurrent = inserted ? &it->second : nullptr;
        return;
    }
    const auto eq = line.find('=');
    if (eq == std::string_view::npos || Trim(line.substr(0, eq)).empty()) {
        LogMsg("layout %s, line %d: no key", szFile, nLine);
        return;
    }
    if (!pCurrent) return; // keys outside a section, or of a repeated section
    const std::string_view key = Trim(line.substr(0, eq));
    if (!pCurrent->AddValue(std::string(key), std::string(Trim(line.substr(eq + 1)))))
        LogMsg("layout %s, line %d: key %.*s repeated, first kept", szFile, nLine,
               static_cast<int>(key.size()), key.data());
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
