// The profession table's edges (unknown indices, codes and ids) and the look of a face at its bounds.
#include <gtest/gtest.h>

#include <climits>

#include "rolecreate/CreationGates.h"
#include "rolecreate/ProfessionTable.h"

TEST(ProfessionTable, UnknownIndicesCodesAndIdsStayInBounds) {
    EXPECT_EQ(CProfessionTable::IdOf(2), 60);
    EXPECT_EQ(CProfessionTable::IdOf(8), 10);
    EXPECT_EQ(CProfessionTable::IdOf(INT_MIN), 10);
    EXPECT_EQ(CProfessionTable::ForcedIndexOf(7), 1);
    EXPECT_EQ(CProfessionTable::ForcedIndexOf(13), CProfessionTable::INDEX_ARCHER);
    for (const int code : {0, 6, 14, INT_MIN, INT_MAX})
        EXPECT_EQ(CProfessionTable::ForcedIndexOf(code), -1) << code;
    EXPECT_STREQ(CProfessionTable::SelectEffectOf(7), "");
    EXPECT_STREQ(CProfessionTable::IntroIconOf(50), "encrerole_vampiceico");
    EXPECT_STREQ(CProfessionTable::IntroPictureOf(40), "");
}

TEST(CreationGates, TheLookOfAFaceNeverGoesBelow0) {
    EXPECT_EQ(CCreationGates::LookOfFace(10022), 22);
    EXPECT_EQ(CCreationGates::LookOfFace(10000), 0);
    EXPECT_EQ(CCreationGates::LookOfFace(9999), 0);
    EXPECT_EQ(CCreationGates::LookOfFace(INT_MIN), 0);
    EXPECT_EQ(CCreationGates::LookOfFace(INT_MAX), INT_MAX - 10000);
}
