// The string table: texts, switches and layout numbers by id from "ini/FlashString.ini", plus the ranged
// entries.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "platform/ZrString.h"

class CZrIni;
#include "resources/ServerCfg.h"

class CFlashStringMgr {
public:
    static constexpr const char* STRING_FILE = "ini/FlashString.ini";
    static constexpr const char* SERVER_CFG_FILE = "ini/ServerCfg.ini";
    static constexpr std::uint32_t RANGED_ID_FIRST = 50000000;
    static constexpr std::uint32_t RANGED_ID_LAST = 60000000;

    CFlashStringMgr() = default;
    virtual ~CFlashStringMgr() = default;
    CFlashStringMgr(const CFlashStringMgr&) = delete;
    CFlashStringMgr& operator=(const CFlashStringMgr&) = delete;

    /// Loads the server configuration (adding only), then the string table (the earlier entries are cleared
    /// first).
    void Load();
    /// Load from the texts of the two files instead of the files (for a caller that holds them): the same
    /// reading, line for line, without the messages of files that cannot be opened.
    void LoadFromTexts(std::string_view strStringTable, std::string_view strServerCfg);
    /// Loads the six categories of the server configuration; groups and servers already loaded stay
    /// unchanged.
    void LoadServerCfg();
    /// LoadServerCfg from the text of the file.
    void LoadServerCfgFromText(std::string_view strText);
    /// Empties the strings and the ranged strings (not the server configuration).
    void Clear();

    /// The text of an id; "FlashStrIniting<id>" while loading, "NOSTR <id>" when missing. Never null; valid
    /// until the next Clear (a fallback text only until the next miss).
    const char* GetStr(std::uint32_t nId) const;
    /// GetStr read as a decimal number; 0 when missing.
    int GetStrInt(std::uint32_t nId) const;

    bool IsLoading() const { return m_bLoading; }
    bool HasStr(std::uint32_t nId) const { return !m_bLoading && m_mapStrings.count(nId) != 0; }
    std::size_t GetStringCount() const { return m_mapStrings.size(); }
    std::size_t GetRangedCount() const { return m_mapRanged.size(); }
    /// The ranged entry at a position in ascending key order; key 0 and an empty text past the end.
    std::pair<std::int64_t, const char*> GetRanged(std::size_t nPos) const;
    /// Calls fn(key, text) for every ranged entry in ascending key order.
    /// Configured groups of a model; null when the model has none.
    const CfgGroupMap* GetCfgGroups(std::int32_t nModel) const;
    /// Configured group of (model, 0-based group index); null when missing.
    const SCfgGroup* GetCfgGroup(std::int32_t nModel, std::int32_t nGroup) const;
    /// Configured server of (model, 0-based group index, 0-based server index); null when any level is
    /// missing.
    const SCfgServer* GetCfgServer(std::int32_t nModel, std::int32_t nGroup, std::int32_t nServer) const;

    template <class Fn> void ForEachRanged(Fn fn) const {
        for (const auto& [key, text] : m_mapRanged) fn(key, text.c_str());
    }

private:
    /// Sets the loading flag and empties the table for the lines to come.
    void BeginStrings();
    void AddLine(std::string_view line);
    /// Sums up the repeated ids and clears the loading flag.
    void EndStrings();
    void LoadServerCfg(const CZrIni& ini);
    void AddRanged(std::string_view value);
    void LoadCfgCategory(const CZrIni& ini, const char* szHeader, const char* szGroupPrefix,
                         std::int32_t nModel);

    // Lookups are the hot path and nothing walks the plain strings in order, so they live in a hash map.
    std::unordered_map<std::uint32_t, CZrString> m_mapStrings;
    std::map<std::int64_t, CZrString> m_mapRanged;
    bool m_bLoading = false;
    std::map<std::int32_t, CfgGroupMap> m_mapServerCfg; ///< by model number
    std::size_t m_nSameIdCount = 0;                     ///< repeated ids of the load in progress
};
