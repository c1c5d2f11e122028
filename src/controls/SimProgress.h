// A progress bar declared through the control layer; it adds nothing to the toolkit's.
#pragma once

#include "platform/LuProgress.h"

class CSimProgress : public LuGui::CLuProgress {
public:
    CSimProgress() = default;
    ~CSimProgress() override;
};
