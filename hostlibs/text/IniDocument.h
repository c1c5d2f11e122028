// The host libraries' one reader of INI-style text: "[Section]" lines, "key = value" lines, ";" and "#"
// comments; each file format passes its rule for a section or key that comes again.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace txt {

/// What a format does with a section name that comes again (names match without regard to case).
enum class IniSectionRepeat {
    Merge,     ///< the keys of the repeat join the first section
    FirstWins, ///< the repeat and its keys are ignored
    LastWins,  ///< the repeat replaces the earlier section and its keys
    Separate,  ///< the repeat is a section of its own (lookups by name find the first); a title line that
               ///< cannot be read opens a section without a name
};
/// What a format does with a key that comes again in a section (keys match without regard to case).
enum class IniKeyRepeat {
    FirstWins, ///< the later value is ignored
    LastWins,  ///< the later value replaces the earlier one and the key moves to the later place
    KeepAll,   ///< every line is kept in file order; lookups by key find the first
};

struct IniRules {
    IniSectionRepeat sections;
    IniKeyRepeat keys;
};

/// The client's profile files, as the Windows profile functions read them.
inline constexpr IniRules PROFILE_RULES{IniSectionRepeat::Merge, IniKeyRepeat::FirstWins};
/// The widget toolkit's layout file: the first occurrence counts (the rest is reported).
inline constexpr IniRules LAYOUT_RULES{IniSectionRepeat::FirstWins, IniKeyRepeat::FirstWins};
/// Block files (the base library's CZrIni blocks): every title and every line as written.
inline constexpr IniRules BLOCK_RULES{IniSectionRepeat::Separate, IniKeyRepeat::KeepAll};
/// Animation index files: the first title of a name counts, a later frame line replaces an earlier one.
inline constexpr IniRules ANIMATION_INDEX_RULES{IniSectionRepeat::FirstWins, IniKeyRepeat::LastWins};

/// One "key = value" line, both trimmed of blanks (a "\r" before the line end included).
struct IniEntry {
    std::string key;
    std::string value;
    int line = 0; ///< 1-based line number in the text
};

/// A section with its entries in file order.
struct IniSection {
    std::string name; ///< as spelled (by the occurrence that counts)
    int line = 0;
    std::vector<IniEntry> entries;

    /// The entry of a key, null when there is none.
    const IniEntry* Find(std::string_view key) const;
    /// The value of a key, null when there is none.
    const std::string* Value(std::string_view key) const;

private:
    friend class IniDocument;
    std::unordered_map<std::string, std::size_t> m_index; ///< lower-cased key to entry position
    std::vector<bool> m_replaced; ///< while parsing: entries a later value replaced (LastWins)
};

/// Something the reader skipped or resolved by the rules; each format decides what to report.
struct IniIssue {
    enum class Kind {
        UnclosedSection,  ///< "[" without "]": the lines up to the next section belong to none
        EmptySectionName, ///< "[]": as above
        RepeatedSection,  ///< handled by the section rule
        MissingEquals,    ///< a line that is neither comment, section nor "key = value"
        EmptyKey,         ///< "= value"
        OutsideSection,   ///< an entry before any section or after a bad one
        RepeatedKey,      ///< handled by the key rule
    };
    Kind kind;
    int line;
    std::string name; ///< the section or key concerned, as spelled
};

class IniDocument {
public:
    /// Files larger than this are read only up to it.
    static constexpr std::size_t MAX_FILE_BYTES = 16u * 1024u * 1024u;

    /// Parses text (any bytes; lines end at "\n", a "\r" before it is dropped with the blanks).
    static IniDocument Parse(std::string_view text, IniRules rules);
    /// Reads a file below the client directory (ClientPath) and parses it; nothing when it cannot be read.
    static std::optional<IniDocument> Load(std::string_view file, IniRules rules);
    /// The bytes of a client file, at most maxBytes; nothing when it cannot be read.
    static std::optional<std::string> ReadClientFile(std::string_view file,
                                                     std::size_t maxBytes = MAX_FILE_BYTES);

    const std::vector<IniSection>& Sections() const { return m_sections; }
    const std::vector<IniIssue>& Issues() const { return m_issues; }
    /// The section of a name, null when there is none.
    const IniSection* Find(std::string_view section) const;
    /// The value of a key of a section, null when either is missing.
    const std::string* Value(std::string_view section, std::string_view key) const;

private:
    /// The section lines and entries go to, and whether they are ignored (a repeat the rule drops).
    struct SCursor {
        std::optional<std::size_t> section;
        bool ignoring = false;
    };

    void ParseLine(std::string_view line, int nLine, IniRules rules, SCursor& cursor);
    void OpenSection(std::string_view name, int nLine, IniSectionRepeat rule, SCursor& cursor);
    void AddEntry(IniSection& section, std::string_view key, std::string_view value, int nLine,
                  IniKeyRepeat rule);
    /// Drops the entries a later value replaced.
    void Compact();

    std::vector<IniSection> m_sections;
    std::unordered_map<std::string, std::size_t> m_index; ///< lower-cased name to section position
    std::vector<IniIssue> m_issues;
};

} // namespace txt
