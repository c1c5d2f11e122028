// One record of the widget toolkit's layout file: the keys and values that describe a dialog or a control.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "BaseLib.h"

namespace LuGui {

/// A section of the layout file. Owned by the dialog manager for its whole life; windows only point at it.
class CLuLayoutRecord {
public:
    using Values = std::vector<std::pair<std::string, std::string>>;

    CLuLayoutRecord() = default;
    explicit CLuLayoutRecord(std::string strName) : m_strName(std::move(strName)) {}
    /// A record of keys already distinct without regard to case, in file order.
    CLuLayoutRecord(std::string strName, Values values)
        : m_strName(std::move(strName)), m_vecValues(std::move(values)) {}

    /// The section's name ("Dialog1000", "Dialog1000.1001").
    const char* GetName() const { return m_strName.c_str(); }
    /// The value of a key (matched without regard to case), or null when the record has no such key.
    const char* GetValue(const char* szKey) const;
    /// The value read as a decimal number (SafeAtoi), nDefault when the key is absent.
    int GetInt(const char* szKey, int nDefault) const;
    /// Adds a key; a key that is already present keeps its first value (returns false then).
    bool AddValue(std::string strKey, std::string strValue);
    std::size_t GetKeyCount() const { return m_vecValues.size(); }

private:
    std::string m_strName;
    Values m_vecValues; ///< in file order; records are small
};

} // namespace LuGui
