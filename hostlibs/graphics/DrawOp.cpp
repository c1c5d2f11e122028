// The stable one-line form of a recorded draw operation, compared byte for byte by tests and transcripts.
#include <cstdio>

#include "hostlibs/HostCanvas.h"

namespace host {
namespace {
std::string Hex(DWORD colour) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "#%08X", static_cast<unsigned>(colour));
    return buffer;
}

// Quotes, backslashes and bytes outside printable ASCII escaped, as in the host's transcripts.
std::string Quoted(const std::string& text) {
    std::string out = "\"";
    for (unsigned char c : text) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else if (c < 0x20 || c >= 0x7F) {
            char buffer[8];
            std::snprintf(buffer, sizeof buffer, "\\x%02X", c);
            out += buffer;
        } else {
            out += static_cast<char>(c);
        }
    }
    return out + '"';
}

std::string Place(const DrawOp& op) {
    return std::to_string(op.x) + ',' + std::to_string(op.y) + ' ' + std::to_string(op.w) + 'x' +
           std::to_string(op.h);
}

std::string Source(const DrawOp& op, bool withFrame) {
    std::string out = (op.file.empty() ? std::string("-") : op.file) + ':' + op.name;
    if (withFrame && op.frame >= 0) out += '#' + std::to_string(op.frame);
    return out;
}

std::string Alpha(const DrawOp& op) {
    return "a=" + std::to_string(op.colour);
}
} // namespace

std::string DrawOp::ToString() const {
    if (kind == "block" || kind == "rect") return kind + ' ' + Place(*this) + ' ' + Hex(colour);
    if (kind == "line") {
        return kind + ' ' + std::to_string(x) + ',' + std::to_string(y) + " -> " + std::to_string(x + w) +
               ',' + std::to_string(y + h) + ' ' + Hex(colour);
    }
    if (kind == "text") {
        return kind + ' ' + Place(*this) + ' ' + Hex(colour) + " size=" + std::to_string(size) + ' ' +
               Quoted(text);
    }
    if (kind == "strres") {
        return kind + ' ' + Place(*this) + ' ' + Hex(colour) + " size=" + std::to_string(size) +
               " mode=" + std::to_string(frame) + ' ' + Quoted(text);
    }
    if (kind == "bitmap")
        return kind + ' ' + (file.empty() ? std::string("-") : file) + ' ' + Place(*this) + ' ' +
               Alpha(*this);
    if (kind == "ani" || kind == "strresui")
        return kind + ' ' + Source(*this, true) + ' ' + Place(*this) + ' ' + Alpha(*this);
    if (kind == "nine") return kind + ' ' + Source(*this, false) + ' ' + Place(*this) + ' ' + Alpha(*this);
    if (kind == "effect") {
        std::string out = kind + ' ' + name;
        if (frame >= 0) out += '#' + std::to_string(frame);
        return out + ' ' + Place(*this);
    }
    if (kind == "image") return kind + ' ' + Place(*this) + ' ' + Alpha(*this);
    return kind + ' ' + Place(*this);
}

} // namespace host
