// A check box declared through the control layer; it adds nothing to the toolkit's.
#pragma once

#include "platform/LuCheck.h"

class CSimCheck : public LuGui::CLuCheck {
public:
    CSimCheck() = default;
    ~CSimCheck() override;
};
