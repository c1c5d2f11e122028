// Registration gates shared by the standard and English creation layouts.
#include "rolecreate/CreationGates.h"

#include "rolecreate/ProfessionTable.h"
#include "screen/ScreenContext.h"

bool CCreationGates::IsArcherOpen(const IScreenContext& context) {
    const SCreateRoleParam& param = context.GetCreateRoleParam();
    return param.nNewServer == 1 || (param.nSwitchA > 0 && context.IsSelectedServerAchTips()) ||
           param.nSwitchB > 0;
}

std::uint32_t CCreationGates::RefusalOf(const IScreenContext& context, std::int32_t nProfession) {
    if (nProfession == CProfessionTable::PROFESSION_ARCHER && !IsArcherOpen(context))
        return STR_ARCHER_CLOSED;
    if (nProfession == CProfessionTable::PROFESSION_DARK_KNIGHT && !context.IsDarkKnightAllowed())
        return STR_DARK_KNIGHT_CLOSED;
    return 0;
}

std::int32_t CCreationGates::LookOfFace(std::int32_t nFace) {
    const std::int64_t nLook = static_cast<std::int64_t>(nFace) - FACE_LOOK_BASE;
    return nLook < 0 ? 0 : static_cast<std::int32_t>(nLook);
}
