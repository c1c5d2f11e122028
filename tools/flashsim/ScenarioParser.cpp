// Reads a scenario file into steps: one per line, comments and empty lines skipped, values unescaped.
#include "ScenarioParser.h"

#include <fstream>

namespace {
int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

std::vector<std::string> SplitWords(const std::string& line) {
    std::vector<std::string> words;
    std::size_t start = 0;
    while (start <= line.size()) {
        const std::size_t sp = line.find(' ', start);
        const std::size_t end = sp == std::string::npos ? line.size() : sp;
        words.push_back(line.substr(start, end - start));
        if (sp == std::string::npos) break;
        start = sp + 1;
    }
    return words;
}
} // namespace

std::string ScenarioStep::RestAfter(std::size_t n) const {
    std::size_t pos = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t sp = raw.find(' ', pos);
        if (sp == std::string::npos) return {};
        pos = sp + 1;
    }
    return raw.substr(pos);
}

bool ReadScenario(const std::string& path, std::vector<ScenarioStep>& steps) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::string line;
    int number = 0;
    while (std::getline(in, line)) {
        ++number;
        if (auto step = ParseStepLine(std::move(line), number)) steps.push_back(std::move(*step));
    }
    return true;
}

std::optional<ScenarioStep> ParseStepLine(std::string line, int nLine) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line[0] == '#') return std::nullopt;
    std::vector<std::string> words = SplitWords(line);
    return ScenarioStep{nLine, std::move(words), std::move(line)};
}

std::string UnescapeValue(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 >= text.size()) {
            out.push_back(text[i]);
            continue;
        }
        const char next = text[i + 1];
        if (next == '\\') {
            out.push_back('\\');
            ++i;
        } else if (next == 'n') {
            out.push_back('\n');
            ++i;
        } else if (next == 'x' && i + 3 < text.size() && HexDigit(text[i + 2]) >= 0 &&
                   HexDigit(text[i + 3]) >= 0) {
            out.push_back(static_cast<char>(HexDigit(text[i + 2]) * 16 + HexDigit(text[i + 3])));
            i += 3;
        } else {
            out.push_back('\\');
        }
    }
    return out;
}
