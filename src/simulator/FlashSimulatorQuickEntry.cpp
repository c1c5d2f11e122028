// Quick-entry records: remembered servers the edition screen offers as shortcuts, mirrored to the host.
#include <string>

#include "platform/Log.h"
#include "resources/TextScan.h"
#include "simulator/FlashSimulator.h"

namespace {
std::string FormatRecord(const SQuickEntry& e) {
    char buf[64];
    SafeSprintf(buf, sizeof buf, "%d_%d_%d", e.nModel, e.nGroup, e.nServer);
    return buf;
}
} // namespace

// 0 added, 1 already present, 2 list full.
int CFlashSimulator::AddQuickEntry(const SQuickEntry& entry) {
    for (const SQuickEntry& e : m_state.m_vecQuickEntry)
        if (e.nModel == entry.nModel && e.nGroup == entry.nGroup && e.nServer == entry.nServer) return 1;
    if (m_state.m_vecQuickEntry.size() >= MAX_QUICK_ENTRY_AMOUNT) return 2;
    m_state.m_vecQuickEntry.push_back(entry);
    NotifyHost("ADD_QUICK_RECORD", FormatRecord(entry).c_str());
    return 0;
}

void CFlashSimulator::ReplaceQuickEntry(const SQuickEntry& entry, int nReplaceIndex) {
    const bool bFull = m_state.m_vecQuickEntry.size() == MAX_QUICK_ENTRY_AMOUNT;
    const bool bIndexValid =
        nReplaceIndex >= 0 && nReplaceIndex < static_cast<int>(m_state.m_vecQuickEntry.size());
    if (!bFull)
        LogMsg("ASSERT(m_vecQuickEntry.size() == MAX_QUICK_ENTRY_AMOUNT) in %d line of %s", __LINE__,
               __FILE__);
    if (!bIndexValid)
        LogMsg("ASSERT(nReplaceIndex >= 0 && nReplaceIndex < m_vecQuickEntry.size()) in %d line of %s",
               __LINE__, __FILE__);
    if (!bFull || !bIndexValid) return;
    m_state.m_vecQuickEntry[static_cast<std::size_t>(nReplaceIndex)] = entry;
    char buf[80];
    SafeSprintf(buf, sizeof buf, "%s_%d", FormatRecord(entry).c_str(), nReplaceIndex + 1);
    NotifyHost("CHANGE_QUICK_RECORD", buf);
}

void CFlashSimulator::DeleteQuickEntry(int nIndex) {
    if (nIndex < 0) nIndex = 0;
    if (nIndex >= static_cast<int>(m_state.m_vecQuickEntry.size()))
        return; // the edition screen offers only existing ones
    const std::string text = FormatRecord(m_state.m_vecQuickEntry[static_cast<std::size_t>(nIndex)]);
    m_state.m_vecQuickEntry.erase(m_state.m_vecQuickEntry.begin() + nIndex);
    NotifyHost("DELETE_QUICK_RECORD", text.c_str());
}

void CFlashSimulator::FillQuickEntry(SQuickEntry& entry) const {
    entry.nModel = m_state.m_nModel;
    entry.nGroup = OneBased(m_state.m_nGroup);
    entry.nServer = OneBased(m_state.m_nServer);
    const char* group = GetGroupName(m_state.m_nGroup);
    const char* server = GetServerName(m_state.m_nGroup, m_state.m_nServer);
    entry.strGroupName = group ? group : "";
    entry.strServerName = server ? server : "";
}

const SQuickEntry* CFlashSimulator::GetQuickEntry(int nIndex) const {
    if (nIndex < 0 || nIndex >= GetQuickEntryCount()) return nullptr;
    return &m_state.m_vecQuickEntry[static_cast<std::size_t>(nIndex)];
}
