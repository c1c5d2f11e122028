// The start-scene choice offered for profession 100.
#include "rolecreate/DlgFlashSceneSelect.h"

CDlgFlashSceneSelect::CDlgFlashSceneSelect() : CSimDialog(IDD) {
}

CDlgFlashSceneSelect::~CDlgFlashSceneSelect() = default;
