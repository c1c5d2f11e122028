// Executes scenario steps against the system library and writes the transcript.
#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "LoopbackSite.h"
#include "ScenarioParser.h"
#include "SystemLibrary.h"
#include "Transcript.h"

struct RunOptions {
    std::string scenarioPath;  ///< the scenario file (relative paths of "dir" resolve against its folder)
    std::string libraryPath;   ///< the system library to load
    std::string resDir;        ///< the default client directory
    std::string outDir;        ///< where "shot" writes its pictures
    bool checkDrawing = false; ///< after every frame, report texts and pictures drawn past their window
};

class ScenarioRunner {
public:
    ScenarioRunner(const RunOptions& options, Transcript& transcript);
    ~ScenarioRunner();
    ScenarioRunner(const ScenarioRunner&) = delete;
    ScenarioRunner& operator=(const ScenarioRunner&) = delete;

    /// Runs every step; false when the library could not be loaded or a step was malformed.
    bool Run(const std::vector<ScenarioStep>& steps);

    // ---- step by step (the live window and the client-directory check) ----
    /// Loads the library (Run does it itself); false with the reason in the transcript.
    bool Start();
    /// Runs one step after Start.
    void Step(const ScenarioStep& step) { Execute(step); }
    /// Whether a step failed since the start.
    bool Failed() const { return m_bFailed; }
    /// The simulator as steps obtain it (FlashSimulatorQuery once); null until the library is loaded.
    IFlashSimulator* Simulator();
    /// Sends one window message as the game client's window does: PreTranslateMessage, then WindowProc.
    void SendToWindow(UINT uMsg, WPARAM wParam, LPARAM lParam, bool bPreTranslate);
    /// A mouse message at a screen point, with the cursor and button state updated first.
    void SendMouse(UINT uMsg, int x, int y);

private:
    void Execute(const ScenarioStep& step);
    /// Reports a malformed step in the transcript and on standard error, naming its line; the run fails.
    void Fail(const ScenarioStep& step, const std::string& why);
    /// Word nWord of the step as a number in [nMin, nMax]; otherwise fails the step with the usage and why.
    std::optional<long long> Number(const ScenarioStep& step, std::size_t nWord, long long nMin,
                                    long long nMax, const char* szUsage);
    bool RequireSimulator(const ScenarioStep& step);

    void StepDir(const ScenarioStep& step);
    void StepCreate(const ScenarioStep& step);
    void StepCallback(const ScenarioStep& step);
    void StepScene(const ScenarioStep& step);
    void StepSet(const ScenarioStep& step);
    void StepGet(const ScenarioStep& step);
    void StepCall(const ScenarioStep& step);
    void StepFrame(const ScenarioStep& step);
    void StepClock(const ScenarioStep& step);
    void StepTime(const ScenarioStep& step);
    void StepHost(const ScenarioStep& step);
    void StepLog(const ScenarioStep& step);
    void StepDestroy(const ScenarioStep& step);
    void StepShot(const ScenarioStep& step);
    void StepClick(const ScenarioStep& step);
    void StepMouse(const ScenarioStep& step);
    void StepChar(const ScenarioStep& step);
    void StepKey(const ScenarioStep& step);
    void StepShow(const ScenarioStep& step);
    void StepSend(const ScenarioStep& step);
    void StepAnswer(const ScenarioStep& step);
    void StepScratch(const ScenarioStep& step);
    void StepServe(const ScenarioStep& step);
    void StepAwait(const ScenarioStep& step);
    /// One frame as the game client runs it: the clock moves on, then Process and Show.
    void RunFrame(DWORD dwMilliseconds);
    // Window messages as a host forwards them, and the browser library's side (BrowserSteps.cpp).
    void StepMsg(const ScenarioStep& step);
    void StepIme(const ScenarioStep& step);
    void StepBrowser(const ScenarioStep& step);

    void InstallLogSink();
    /// Prints each overflow of the frame not printed before: "! cut at ..." for what the clip cut at the
    /// window's edge, "! drawn outside ..." (a failure) for what is seen outside its window.
    void ReportOverflows();

    RunOptions m_options;
    Transcript& m_transcript;
    SystemLibrary m_library;
    IFlashSimulator* m_pSim = nullptr;
    enum class ELogMode { Off, On, Strict };
    ELogMode m_eLog = ELogMode::Off;
    bool m_bFailed = false;
    std::set<std::string> m_reportedOverflows;
    /// The scratch copy of the client directory made by "scratch", removed when the run ends.
    std::string m_strScratchDir;
    /// The login service started by "serve".
    std::unique_ptr<LoopbackSite> m_pSite;
};
