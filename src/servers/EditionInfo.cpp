// The fixed names of the five editions.
#include "servers/EditionInfo.h"

namespace {
constexpr SEditionInfo EDITIONS[EDITION_COUNT] = {
    {"oldTip", "EntryBtn_classic", 3110012}, {"newTip", "EntryBtn_Normal", 3110013},
    {"timeTip", "EntryBtn_Time", 3110014},   {"tencentTip", "EntryBtn_QQ", 3110015},
    {"bossTip", "EntryBtn_BOSS", 3110016},
};
} // namespace

const SEditionInfo* FindEdition(int nEdition) {
    return nEdition >= 1 && nEdition <= EDITION_COUNT ? &EDITIONS[nEdition - 1] : nullptr;
}
