// Reading "ini/SelectHead.ini" into the head configuration, bounded whatever the file holds.
#include "resources/SelectHeadMgr.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>
#include <string>

#include "common/SysLog.h"
#include "platform/ZrIni.h"

namespace {
constexpr const char* PRO_HEAD_BLOCK = "ProHeadSet";
constexpr const char* MALE_HEAD_BLOCK = "MaleHeadSet";
constexpr const char* FEMALE_HEAD_BLOCK = "FemaleHeadSet";
constexpr std::string_view PRO_HEAD_PREFIX = "ProHeadAni_";
constexpr std::string_view MALE_HEAD_PREFIX = "MaleHead_";
constexpr std::string_view FEMALE_HEAD_PREFIX = "FemaleHead_";
constexpr int TITLE_BUFFER = 64;

std::unique_ptr<CSelectHeadMgr>& Instance() {
    static std::unique_ptr<CSelectHeadMgr> s_pInstance;
    return s_pInstance;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
        if (lower(text[i]) != lower(prefix[i])) return false;
    }
    return true;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && StartsWithNoCase(a, b);
}

/// The number after the prefix as "%d" reads it (blanks, a sign, digits; the rest ignored); nothing when no
/// digit follows or the number leaves 32 bits.
std::optional<std::int32_t> NumberAfter(std::string_view key, std::string_view prefix) {
    if (!StartsWithNoCase(key, prefix)) return std::nullopt;
    std::string_view rest = key.substr(prefix.size());
    while (!rest.empty() && (rest.front() == ' ' || rest.front() == '\t')) rest.remove_prefix(1);
    if (!rest.empty() && rest.front() == '+') rest.remove_prefix(1);
    std::int32_t n = 0;
    const auto [end, ec] = std::from_chars(rest.data(), rest.data() + rest.size(), n);
    if (ec != std::errc()) return std::nullopt;
    return n;
}

/// The n of a key made exactly with "<prefix>%d" from a positive n (as the reader formats it); else 0.
std::int64_t ExactIndexAfter(std::string_view key, std::string_view prefix) {
    if (!StartsWithNoCase(key, prefix)) return 0;
    const std::string_view digits = key.substr(prefix.size());
    if (digits.empty() || digits.front() == '0' || digits.size() > 10) return 0;
    std::int64_t n = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return 0;
        n = n * 10 + (c - '0');
    }
    return n;
}
} // namespace

CSelectHeadMgr::~CSelectHeadMgr() = default;

CSelectHeadMgr& CSelectHeadMgr::GetInstance() {
    auto& pInstance = Instance();
    if (!pInstance) {
        pInstance = std::make_unique<CSelectHeadMgr>();
        pInstance->Load();
    }
    return *pInstance;
}

void CSelectHeadMgr::DestroyInstance() {
    Instance().reset();
}

bool CSelectHeadMgr::HasInstance() {
    return Instance() != nullptr;
}

void CSelectHeadMgr::Clear() {
    m_mapProHead.clear();
    m_vecMaleHead.clear();
    m_vecFemaleHead.clear();
}

void CSelectHeadMgr::Load() {
    Clear();
    CZrIni ini;
    if (!ini.OpenBlocks(HEAD_FILE)) {
        SysLogError(__FILE__, __LINE__, "open file failed", "file_name", HEAD_FILE);
        return;
    }
    ReadBlocks(ini, HEAD_FILE);
}

void CSelectHeadMgr::LoadText(std::string_view text) {
    Clear();
    CZrIni ini;
    ini.OpenBlocksText(text);
    ReadBlocks(ini, HEAD_FILE);
}

void CSelectHeadMgr::ReadBlocks(CZrIni& ini, const char* szSource) {
    if (const int nSkipped = ini.GetSkippedLineCount(); nSkipped > 0) {
        // NOTE: one line for all of them: a damaged file must not flood the log.
        SysLogWarn(__FILE__, __LINE__, "lines without key=value skipped", "first_line",
                   std::to_string(ini.GetFirstSkippedLine()) + " of " + std::to_string(nSkipped) + " in " +
                       szSource);
    }
    char szTitle[TITLE_BUFFER] = {};
    while (ini.ReadBlock()) {
        if (!ini.GetBlockTitle(szTitle, TITLE_BUFFER)) {
            SysLogError(__FILE__, __LINE__, "read block title error", "title", szSource);
            return;
        }
        if (EqualsNoCase(szTitle, PRO_HEAD_BLOCK))
            ReadProHeadSet(ini);
        else if (EqualsNoCase(szTitle, MALE_HEAD_BLOCK))
            ReadHeadList(ini, "MaleHeadAmount", MALE_HEAD_PREFIX, m_vecMaleHead);
        else if (EqualsNoCase(szTitle, FEMALE_HEAD_BLOCK))
            ReadHeadList(ini, "FemaleHeadAmount", FEMALE_HEAD_PREFIX, m_vecFemaleHead);
    }
}

void CSelectHeadMgr::ReadProHeadSet(const CZrIni& ini) {
    const int nLines = ini.GetBlockLineAmount();
    for (int i = 0; i < nLines; ++i) {
        const char* szKey = nullptr;
        const char* szValue = nullptr;
        if (!ini.GetBlockLineByIndexKV(i, szKey, szValue)) continue;
        if (const auto nKey = NumberAfter(szKey, PRO_HEAD_PREFIX)) m_mapProHead[*nKey] = SafeAtoi(szValue);
    }
}

void CSelectHeadMgr::ReadHeadList(const CZrIni& ini, const char* szAmountKey, std::string_view prefix,
                                  std::vector<std::int32_t>& vecOut) {
    int nAmount = 0;
    if (!ini.GetBlockValueInt(szAmountKey, nAmount) || nAmount < 1) return;
    // NOTE: the keys 1..amount are looked for among the block's lines instead of one lookup per n, so that
    // an amount of two billion costs what the block's lines cost. The first line of a key counts.
    std::vector<std::pair<std::int64_t, std::int32_t>> byIndex;
    const int nLines = ini.GetBlockLineAmount();
    byIndex.reserve(static_cast<std::size_t>(nLines));
    for (int i = 0; i < nLines; ++i) {
        const char* szKey = nullptr;
        const char* szValue = nullptr;
        if (!ini.GetBlockLineByIndexKV(i, szKey, szValue)) continue;
        const std::int64_t n = ExactIndexAfter(szKey, prefix);
        if (n >= 1 && n <= nAmount) byIndex.emplace_back(n, SafeAtoi(szValue));
    }
    std::stable_sort(byIndex.begin(), byIndex.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    vecOut.reserve(vecOut.size() + byIndex.size());
    for (std::size_t i = 0; i < byIndex.size(); ++i)
        if (i == 0 || byIndex[i].first != byIndex[i - 1].first) vecOut.push_back(byIndex[i].second);
}

std::int32_t CSelectHeadMgr::GetProHeadAni(std::int32_t nKey) const {
    const auto it = m_mapProHead.find(nKey);
    return it == m_mapProHead.end() ? 0 : it->second;
}

std::int32_t CSelectHeadMgr::GetMaleHead(int nIndex) const {
    return nIndex >= 0 && nIndex < GetMaleHeadCount() ? m_vecMaleHead[static_cast<std::size_t>(nIndex)] : 0;
}

std::int32_t CSelectHeadMgr::GetFemaleHead(int nIndex) const {
    return nIndex >= 0 && nIndex < GetFemaleHeadCount() ? m_vecFemaleHead[static_cast<std::size_t>(nIndex)]
                                                        : 0;
}
