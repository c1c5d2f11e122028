// Parsing of INI-style text from memory, with each format's rule for repeats; reading a client file is a
// thin layer over it.
#include "IniDocument.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "ClientPath.h"

namespace txt {
namespace {
constexpr std::string_view BLANKS = " \t\r\n";
constexpr std::size_t READ_CHUNK = 16384;

std::string_view Trim(std::string_view s) {
    const std::size_t first = s.find_first_not_of(BLANKS);
    if (first == std::string_view::npos) return {};
    return s.substr(first, s.find_last_not_of(BLANKS) - first + 1);
}

std::string LowerAscii(std::string_view s) {
    std::string out(s);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}

bool IsComment(std::string_view line) {
    return line.front() == ';' || line.front() == '#';
}

IniSection NewSection(std::string_view name, int nLine) {
    IniSection section;
    section.name = std::string(name);
    section.line = nLine;
    return section;
}
} // namespace

const IniEntry* IniSection::Find(std::string_view key) const {
    const auto it = m_index.find(LowerAscii(key));
    return it == m_index.end() ? nullptr : &entries[it->second];
}

const std::string* IniSection::Value(std::string_view key) const {
    const IniEntry* entry = Find(key);
    return entry ? &entry->value : nullptr;
}

IniDocument IniDocument::Parse(std::string_view text, IniRules rules) {
    IniDocument doc;
    SCursor cursor;
    int nLine = 0;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        doc.ParseLine(text.substr(start, end - start), ++nLine, rules, cursor);
        start = end + 1;
    }
    doc.Compact();
    return doc;
}

void IniDocument::ParseLine(std::string_view line, int nLine, IniRules rules, SCursor& cursor) {
    line = Trim(line);
    if (line.empty() || IsComment(line)) return;
    if (line.front() == '[') {
        const std::size_t close = line.find(']');
        const std::string_view name =
            Trim(line.substr(1, close == std::string_view::npos ? line.npos : close - 1));
        if (close == std::string_view::npos || name.empty()) {
            const auto kind = close == std::string_view::npos ? IniIssue::Kind::UnclosedSection
                                                              : IniIssue::Kind::EmptySectionName;
            m_issues.push_back({kind, nLine, std::string(name)});
            cursor = SCursor{};
            if (rules.sections == IniSectionRepeat::Separate) {
                // NOTE: a block reader must see that a title was there and could not be read.
                cursor.section = m_sections.size();
                m_sections.push_back(NewSection({}, nLine));
            }
            return;
        }
        OpenSection(name, nLine, rules.sections, cursor);
        return;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        m_issues.push_back({IniIssue::Kind::MissingEquals, nLine, std::string(line)});
        return;
    }
    const std::string_view key = Trim(line.substr(0, equals));
    if (key.empty()) {
        m_issues.push_back({IniIssue::Kind::EmptyKey, nLine, {}});
        return;
    }
    if (cursor.ignoring) return;
    if (!cursor.section) {
        m_issues.push_back({IniIssue::Kind::OutsideSection, nLine, std::string(key)});
        return;
    }
    AddEntry(m_sections[*cursor.section], key, Trim(line.substr(equals + 1)), nLine, rules.keys);
}

void IniDocument::OpenSection(std::string_view name, int nLine, IniSectionRepeat rule, SCursor& cursor) {
    const auto [it, inserted] = m_index.try_emplace(LowerAscii(name), m_sections.size());
    cursor = SCursor{it->second, false};
    if (!inserted && rule == IniSectionRepeat::Separate) {
        m_issues.push_back({IniIssue::Kind::RepeatedSection, nLine, std::string(name)});
        cursor.section = m_sections.size();
        m_sections.push_back(NewSection(name, nLine));
        return;
    }
    if (inserted) {
        m_sections.push_back(NewSection(name, nLine));
        return;
    }
    m_issues.push_back({IniIssue::Kind::RepeatedSection, nLine, std::string(name)});
    if (rule == IniSectionRepeat::FirstWins) {
        cursor = SCursor{std::nullopt, true};
    } else if (rule == IniSectionRepeat::LastWins) {
        m_sections[it->second] = NewSection(name, nLine);
    }
}

void IniDocument::AddEntry(IniSection& section, std::string_view key, std::string_view value, int nLine,
                           IniKeyRepeat rule) {
    const auto [it, inserted] = section.m_index.try_emplace(LowerAscii(key), section.entries.size());
    if (!inserted) {
        m_issues.push_back({IniIssue::Kind::RepeatedKey, nLine, std::string(key)});
        if (rule == IniKeyRepeat::KeepAll) {
            section.entries.push_back(IniEntry{std::string(key), std::string(value), nLine});
            return;
        }
        if (rule == IniKeyRepeat::FirstWins) return;
        // NOTE: the earlier entry is only marked here and dropped in Compact, so that many repeats stay
        // linear.
        section.m_replaced.resize(section.entries.size(), false);
        section.m_replaced[it->second] = true;
        it->second = section.entries.size();
    }
    section.entries.push_back(IniEntry{std::string(key), std::string(value), nLine});
}

void IniDocument::Compact() {
    for (IniSection& section : m_sections) {
        if (section.m_replaced.empty()) continue;
        section.m_replaced.resize(section.entries.size(), false);
        std::vector<IniEntry> kept;
        kept.reserve(section.entries.size());
        for (std::size_t i = 0; i < section.entries.size(); ++i) {
            if (section.m_replaced[i]) continue;
            section.m_index[LowerAscii(section.entries[i].key)] = kept.size();
            kept.push_back(std::move(section.entries[i]));
        }
        section.entries = std::move(kept);
        section.m_replaced.clear();
    }
}

std::optional<std::string> IniDocument::ReadClientFile(std::string_view file, std::size_t maxBytes) {
    const std::string path = ClientPath::Resolve(file);
    if (path.empty()) return std::nullopt;
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> fp(std::fopen(path.c_str(), "rb"), &std::fclose);
    if (!fp) return std::nullopt;
    std::string text;
    char buf[READ_CHUNK];
    while (text.size() < maxBytes) {
        const std::size_t n = std::fread(buf, 1, std::min(sizeof buf, maxBytes - text.size()), fp.get());
        if (n == 0) break;
        text.append(buf, n);
    }
    return text;
}

std::optional<IniDocument> IniDocument::Load(std::string_view file, IniRules rules) {
    const auto text = ReadClientFile(file);
    if (!text) return std::nullopt;
    return Parse(*text, rules);
}

const IniSection* IniDocument::Find(std::string_view section) const {
    const auto it = m_index.find(LowerAscii(section));
    return it == m_index.end() ? nullptr : &m_sections[it->second];
}

const std::string* IniDocument::Value(std::string_view section, std::string_view key) const {
    const IniSection* found = Find(section);
    return found ? found->Value(key) : nullptr;
}

} // namespace txt
