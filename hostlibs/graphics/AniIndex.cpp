// Parser of animation index files (INI-style: one section per title, FrameN keys); see docs/ANIMATION.md.
#include "AniIndex.h"

#include <algorithm>
#include <charconv>

#include "text/IniDocument.h"

namespace gfx {
namespace {
constexpr std::string_view BLANKS = " \t\r\n";
constexpr std::string_view FRAME_PREFIX = "frame";
constexpr std::string_view BOX_WORD = "box";
constexpr std::string_view NO_COLOUR = "none";

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(BLANKS);
    if (first == std::string_view::npos) return {};
    const std::size_t last = text.find_last_not_of(BLANKS);
    return text.substr(first, last - first + 1);
}

// Splits off the first blank-separated word; text keeps the rest, trimmed.
std::string_view NextWord(std::string_view& text) {
    text = Trim(text);
    const std::size_t end = std::min(text.find_first_of(BLANKS), text.size());
    const std::string_view word = text.substr(0, end);
    text = Trim(text.substr(end));
    return word;
}

std::optional<int> ParseInt(std::string_view text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (text.empty() || result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return value;
}

// "L,T,R,B": exactly four non-negative numbers.
std::optional<AniBorder> ParseBorder(std::string_view text) {
    constexpr int SIDES = 4;
    int values[SIDES] = {};
    for (int i = 0; i < SIDES; ++i) {
        const std::size_t comma = text.find(',');
        const bool last = i == SIDES - 1;
        if (last != (comma == std::string_view::npos)) return std::nullopt;
        const auto value = ParseInt(Trim(text.substr(0, comma)));
        if (!value || *value < 0 || *value > AniIndexParser::MAX_BOX_SIDE) return std::nullopt;
        values[i] = *value;
        if (!last) text = text.substr(comma + 1);
    }
    return AniBorder{values[0], values[1], values[2], values[3]};
}

std::optional<AniFrame> ParseBox(std::string_view rest) {
    const auto width = ParseInt(NextWord(rest));
    const auto height = ParseInt(NextWord(rest));
    if (!width || !height) return std::nullopt;
    if (*width <= 0 || *height <= 0 || *width > AniIndexParser::MAX_BOX_SIDE ||
        *height > AniIndexParser::MAX_BOX_SIDE) {
        return std::nullopt;
    }
    AniFrame frame;
    frame.kind = AniFrame::Kind::Box;
    frame.width = *width;
    frame.height = *height;
    const std::string_view fill = NextWord(rest);
    if (fill.empty()) return std::nullopt;
    frame.fill = AniIndexParser::ParseColour(fill);
    if (!frame.fill && LowerAscii(fill) != NO_COLOUR) return std::nullopt;
    const std::string_view outline = NextWord(rest);
    if (!outline.empty()) {
        frame.outline = AniIndexParser::ParseColour(outline);
        if (!frame.outline && LowerAscii(outline) != NO_COLOUR) return std::nullopt;
    }
    frame.label = std::string(rest);
    if (frame.outline) frame.labelColour = *frame.outline;
    return frame;
}

struct ParseState {
    AniIndex index;
    AniTitle* current = nullptr;
    int line = 0;
    std::vector<std::pair<int, std::string>> lineWarnings;

    void Warn(std::string_view what) { lineWarnings.emplace_back(line, std::string(what)); }
    /// The warnings in line order, as "line N: ...".
    void FlushWarnings() {
        std::stable_sort(lineWarnings.begin(), lineWarnings.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        for (const auto& [number, what] : lineWarnings)
            index.warnings.push_back("line " + std::to_string(number) + ": " + what);
        lineWarnings.clear();
    }
};

// What the reader skipped, in the words of this format; nothing for what is not worth a warning.
std::optional<std::string> Describe(const txt::IniIssue& issue) {
    using Kind = txt::IniIssue::Kind;
    switch (issue.kind) {
    case Kind::UnclosedSection:
        return "section without ']'";
    case Kind::EmptySectionName:
        return "empty title";
    case Kind::RepeatedSection:
        return "title '" + issue.name + "' repeated; the first one counts";
    case Kind::MissingEquals:
        return "line without '='";
    case Kind::EmptyKey:
        return "line without a key";
    case Kind::OutsideSection:
        return "entry outside a title";
    case Kind::RepeatedKey:
        return std::nullopt;
    }
    return std::nullopt;
}

void SetFrame(ParseState& state, std::string_view number, std::string_view value) {
    const auto index = ParseInt(number);
    if (!index || *index < 0 || *index >= AniIndexParser::MAX_FRAMES) {
        state.Warn("bad frame number '" + std::string(number) + "'");
        return;
    }
    auto frame = AniIndexParser::ParseFrame(value);
    if (!frame) {
        state.Warn("bad frame '" + std::string(value) + "'");
        return;
    }
    auto& frames = state.current->frames;
    if (static_cast<std::size_t>(*index) >= frames.size())
        frames.resize(static_cast<std::size_t>(*index) + 1);
    frames[static_cast<std::size_t>(*index)] = std::move(*frame);
}

void SetEntry(ParseState& state, std::string_view key, std::string_view value) {
    const std::string lowered = LowerAscii(key);
    if (lowered.rfind(FRAME_PREFIX, 0) == 0) {
        SetFrame(state, std::string_view(lowered).substr(FRAME_PREFIX.size()), value);
    } else if (lowered == "interval") {
        const auto ms = ParseInt(value);
        if (!ms || *ms <= 0 || *ms > AniIndexParser::MAX_INTERVAL_MS) {
            state.Warn("bad interval '" + std::string(value) + "'");
            return;
        }
        state.current->intervalMs = *ms;
    } else if (lowered == "border") {
        const auto border = ParseBorder(value);
        if (!border) {
            state.Warn("bad border '" + std::string(value) + "'");
            return;
        }
        state.current->border = *border;
    } else {
        state.Warn("unknown key '" + std::string(key) + "'");
    }
}

void DropTitlesWithoutFrames(AniIndex& index) {
    for (auto it = index.titles.begin(); it != index.titles.end();) {
        const bool anyFrame = std::any_of(it->second.frames.begin(), it->second.frames.end(),
                                          [](const AniFrame& f) { return f.kind != AniFrame::Kind::Empty; });
        if (anyFrame) {
            ++it;
            continue;
        }
        index.warnings.push_back("title '" + it->second.title + "' has no frame");
        it = index.titles.erase(it);
    }
}
} // namespace

std::string LowerAscii(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return out;
}

const AniTitle* AniIndex::Find(std::string_view title) const {
    const auto it = titles.find(LowerAscii(title));
    return it == titles.end() ? nullptr : &it->second;
}

std::optional<DWORD> AniIndexParser::ParseColour(std::string_view text) {
    text = Trim(text);
    if (!text.empty() && text.front() == '#') text.remove_prefix(1);
    if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) text.remove_prefix(2);
    if (text.size() != 6 && text.size() != 8) return std::nullopt;
    DWORD value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value, 16);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    constexpr DWORD OPAQUE_BITS = 0xFF000000;
    return text.size() == 6 ? (value | OPAQUE_BITS) : value;
}

std::optional<AniFrame> AniIndexParser::ParseFrame(std::string_view value) {
    value = Trim(value);
    if (value.empty()) return std::nullopt;
    std::string_view rest = value;
    const std::string_view first = NextWord(rest);
    if (LowerAscii(first) == BOX_WORD) return ParseBox(rest);
    AniFrame frame;
    frame.kind = AniFrame::Kind::Image;
    frame.path = std::string(value);
    return frame;
}

AniIndex AniIndexParser::Parse(std::string_view text) {
    const txt::IniDocument doc = txt::IniDocument::Parse(text, txt::ANIMATION_INDEX_RULES);
    ParseState state;
    for (const txt::IniIssue& issue : doc.Issues()) {
        state.line = issue.line;
        if (const auto what = Describe(issue)) state.Warn(*what);
    }
    for (const txt::IniSection& section : doc.Sections()) {
        AniTitle& title = state.index.titles[LowerAscii(section.name)];
        title.title = section.name;
        state.current = &title;
        for (const txt::IniEntry& entry : section.entries) {
            state.line = entry.line;
            SetEntry(state, entry.key, entry.value);
        }
    }
    state.FlushWarnings();
    DropTitlesWithoutFrames(state.index);
    return std::move(state.index);
}

} // namespace gfx
