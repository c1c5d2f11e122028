// The curtain shown while the client switches its language: the screen dimmed with a tip, hidden on the first
// frame at least 500 ms after the toolkit's reset.
#pragma once

#include <cstdint>

#include "controls/SimDialog.h"

class CDlgFlashSwitchLanguageEn : public CSimDialog {
public:
    static constexpr UINT IDD = 2000;
    /// How long the curtain stays after its reset.
    static constexpr DWORD HOLD_MS = 500;
    /// "%d %d %d %d": the tip's offset from the screen centre and its size.
    static constexpr std::uint32_t STR_TIP_PLACE = 5010231;
    static constexpr const char* CURTAIN_ANI = "DialogNorMsg";
    static constexpr const char* TIP_TITLE = "multilang_langswitchtips";
    static constexpr const char* TIP_FILE = "ani/control.ani";

    CDlgFlashSwitchLanguageEn();
    ~CDlgFlashSwitchLanguageEn() override;

    BOOL OnInitDialog() override;
    int Show() override;
    /// Starts the timer (the toolkit's reset after a language change runs it).
    void Reset() override;

    /// The process-wide timestamp: 0 while no timer runs.
    static DWORD GetTimestamp();
    /// Test-only: no timer running.
    static void ClearTimestampForTest();

private:
    void DrawCurtain();
};
