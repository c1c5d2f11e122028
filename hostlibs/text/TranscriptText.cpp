// One way to quote a value in a transcript line, for the reference host and the host libraries' own lines.
#include "hostlibs/HostEnv.h"

namespace host {

std::string EscapeTranscriptText(std::string_view text) {
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

} // namespace host
