// The profile functions' reading of one INI text: parsed with their rules, values copied as they copy them.
#include "ProfileText.h"

#include <cstring>

namespace txt {

ProfileText ProfileText::Parse(std::string_view text) {
    ProfileText profile;
    profile.m_doc = IniDocument::Parse(text, PROFILE_RULES);
    return profile;
}

const std::string* ProfileText::Value(const char* szSection, const char* szKey) const {
    return szSection && szKey ? m_doc.Value(szSection, szKey) : nullptr;
}

std::size_t ProfileText::CopyString(const char* szSection, const char* szKey, const char* szDefault,
                                    char* szBuf, std::size_t nSize) const {
    if (!szBuf || nSize == 0) return 0;
    const std::string* value = Value(szSection, szKey);
    const std::string_view text =
        value ? std::string_view(*value) : std::string_view(szDefault ? szDefault : "");
    const std::size_t n = text.size() < nSize ? text.size() : nSize - 1;
    std::memcpy(szBuf, text.data(), n);
    szBuf[n] = '\0';
    return n;
}

} // namespace txt
