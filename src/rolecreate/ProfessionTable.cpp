// The profession table: ids, pictures of both layouts and forced codes by button index.
#include "rolecreate/ProfessionTable.h"

namespace {
struct SProfession {
    std::int32_t nId;
    const char* szSelectEffect;
    const char* szEnglishButton;
    const char* szIntroIcon;
    const char* szIntroPicture;
};
constexpr SProfession PROFESSIONS[CProfessionTable::COUNT] = {
    {10, "wizardico", "encrerole_mage", "encrerole_mageico", "encrerole_fxtmage"},
    {20, "soldierico", "encrerole_warrior", "encrerole_warriorico", "encrerole_fxtwarrior"},
    {60, "necico", "encrerole_necromancer", "encrerole_necromancerico", "encrerole_fxtnecromancer"},
    {30, "espico", "encrerole_paladin", "encrerole_paladinico", "encrerole_fxtpaladin"},
    {50, "bloodico", "encrerole_vampire", "encrerole_vampiceico", "encrerole_fxtvampire"},
    {70, "knightico", "encrerole_shadow", "encrerole_shadowico", "encrerole_fxtshadow"},
    {80, "acherico", "encrerole_ranger", "encrerole_rangerico", "encrerole_fxtranger"},
    {100, "", "encrerole_swordfix", "encrerole_swordfixico", "encrerole_fxtswordfix"},
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

const char* CProfessionTable::EnglishButtonOf(int nIndex) {
    return InTable(nIndex) ? PROFESSIONS[nIndex].szEnglishButton : "";
}

const char* CProfessionTable::IntroIconOf(std::int32_t nId) {
    const int nIndex = IndexOf(nId);
    return nIndex >= 0 ? PROFESSIONS[nIndex].szIntroIcon : "";
}

const char* CProfessionTable::IntroPictureOf(std::int32_t nId) {
    const int nIndex = IndexOf(nId);
    return nIndex >= 0 ? PROFESSIONS[nIndex].szIntroPicture : "";
}

int CProfessionTable::ForcedIndexOf(std::int32_t nForcedType) {
    const std::int64_t nSlot = static_cast<std::int64_t>(nForcedType) - FORCED_FIRST;
    return nSlot >= 0 && nSlot < FORCED_COUNT ? FORCED_INDICES[nSlot] : -1;
}
