// The transcript a scenario prints: escaped texts, one line per event.
#include "Transcript.h"

#include <cstdio>

void Transcript::Line(std::string_view line, ELineKind eKind) {
    m_lines.push_back(SLine{eKind, std::string(line)});
    if (m_bEcho) {
        std::fwrite(line.data(), 1, line.size(), stdout);
        std::fputc('\n', stdout);
        std::fflush(stdout);
    }
}

std::string Transcript::Text() const {
    std::string text;
    for (const SLine& line : m_lines) text.append(line.text).push_back('\n');
    return text;
}
