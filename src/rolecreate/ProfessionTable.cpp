// The profession table: ids, selection effects and forced codes by button index.
#include "rolecreate/ProfessionTable.h"

namespace {
struct SProfession {
    std::int32_t nId;
    const char* szSelectEffect;
};
constexpr SProfession PROFESSIONS[CProfessionTable::COUNT] = {
    {10, "wizardico"}, {20, "soldierico"}, {60, "necico"},   {30, "espico"},
    {50, "bloodico"},  {70, "knightico"},  {80, "acherico"}, {100, ""},
};
constexpr std::int32_t FORCED_FIRST = 7;
// Indices of the forced codes 7 to 13.
constexpr int FORCED_INDICES[] = {1, 0, 3, 4, 2, 5, 6};
constexpr int FORCED_COUNT = static_cast<int>(sizeof FORCED_INDICES / sizeof FORCED_INDICES[0]);

bool InTable(int nIndex) {
    return nIndex >= 0 && nIndex < CProfessionTable::COUNT;
}
} // namespace

std::int32_t CProfessionTable::IdOf(int nIndex) {
    return InTable(nIndex) ? PROFESSIONS[nIndex].nId : PROFESSIONS[0].nId;
}

int CProfessionTable::IndexOf(std::int32_t nId) {
    for (int i = 0; i < COUNT; ++i)
        if (PROFESSIONS[i].nId == nId) return i;
    return -1;
}

const char* CProfessionTable::SelectEffectOf(int nIndex) {
    return InTable(nIndex) ? PROFESSIONS[nIndex].szSelectEffect : "";
}

int CProfessionTable::ForcedIndexOf(std::int32_t nForcedType) {
    const std::int64_t nSlot = static_cast<std::int64_t>(nForcedType) - FORCED_FIRST;
    return nSlot >= 0 && nSlot < FORCED_COUNT ? FORCED_INDICES[nSlot] : -1;
}
