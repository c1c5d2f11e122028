// Case files and text dumps for the auto-text layout tests.
#include "AutoTextDump.h"

#include <cstdio>
#include <sstream>

#include "hostlibs/HostEnv.h"

namespace autotext {
namespace {

std::string Escape(const std::string& text) {
    std::string out;
    for (unsigned char c : text) {
        if (c == '\n') {
            out += "\\n";
        } else if (c == '"' || c == '\\' || c < 0x20 || c >= 0x7F) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\x%02X", c);
            out += buf;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out;
}

} // namespace

Case ParseCase(const std::string& content) {
    Case c;
    const auto eol = content.find('\n');
    std::istringstream header(content.substr(0, eol));
    std::string word;
    while (header >> word) {
        const auto eq = word.find('=');
        if (eq == std::string::npos) continue;
        const std::string key = word.substr(0, eq);
        const std::string value = word.substr(eq + 1);
        if (key == "width") c.width = std::stoi(value);
        if (key == "font") c.font = std::stoi(value);
        if (key == "spacing") c.spacing = std::stoi(value);
        if (key == "align") c.align = std::stoi(value);
        if (key == "wrap") c.wrap = value == "1";
        if (key == "tags") c.tags = value == "1";
        if (key == "strres") c.strres = static_cast<unsigned>(std::stoul(value));
        if (key == "language") c.language = value;
    }
    c.text = eol == std::string::npos ? std::string() : content.substr(eol + 1);
    if (!c.text.empty() && c.text.back() == '\n') c.text.pop_back();
    return c;
}

void LayOut(const Case& c, CSimAutoText& text) {
    if (!c.language.empty()) host::SetData("language", c.language);
    text.SetFontSize(c.font);
    text.SetWidth(c.width);
    text.SetCharSpacing(c.spacing);
    text.SetStrResMode(c.strres);
    text.SetAlign(c.align);
    text.SetText(c.text.c_str(), c.wrap, c.tags);
}

std::string Dump(const CSimAutoText& text) {
    std::ostringstream out;
    out << "size " << text.GetTextSize().cx << "x" << text.GetTextSize().cy << "\n";
    const auto& lines = text.GetLines();
    auto dumpRun = [&](const SAutoTextRun& run) {
        char colour[16];
        std::snprintf(colour, sizeof colour, "%08X", run.dwColor);
        out << "  run x=" << run.nX << " dy=" << run.nOffsetY << " font=" << run.nFontSize
            << " color=" << colour << " style=" << run.nStyle << " \"" << Escape(run.strText) << "\"\n";
    };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const SAutoTextLine& line = lines[i];
        out << "line " << i << " x=" << line.nX << " y=" << line.nY << " w=" << line.nWidth
            << " h=" << line.nHeight << "\n";
        for (const SAutoTextRun& run : text.GetRuns())
            if (run.nLine == static_cast<int>(i)) dumpRun(run);
    }
    for (const SAutoTextRun& run : text.GetRuns())
        if (run.nLine < 0 || run.nLine >= static_cast<int>(lines.size())) {
            out << "unplaced line " << run.nLine << "\n";
            dumpRun(run);
        }
    return out.str();
}

} // namespace autotext
