// The server-configuration part of the client-directory check.
#include "ServerCfgCheck.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <optional>
#include <string_view>

#include "text/IniDocument.h"

namespace {

struct SCategory {
    std::string_view header;
    std::string_view groupPrefix;
};
// NOTE: the categories and server keys the library reads; a new category there needs its line here.
constexpr std::array<SCategory, 6> CATEGORIES = {{{"Header", "Group"},
                                                  {"HeaderClassics", "GroupClassics"},
                                                  {"HeaderQQ", "GroupQQ"},
                                                  {"HeaderTime", "GroupTime"},
                                                  {"HeaderBoss", "GroupBoss"},
                                                  {"HeaderTianYi", "GroupTianYi"}}};
constexpr std::array<std::string_view, 9> SERVER_KEYS = {
    "Server",        "AchTime",   "AchTips",          "SpecialMark",     "SpecialNameColor",
    "SpecialEffect", "SpecialBg", "SpecialIntroduce", "SpecialDetailTip"};
constexpr std::string_view SERVER_ID_KEY = "Server";
constexpr std::string_view SPECIAL_MARK_KEY = "SpecialMark";
// Longer numbers are beyond any amount the library reads.
constexpr std::size_t MAX_NUMBER_DIGITS = 4;

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

// The number after prefix when text is prefix followed by 1 to 4 digits without a leading zero.
std::optional<int> NumberAfter(std::string_view text, std::string_view prefix) {
    if (text.size() <= prefix.size() || text.size() > prefix.size() + MAX_NUMBER_DIGITS) return std::nullopt;
    if (!EqualNoCase(text.substr(0, prefix.size()), prefix)) return std::nullopt;
    const std::string_view digits = text.substr(prefix.size());
    if (digits.front() == '0' ||
        !std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return std::nullopt;
    return std::stoi(std::string(digits));
}

// A whole number as the profile functions read one: leading digits, 0 when there are none.
int ProfileInt(const std::string* value) {
    if (!value) return 0;
    std::size_t i = 0;
    const bool bNegative = i < value->size() && (*value)[i] == '-';
    if (bNegative) ++i;
    long long n = 0;
    for (; i < value->size() && std::isdigit(static_cast<unsigned char>((*value)[i])) && n < INT32_MAX; ++i)
        n = n * 10 + ((*value)[i] - '0');
    return static_cast<int>(bNegative ? -n : n);
}

struct SServerKey {
    std::string_view name;
    int number;
};
std::optional<SServerKey> ServerKeyOf(std::string_view key) {
    for (std::string_view name : SERVER_KEYS)
        if (const auto n = NumberAfter(key, name)) return SServerKey{name, *n};
    return std::nullopt;
}

void Add(std::vector<LintFinding>& out, int nLine, std::string text) {
    out.push_back(LintFinding{ServerCfgCheck::FILE_NAME, nLine, std::move(text)});
}

void CheckGroup(const txt::IniSection& group, std::vector<LintFinding>& out) {
    const txt::IniEntry* pAmount = group.Find("ServerAmount");
    const int nAmount = ProfileInt(pAmount ? &pAmount->value : nullptr);
    if (nAmount <= 0) {
        Add(out, pAmount ? pAmount->line : group.line,
            "group [" + group.name + "] has no servers (ServerAmount=" + std::to_string(nAmount) + ")");
        return;
    }
    std::map<int, const txt::IniEntry*> idEntries; // server number to its id key
    for (const txt::IniEntry& entry : group.entries)
        if (const auto key = ServerKeyOf(entry.key);
            key && key->name == SERVER_ID_KEY && key->number <= nAmount)
            idEntries.emplace(key->number, &entry);
    if (idEntries.empty()) Add(out, group.line, "group [" + group.name + "] has no servers (no Server key)");
    std::map<int, int> firstLineOfId;
    for (const auto& [number, pEntry] : idEntries) {
        const int id = ProfileInt(&pEntry->value);
        const auto [it, bNew] = firstLineOfId.emplace(id, pEntry->line);
        if (!bNew)
            Add(out, pEntry->line,
                pEntry->key + "=" + pEntry->value + " repeats a server of line " +
                    std::to_string(it->second) + " of [" + group.name + "]: only the first is read");
    }
    for (const txt::IniEntry& entry : group.entries) {
        const auto key = ServerKeyOf(entry.key);
        if (!key || key->name == SERVER_ID_KEY) continue;
        if (key->number > nAmount) {
            Add(out, entry.line,
                entry.key + " is past ServerAmount=" + std::to_string(nAmount) + " of [" + group.name +
                    "]: never read");
        } else if (!idEntries.count(key->number)) {
            const bool bMark = key->name == SPECIAL_MARK_KEY;
            Add(out, entry.line,
                std::string(bMark ? "special mark on an unknown server: " : "") + entry.key + " of [" +
                    group.name + "] has no Server" + std::to_string(key->number) + " naming its server");
        }
    }
}

} // namespace

std::vector<LintFinding> ServerCfgCheck::Check(const txt::IniDocument& ini) {
    std::vector<LintFinding> out;
    for (const txt::IniSection& section : ini.Sections()) {
        const auto isHeader = [&](const SCategory& c) { return EqualNoCase(section.name, c.header); };
        if (std::any_of(CATEGORIES.begin(), CATEGORIES.end(), isHeader)) continue;
        const SCategory* pCategory = nullptr;
        std::optional<int> number;
        for (const SCategory& category : CATEGORIES)
            if ((number = NumberAfter(section.name, category.groupPrefix))) {
                pCategory = &category;
                break;
            }
        if (!pCategory) {
            Add(out, section.line, "section [" + section.name + "] belongs to no category: nothing reads it");
            continue;
        }
        const std::string* pGroupAmount = ini.Value(pCategory->header, "GroupAmount");
        const int nGroups = ProfileInt(pGroupAmount);
        if (*number > nGroups) {
            Add(out, section.line,
                "group [" + section.name + "] is past GroupAmount=" + std::to_string(nGroups) + " of [" +
                    std::string(pCategory->header) + "]: no screen shows it");
            continue;
        }
        CheckGroup(section, out);
    }
    return out;
}
