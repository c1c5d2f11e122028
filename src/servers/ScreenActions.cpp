// What the music, back and exit buttons and the version label of the login-scene screens do alike.
#include "servers/ScreenActions.h"

#include "resources/MyString.h"
#include "simulator/FlashSimulator.h"

namespace {
constexpr std::uint32_t STR_VERSION_FORMAT = 3110000;
}

void ReportMusicChoice(bool bOn) {
    CFlashSimulator* pSim = FlashSim();
    if (!pSim) return;
    pSim->SetMusic(bOn);
    pSim->NotifyHost("SET_MUSIC", pSim->IsMusicOn() ? "1" : "0");
}

void StepBack() {
    if (CFlashSimulator* pSim = FlashSim()) pSim->OnReturn();
}

void AskToLeave() {
    if (CFlashSimulator* pSim = FlashSim())
        pSim->GetConfirmDialog().Show(CDlgFlashConfirm::TYPE_EXIT, nullptr);
}

std::string VersionLabelText(const char* szVersion) {
    CFlashSimulator* pSim = FlashSim();
    if (!pSim || !szVersion) return {};
    return CMyString::Format(pSim->GetStr(STR_VERSION_FORMAT), szVersion);
}
