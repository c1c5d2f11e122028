// The client-directory check ("flashsim lint DIR"): what a client directory lacks for the library's screens.
#pragma once

#include <cstdio>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "BaseLib.h"
#include "LintFinding.h"

class ScenarioRunner;

struct LintOptions {
    std::string clientDir;
    std::string libraryPath;
    std::string languageName = "English"; ///< the host's language name ("host language"), which picks layouts
};

class ClientLint {
public:
    static constexpr int EXIT_CLEAN = 0;
    static constexpr int EXIT_FINDINGS = 1;
    static constexpr int EXIT_UNREADABLE = 2; ///< no directory, an unreadable file, a binary string table

    explicit ClientLint(LintOptions options);

    /// Opens every screen in both scenes and each language the directory declares, prints the findings
    /// grouped by screen (`== SCREEN`, then `file:line: text` lines) and returns the exit status.
    int Run(std::FILE* out);

private:
    /// Why the directory cannot be checked (printed, exit 2), nothing when it can.
    std::optional<std::string> UnreadableInput() const;
    /// Language 0 and every N with a "FlashGui_N.ini" of its own.
    std::vector<int> Languages() const;
    /// Files the library needs and the directory lacks.
    void CheckRequiredFiles();
    void CheckServerCfg();
    bool WalkScreens(ScenarioRunner& runner, int nLanguage);
    /// Takes what the last step left: noted misses, log lines, fallback texts on windows and in the frame.
    void Collect(const std::string& screen, int nLanguage);
    void CollectMissingStrings(const std::string& screen);
    void Add(const std::string& screen, LintFinding finding);
    /// The layout file the library reads for a language.
    std::string LayoutFile(int nLanguage) const;

    LintOptions m_options;
    std::vector<std::string> m_screenOrder;
    std::map<std::string, std::vector<std::string>> m_findings; ///< by screen, in the order found
    std::set<std::string> m_seen;                               ///< every finding once, whichever screen
    struct SLogLine {
        std::string level, message, fileKey;
    };
    /// Layout records asked for and not found, reported once their window shows (a window the screens
    /// never show keeps its defaults unseen).
    struct SLayoutMiss {
        std::string section;
        UINT nDialog = 0;
        UINT nControl = 0; ///< 0 for the dialog's own record
    };
    void ReportShownLayoutMisses(const std::string& screen, int nLanguage);
    std::vector<SLayoutMiss> m_layoutMisses;
    std::mutex m_logMutex; // log lines may come from the library's worker threads
    std::vector<SLogLine> m_pendingLog;
};
