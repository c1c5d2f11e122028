// The professions of character creation by button index, shared by the standard profession dialog and the
// English profession column.
#pragma once

#include <cstdint>

class CProfessionTable {
public:
    static constexpr int COUNT = 8;
    /// Buttons of the standard layout (profession 100 is offered only in the English column).
    static constexpr int STANDARD_COUNT = 7;
    static constexpr int SEX_MALE = 1;
    static constexpr int SEX_FEMALE = 2;
    static constexpr int PROFESSION_ARCHER = 80;
    static constexpr int PROFESSION_DARK_KNIGHT = 70;
    static constexpr int PROFESSION_SWORD = 100;
    static constexpr int INDEX_ARCHER = 6;

    /// Id of a button index; 10 outside 0 to 7.
    static std::int32_t IdOf(int nIndex);
    /// Button index of an id; -1 when the id is not a profession.
    static int IndexOf(std::int32_t nId);
    /// Foreground effect of the standard layout's selected button; empty for index 7 and outside.
    static const char* SelectEffectOf(int nIndex);
    /// Button picture of the English column; empty outside 0 to 7.
    static const char* EnglishButtonOf(int nIndex);
    /// Icon and picture of the English introduction panel for a profession id; empty for an unknown id.
    static const char* IntroIconOf(std::int32_t nId);
    static const char* IntroPictureOf(std::int32_t nId);
    /// Button index a forced profession code 7 to 13 gives; -1 for any other code.
    static int ForcedIndexOf(std::int32_t nForcedType);
    static bool IsSex(std::int32_t nSex) { return nSex == SEX_MALE || nSex == SEX_FEMALE; }
};
