// Quick-entry records: remembered servers the edition screen offers as shortcuts, mirrored to the host.
#include <string>

#include "platform/Log.h"
#include "resources/TextScan.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr std::size_t QUICK_NAME_SIZE = 260;
constexpr std::size_t MIN_TRAILING_RECORD_LENGTH = 6;

std::string FormatRecord(const SQuickEntry& e) {
    char buf[64];
    SafeSprintf(buf, sizeof buf, "%d_%d_%d", e.nModel, e.nGroup, e.nServer);
    return buf;
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

// Reads one record as "%d_%d_%d_%[^$]$%s" would, each name cut to the 260-byte buffer it was read into.
bool ParseQuickRecord(std::string_view text, SQuickEntry& entry) {
    std::size_t pos = 0;
    std::int32_t numbers[3];
    for (int i = 0; i < 3; ++i) {
        const auto v = textscan::ReadInt(text, pos);
        if (!v) return false;
        numbers[i] = *v;
        if (i < 2) {
            if (pos >= text.size() || text[pos] != '_') return false;
            ++pos;
        }
    }
    entry = SQuickEntry{};
    entry.nModel = numbers[0];
    entry.nGroup = numbers[1];
    entry.nServer = numbers[2];
    if (pos >= text.size() || text[pos] != '_') return true;
    ++pos;
    const std::size_t dollar = text.find('$', pos);
    const std::size_t groupEnd = dollar == std::string_view::npos ? text.size() : dollar;
    if (groupEnd == pos) return true; // "%[^$]" needs one character at least
    entry.strGroupName = text.substr(pos, std::min(groupEnd - pos, QUICK_NAME_SIZE - 1));
    if (dollar == std::string_view::npos) return true;
    pos = dollar + 1;
    while (pos < text.size() && IsBlank(text[pos])) ++pos;
    std::size_t end = pos;
    while (end < text.size() && !IsBlank(text[end])) ++end;
    entry.strServerName = text.substr(pos, std::min(end - pos, QUICK_NAME_SIZE - 1));
    return true;
}
} // namespace

int CFlashSimulator::AddQuickEntry(const SQuickEntry& entry) {
    for (const SQuickEntry& e : m_vecQuickEntry)
        if (e.nModel == entry.nModel && e.nGroup == entry.nGroup && e.nServer == entry.nServer) return 1;
    if (m_vecQuickEntry.size() >= MAX_QUICK_ENTRY_AMOUNT) return 2;
    m_vecQuickEntry.push_back(entry);
    NotifyHost("ADD_QUICK_RECORD", FormatRecord(entry).c_str());
    return 0;
}

void CFlashSimulator::ReplaceQuickEntry(const SQuickEntry& entry, int nReplaceIndex) {
    const bool bFull = m_vecQuickEntry.size() == MAX_QUICK_ENTRY_AMOUNT;
    const bool bIndexValid = nReplaceIndex >= 0 && nReplaceIndex < static_cast<int>(m_vecQuickEntry.size());
    if (!bFull)
        LogMsg("ASSERT(m_vecQuickEntry.size() == MAX_QUICK_ENTRY_AMOUNT) in %d line of %s", __LINE__,
               __FILE__);
    if (!bIndexValid)
        LogMsg("ASSERT(nReplaceIndex >= 0 && nReplaceIndex < m_vecQuickEntry.size()) in %d line of %s",
               __LINE__, __FILE__);
    if (!bFull || !bIndexValid) return;
    m_vecQuickEntry[static_cast<std::size_t>(nReplaceIndex)] = entry;
    char buf[80];
    SafeSprintf(buf, sizeof buf, "%s_%d", FormatRecord(entry).c_str(), nReplaceIndex + 1);
    NotifyHost("CHANGE_QUICK_RECORD", buf);
}

void CFlashSimulator::DeleteQuickEntry(int nIndex) {
    if (nIndex < 0) nIndex = 0;
    if (nIndex >= static_cast<int>(m_vecQuickEntry.size()))
        return; // the edition screen offers only existing ones
    const std::string text = FormatRecord(m_vecQuickEntry[static_cast<std::size_t>(nIndex)]);
    m_vecQuickEntry.erase(m_vecQuickEntry.begin() + nIndex);
    NotifyHost("DELETE_QUICK_RECORD", text.c_str());
}

void CFlashSimulator::FillQuickEntry(SQuickEntry& entry) const {
    entry.nModel = m_nModel;
    entry.nGroup = OneBased(m_nGroup);
    entry.nServer = OneBased(m_nServer);
    const char* group = GetGroupName(m_nGroup);
    const char* server = GetServerName(m_nGroup, m_nServer);
    entry.strGroupName = group ? group : "";
    entry.strServerName = server ? server : "";
}

const SQuickEntry* CFlashSimulator::GetQuickEntry(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetQuickEntryCount()) return nullptr;
    return &m_vecQuickEntry[static_cast<std::size_t>(nIndex)];
}

void CFlashSimulator::VarQuickRecord(const char* szValue) {
    const std::string_view value(szValue);
    const std::size_t bar = value.find('|');
    if (bar == std::string_view::npos || SafeAtoi(std::string(value.substr(0, bar)).c_str()) < 1) return;
    m_vecQuickEntry.clear();
    auto add = [this](std::string_view piece) {
        SQuickEntry entry;
        if (ParseQuickRecord(piece, entry)) m_vecQuickEntry.push_back(std::move(entry));
        return true;
    };
    const std::string_view rest = textscan::ForEachTerminated(value.substr(bar + 1), '*', add);
    if (rest.size() >= MIN_TRAILING_RECORD_LENGTH) add(rest);
}
