// The transcript a scenario prints: escaped texts, one line per event.
#pragma once

#include <string>
#include <string_view>

/// Escapes a text for the transcript: backslash as "\\", newline as "\n", quotes and bytes outside printable
/// ASCII as "\xHH".
std::string EscapeText(std::string_view text);

/// Collects the transcript lines (and echoes them to standard output when asked).
class Transcript {
public:
    explicit Transcript(bool bEcho) : m_bEcho(bEcho) {}
    void Line(std::string_view line);
    const std::string& Text() const { return m_text; }

private:
    bool m_bEcho;
    std::string m_text;
};
