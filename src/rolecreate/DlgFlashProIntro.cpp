// The profession introduction panel of the English creation layout.
#include "rolecreate/DlgFlashProIntro.h"

CDlgFlashProIntro::CDlgFlashProIntro() : CSimDialog(IDD) {
}

CDlgFlashProIntro::~CDlgFlashProIntro() = default;
