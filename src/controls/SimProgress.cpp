// The progress wrapper: every control of every dialog is declared through the control layer.
#include "controls/SimProgress.h"

CSimProgress::~CSimProgress() = default;
