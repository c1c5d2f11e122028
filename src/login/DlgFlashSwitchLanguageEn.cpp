// The curtain shown while the client switches its language: the screen dimmed with a tip, hidden on the first
// frame at least 500 ms after the toolkit's reset.
#include "login/DlgFlashSwitchLanguageEn.h"

#include "platform/GameGraphic.h"
#include "platform/Graphics.h"
#include "platform/MyAni.h"
#include "screen/LayoutNumbers.h"

namespace {
// NOTE: process-wide as the client keeps it; a tick count of exactly 0 cannot start the timer, since 0 means
// "not running" (docs/DECISIONS.md).
DWORD g_dwSwitchTimestamp = 0;
} // namespace

CDlgFlashSwitchLanguageEn::CDlgFlashSwitchLanguageEn() : CSimDialog(IDD) {
}

CDlgFlashSwitchLanguageEn::~CDlgFlashSwitchLanguageEn() = default;

DWORD CDlgFlashSwitchLanguageEn::GetTimestamp() {
    return g_dwSwitchTimestamp;
}

void CDlgFlashSwitchLanguageEn::ClearTimestampForTest() {
    g_dwSwitchTimestamp = 0;
}

BOOL CDlgFlashSwitchLanguageEn::OnInitDialog() {
    CSimDialog::OnInitDialog();
    return TRUE;
}

void CDlgFlashSwitchLanguageEn::Reset() {
    CSimDialog::Reset();
    g_dwSwitchTimestamp = GetTickCount();
}

int CDlgFlashSwitchLanguageEn::Show() {
    const int nResult = CSimDialog::Show();
    if (g_dwSwitchTimestamp != 0 && GetTickCount() - g_dwSwitchTimestamp >= HOLD_MS) {
        g_dwSwitchTimestamp = 0;
        EnableWindow(FALSE);
        ShowWindow(SW_HIDE);
        return nResult;
    }
    DrawCurtain();
    return nResult;
}

void CDlgFlashSwitchLanguageEn::DrawCurtain() {
    CMyAni* pAni = QueryMyAniMgr()->QueryAni(CONTROL_ANI_FILE, CURTAIN_ANI);
    if (!pAni) return;
    const int nScreenWidth = CMyBitmap::GetScreenWidth();
    const int nScreenHeight = CMyBitmap::GetScreenHeight();
    pAni->ShowStretch(0, RECT{0, 0, nScreenWidth, nScreenHeight}, 255);
    pAni->Release();
    int place[4] = {0, 0, 0, 0};
    READ_LAYOUT_NUMBERS(STR_TIP_PLACE, place);
    CGameGraphic::ShowStrresUI(place[2], place[3], nScreenWidth / 2 + place[0], nScreenHeight / 2 + place[1],
                               TIP_TITLE, 0, TIP_FILE);
}
