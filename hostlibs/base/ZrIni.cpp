// The base library's INI reader over the host libraries' one INI reader, with the profile functions' rules.
#include "ZrIni.h"

#include "text/IniDocument.h"

struct CZrIni::SData {
    txt::IniDocument doc;
    std::size_t nextBlock = 0; ///< block files: the block ReadBlock moves to
};

namespace {
bool IsSkippedLine(txt::IniIssue::Kind kind) {
    using Kind = txt::IniIssue::Kind;
    return kind == Kind::MissingEquals || kind == Kind::EmptyKey || kind == Kind::OutsideSection;
}

const txt::IniSection* CurrentBlock(const CZrIni::SData* pData) {
    if (!pData || pData->nextBlock == 0) return nullptr;
    const auto& sections = pData->doc.Sections();
    return pData->nextBlock <= sections.size() ? &sections[pData->nextBlock - 1] : nullptr;
}
} // namespace

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

// ---- blocks --------------------------------------------------------------------------------------

bool CZrIni::OpenBlocks(const char* szFile) {
    m_pData.reset();
    if (!szFile) return false;
    auto doc = txt::IniDocument::Load(szFile, txt::BLOCK_RULES);
    if (!doc) return false;
    m_pData = std::make_unique<SData>(SData{std::move(*doc)});
    return true;
}

void CZrIni::OpenBlocksText(std::string_view text) {
    m_pData = std::make_unique<SData>(SData{txt::IniDocument::Parse(text, txt::BLOCK_RULES)});
}

bool CZrIni::ReadBlock() {
    if (!m_pData || m_pData->nextBlock >= m_pData->doc.Sections().size()) return false;
    ++m_pData->nextBlock;
    return true;
}

bool CZrIni::GetBlockTitle(char* szBuf, int nSize) const {
    const txt::IniSection* block = CurrentBlock(m_pData.get());
    if (!block || block->name.empty() || !szBuf || nSize <= 0) return false;
    SafeSprintf(szBuf, static_cast<std::size_t>(nSize), "%s", block->name.c_str());
    return true;
}

bool CZrIni::GetBlockValueInt(const char* szKey, int& nValue) const {
    const txt::IniSection* block = CurrentBlock(m_pData.get());
    const std::string* value = block && szKey ? block->Value(szKey) : nullptr;
    if (!value) return false;
    nValue = SafeAtoi(value->c_str());
    return true;
}

int CZrIni::GetBlockLineAmount() const {
    const txt::IniSection* block = CurrentBlock(m_pData.get());
    return block ? static_cast<int>(block->entries.size()) : 0;
}

bool CZrIni::GetBlockLineByIndexKV(int nIndex, const char*& szKey, const char*& szValue) const {
    const txt::IniSection* block = CurrentBlock(m_pData.get());
    if (!block || nIndex < 0 || nIndex >= static_cast<int>(block->entries.size())) return false;
    const txt::IniEntry& entry = block->entries[static_cast<std::size_t>(nIndex)];
    szKey = entry.key.c_str();
    szValue = entry.value.c_str();
    return true;
}

int CZrIni::GetSkippedLineCount() const {
    if (!m_pData) return 0;
    int nCount = 0;
    for (const txt::IniIssue& issue : m_pData->doc.Issues()) nCount += IsSkippedLine(issue.kind) ? 1 : 0;
    return nCount;
}

int CZrIni::GetFirstSkippedLine() const {
    if (!m_pData) return 0;
    for (const txt::IniIssue& issue : m_pData->doc.Issues())
        if (IsSkippedLine(issue.kind)) return issue.line;
    return 0;
}
