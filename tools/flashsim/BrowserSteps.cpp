// Scenario steps for window messages as a host forwards them and for the browser library's side: "msg",
// "ime" and "browser".
#include <cstdint>

#include "ScenarioRunner.h"
#include "StepValues.h"
#include "hostlibs/HostBrowser.h"
#include "hostlibs/HostEnv.h"

namespace {
// Input-method messages and the composition flag of a finished result.
constexpr UINT MSG_IME_START = 269;
constexpr UINT MSG_IME_END = 270;
constexpr UINT MSG_IME_COMPOSITION = 271;
constexpr LPARAM IME_RESULT_STRING = 0x800;
} // namespace

void ScenarioRunner::StepMsg(const ScenarioStep& step) {
    constexpr const char* USAGE = "msg takes N WPARAM LPARAM";
    if (step.words.size() != 4) return Fail(step, USAGE);
    const auto uMsg = Number(step, 1, 0, UINT32_MAX, USAGE);
    const auto wParam = uMsg ? Number(step, 2, 0, UINT32_MAX, USAGE) : std::nullopt;
    const auto lParam = wParam ? Number(step, 3, INT32_MIN, INT32_MAX, USAGE) : std::nullopt;
    if (!lParam || !RequireSimulator(step)) return;
    SendToWindow(static_cast<UINT>(*uMsg), static_cast<WPARAM>(*wParam), static_cast<LPARAM>(*lParam), true);
}

void ScenarioRunner::StepIme(const ScenarioStep& step) {
    if (!RequireSimulator(step)) return;
    if (step.words.size() < 2) return Fail(step, "ime takes TEXT");
    // The input method's result, as the window reads it while handling the composition message.
    host::SetData("ime.result", UnescapeValue(step.RestAfter(1)));
    SendToWindow(MSG_IME_START, 0, 0, true);
    SendToWindow(MSG_IME_COMPOSITION, 0, IME_RESULT_STRING, true);
    SendToWindow(MSG_IME_END, 0, 0, true);
}

void ScenarioRunner::StepBrowser(const ScenarioStep& step) {
    if (step.words.size() != 1) return Fail(step, "browser takes nothing");
    for (const std::string& line : host::TakeBrowserCalls()) m_transcript.Line(line);
    m_transcript.Line(host::DescribeBrowser());
}
