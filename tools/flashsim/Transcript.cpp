// The transcript a scenario prints: escaped texts, one line per event.
#include "Transcript.h"

#include <cstdio>

std::string EscapeText(std::string_view text) {
    static constexpr char HEX[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (const char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        if (c == '\\') {
            out += "\\\\";
        } else if (c == '\n') {
            out += "\\n";
        } else if (c == '"' || c < 0x20 || c >= 0x7F) {
            out += "\\x";
            out.push_back(HEX[c >> 4]);
            out.push_back(HEX[c & 0xF]);
        } else {
            out.push_back(ch);
        }
    }
    return out;
}

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
