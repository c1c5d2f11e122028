// One finding of the client-directory check.
#pragma once

#include <string>

struct LintFinding {
    std::string file; ///< the client file the finding concerns, relative to the client directory
    int line = 0;     ///< its line in that file; 0 when the entry is missing rather than wrong
    std::string text; ///< what is missing or unreachable

    /// `file:line: text`, or `file: text` without a line.
    std::string ToString() const {
        return file + (line > 0 ? ":" + std::to_string(line) : std::string()) + ": " + text;
    }
};
