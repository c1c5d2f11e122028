// The transcript a scenario prints: escaped texts, one line per event.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a transcript line is, for the comparison with an expected transcript.
enum class ELineKind {
    Event,       ///< everything a step prints; always compared
    Log,         ///< a log line after "log on": may be missing from the expected transcript
    RequiredLog, ///< a log line after "log strict": compared like an event
};

/// Collects the transcript lines (and echoes them to standard output when asked).
class Transcript {
public:
    struct SLine {
        ELineKind eKind;
        std::string text;
    };

    explicit Transcript(bool bEcho) : m_bEcho(bEcho) {}
    void Line(std::string_view line, ELineKind eKind = ELineKind::Event);
    const std::vector<SLine>& Lines() const { return m_lines; }
    /// All lines, each ending in a newline.
    std::string Text() const;

private:
    bool m_bEcho;
    std::vector<SLine> m_lines;
};
