// The check wrapper: every control of every dialog is declared through the control layer.
#include "controls/SimCheck.h"

CSimCheck::~CSimCheck() = default;
