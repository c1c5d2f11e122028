// The head configuration of character creation: default face per profession and sex, male and female faces.
#pragma once

#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

class CZrIni;

class CSelectHeadMgr {
public:
    /// The configuration file below the client directory.
    static constexpr const char* HEAD_FILE = "ini/SelectHead.ini";

    CSelectHeadMgr() = default;
    virtual ~CSelectHeadMgr();
    CSelectHeadMgr(const CSelectHeadMgr&) = delete;
    CSelectHeadMgr& operator=(const CSelectHeadMgr&) = delete;

    /// The process-wide instance, created and loaded on first use.
    static CSelectHeadMgr& GetInstance();
    /// Ends the instance; the next GetInstance reads the file again. Nothing when there is none.
    static void DestroyInstance();
    /// Whether an instance exists (tests and benchmarks watch the reload).
    static bool HasInstance();

    /// Reads the file below the client directory (the collections are emptied first).
    void Load();
    /// Reads configuration text held in memory, with the same rules (fuzzing, benchmarks).
    void LoadText(std::string_view text);

    /// The default face of key profession + sex; 0 when not configured.
    std::int32_t GetProHeadAni(std::int32_t nKey) const;
    int GetMaleHeadCount() const { return static_cast<int>(m_vecMaleHead.size()); }
    int GetFemaleHeadCount() const { return static_cast<int>(m_vecFemaleHead.size()); }
    /// The face at a 0-based index; 0 outside the list (negative indices too).
    std::int32_t GetMaleHead(int nIndex) const;
    std::int32_t GetFemaleHead(int nIndex) const;

private:
    void Clear();
    void ReadBlocks(CZrIni& ini, const char* szSource);
    void ReadProHeadSet(const CZrIni& ini);
    /// Appends the values of "<szPrefix><n>" for n from 1 to the block's amount key, in n order.
    static void ReadHeadList(const CZrIni& ini, const char* szAmountKey, std::string_view prefix,
                             std::vector<std::int32_t>& vecOut);

    std::map<std::int32_t, std::int32_t> m_mapProHead;
    std::vector<std::int32_t> m_vecMaleHead;
    std::vector<std::int32_t> m_vecFemaleHead;
};
