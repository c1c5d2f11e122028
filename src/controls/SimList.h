// A list declared through the control layer; it adds nothing to the toolkit's.
#pragma once

#include "platform/LuList.h"

class CSimList : public LuGui::CLuList {
public:
    CSimList() = default;
    ~CSimList() override;
};
