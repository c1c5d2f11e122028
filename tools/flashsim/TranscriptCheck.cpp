// Compares a scenario's transcript with its expected transcript, letting log lines it did not ask for pass.
#include "TranscriptCheck.h"

#include <vector>

namespace {

constexpr const char* END_OF_TRANSCRIPT = "(end of transcript)";

// The lines of a file's text; a last line feed ends the last line, and a carriage return before a line feed
// is dropped, so that files saved with either line ending read the same.
std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t nEnd = text.find('\n');
        std::string_view line = text.substr(0, nEnd);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.push_back(line);
        if (nEnd == std::string_view::npos) break;
        text.remove_prefix(nEnd + 1);
    }
    return lines;
}

} // namespace

bool MatchesExpectedTranscript(std::string_view expected, const Transcript& actual, std::string& strReport) {
    const std::vector<std::string_view> want = SplitLines(expected);
    const auto& have = actual.Lines();
    std::size_t i = 0, j = 0;
    std::size_t nFirstSkipped = have.size(); // the first log line passed over since the last match
    // NOTE: matching each expected line with the earliest equal actual line is never wrong: only log lines
    // can be passed over, so a later equal line could only be reached by passing over the same lines.
    while (true) {
        if (i < want.size() && j < have.size() && want[i] == have[j].text) {
            ++i;
            ++j;
            nFirstSkipped = have.size();
            continue;
        }
        if (j < have.size() && have[j].eKind == ELineKind::Log) {
            if (nFirstSkipped == have.size()) nFirstSkipped = j;
            ++j;
            continue;
        }
        if (i == want.size() && j == have.size()) return true;
        strReport = "first difference at line " + std::to_string(i + 1) +
                    " of the expected transcript (line " + std::to_string(j + 1) +
                    " of the actual one)\n  expected: " +
                    (i < want.size() ? std::string(want[i]) : END_OF_TRANSCRIPT) +
                    "\n  actual:   " + (j < have.size() ? have[j].text : END_OF_TRANSCRIPT) + "\n";
        if (nFirstSkipped < have.size())
            strReport += "  (log lines not asked for were passed over before it, from line " +
                         std::to_string(nFirstSkipped + 1) + ": " + have[nFirstSkipped].text + ")\n";
        return false;
    }
}
