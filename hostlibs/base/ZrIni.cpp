// The base library's INI reader over the host libraries' one INI reader, with the profile functions' rules.
#include "ZrIni.h"

#include "text/IniDocument.h"

struct CZrIni::SData {
    txt::IniDocument doc;
};

CZrIni::CZrIni() = default;
CZrIni::~CZrIni() = default;

bool CZrIni::Open(const char* szFile) {
    m_pData.reset();
    if (!szFile) return false;
    auto doc = txt::IniDocument::Load(szFile, txt::PROFILE_RULES);
    if (!doc) return false;
    m_pData = std::make_unique<SData>(SData{std::move(*doc)});
    return true;
}

void CZrIni::OpenText(std::string_view text) {
    m_pData = std::make_unique<SData>(SData{txt::IniDocument::Parse(text, txt::PROFILE_RULES)});
}

bool CZrIni::IsOpen() const {
    return m_pData != nullptr;
}

bool CZrIni::HasSection(const char* szSection) const {
    return m_pData && szSection && m_pData->doc.Find(szSection);
}

const char* CZrIni::GetString(const char* szSection, const char* szKey, const char* szDefault) const {
    const std::string* value = m_pData && szSection && szKey ? m_pData->doc.Value(szSection, szKey) : nullptr;
    return value ? value->c_str() : szDefault;
}

int CZrIni::GetInt(const char* szSection, const char* szKey, int nDefault) const {
    const std::string* value = m_pData && szSection && szKey ? m_pData->doc.Value(szSection, szKey) : nullptr;
    return value ? SafeAtoi(value->c_str()) : nDefault;
}

std::vector<std::string> CZrIni::GetKeys(const char* szSection) const {
    std::vector<std::string> keys;
    const txt::IniSection* section = m_pData && szSection ? m_pData->doc.Find(szSection) : nullptr;
    if (!section) return keys;
    keys.reserve(section->entries.size());
    for (const txt::IniEntry& entry : section->entries) keys.push_back(entry.key);
    return keys;
}
