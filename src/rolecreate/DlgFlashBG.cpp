// The full-screen backdrop of the login and creation scenes; its picture comes from its layout record.
#include "rolecreate/DlgFlashBG.h"

#include "platform/Graphics.h"

namespace {
// The camera the host's 3D scenes behind the front end are filmed with.
constexpr double BACKDROP_CAMERA_DISTANCE = -1000.0;
constexpr int BACKDROP_CAMERA_MODE = 3;
} // namespace

CDlgFlashBG::CDlgFlashBG() : CSimDialog(IDD) {
}

CDlgFlashBG::~CDlgFlashBG() = default;

int CDlgFlashBG::Show() {
    CMyBitmap::GameCameraSet(CMyBitmap::GetScreenWidth() / 2, CMyBitmap::GetScreenHeight() / 2,
                             BACKDROP_CAMERA_DISTANCE, BACKDROP_CAMERA_MODE);
    return CSimDialog::Show();
}
