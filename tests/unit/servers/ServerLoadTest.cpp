// The displayed-load table: raised small loads, the cap, the levels and words, maintenance.
#include <gtest/gtest.h>

#include "screen/ServerLoad.h"

TEST(ServerLoad, RaisesSmallLoadsCapsAndLevels) {
    struct Case {
        float raw, shown;
        int level;
        std::uint32_t word;
    };
    const Case cases[] = {
        {0.0f, 0.0f, 0, STR_LOAD_QUIET},          {0.0000005f, 0.0000005f, 0, STR_LOAD_QUIET},
        {10.0f, 30.0f, 0, STR_LOAD_QUIET},        {49.5f, 69.5f, 1, STR_LOAD_BUSY},
        {50.0f, 65.0f, 1, STR_LOAD_BUSY},         {59.0f, 74.0f, 1, STR_LOAD_BUSY},
        {60.0f, 70.0f, 1, STR_LOAD_BUSY},         {69.0f, 79.0f, 2, STR_LOAD_VERY_BUSY},
        {70.0f, 75.0f, 2, STR_LOAD_VERY_BUSY},    {79.0f, 84.0f, 2, STR_LOAD_VERY_BUSY},
        {80.0f, 80.0f, 2, STR_LOAD_VERY_BUSY},    {100.0f, 100.0f, 2, STR_LOAD_VERY_BUSY},
        {150.0f, 100.0f, 2, STR_LOAD_VERY_BUSY},  {-1.0f, -1.0f, 0, STR_LOAD_MAINTENANCE},
        {5000.0f, 100.0f, 2, STR_LOAD_VERY_BUSY},
    };
    for (const Case& c : cases) {
        const SLoadDisplay d = ComputeLoadDisplay(c.raw);
        EXPECT_FLOAT_EQ(d.fShown, c.shown) << "raw " << c.raw;
        EXPECT_EQ(d.nLevel, c.level) << "raw " << c.raw;
        EXPECT_EQ(d.nWordId, c.word) << "raw " << c.raw;
    }
}
