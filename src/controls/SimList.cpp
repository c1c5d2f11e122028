// The list wrapper: every control of every dialog is declared through the control layer.
#include "controls/SimList.h"

CSimList::~CSimList() = default;
