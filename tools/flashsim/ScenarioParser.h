// Reads a scenario file into steps: one per line, comments and empty lines skipped, values unescaped.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct ScenarioStep {
    int nLine = 0;                  ///< line number in the file, from 1
    std::vector<std::string> words; ///< the line split at single spaces (escapes not yet applied)
    std::string raw;                ///< the whole line
    /// The rest of the line after the first n words and their separating spaces (raw, not unescaped).
    std::string RestAfter(std::size_t n) const;
};

/// Reads a scenario; false when the file cannot be read.
bool ReadScenario(const std::string& path, std::vector<ScenarioStep>& steps);
/// One line as a step, as a scenario file would hold it; nothing for a comment or an empty line.
std::optional<ScenarioStep> ParseStepLine(std::string line, int nLine);
/// Applies the value escapes: "\\" a backslash, "\xHH" a byte, "\n" a newline; anything else byte for byte.
std::string UnescapeValue(std::string_view text);
