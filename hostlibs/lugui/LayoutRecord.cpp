// Layout records: small ordered key lists, looked up without regard to case.
#include <strings.h>

#include "LuLayoutRecord.h"

namespace LuGui {

const char* CLuLayoutRecord::GetValue(const char* szKey) const {
    if (!szKey) return nullptr;
    for (const auto& [key, value] : m_vecValues)
        if (::strcasecmp(key.c_str(), szKey) == 0) return value.c_str();
    return nullptr;
}

int CLuLayoutRecord::GetInt(const char* szKey, int nDefault) const {
    const char* szValue = GetValue(szKey);
    return szValue ? SafeAtoi(szValue) : nDefault;
}

bool CLuLayoutRecord::AddValue(std::string strKey, std::string strValue) {
    if (GetValue(strKey.c_str())) return false;
    m_vecValues.emplace_back(std::move(strKey), std::move(strValue));
    return true;
}

} // namespace LuGui
