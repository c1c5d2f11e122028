// The base library's 8-bit string (CZrString): names and texts in records, any bytes, UTF-8 by convention.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

class CZrString {
public:
    CZrString() = default;
    CZrString(const char* sz) : m_str(sz ? sz : "") {}
    CZrString(std::string_view sv) : m_str(sv) {}
    CZrString(std::string s) : m_str(std::move(s)) {}
    CZrString(const char* p, std::size_t n) : m_str(p ? std::string(p, n) : std::string()) {}

    CZrString& operator=(const char* sz) {
        m_str = sz ? sz : "";
        return *this;
    }
    CZrString& operator=(std::string_view sv) {
        m_str = sv;
        return *this;
    }
    CZrString& operator+=(std::string_view sv) {
        m_str += sv;
        return *this;
    }

    const char* c_str() const { return m_str.c_str(); }
    operator const char*() const { return m_str.c_str(); }
    std::string_view view() const { return m_str; }
    const std::string& str() const { return m_str; }
    std::size_t length() const { return m_str.size(); }
    bool empty() const { return m_str.empty(); }
    bool IsEmpty() const { return m_str.empty(); }
    void clear() { m_str.clear(); }

    friend bool operator==(const CZrString& a, const CZrString& b) { return a.m_str == b.m_str; }
    friend bool operator==(const CZrString& a, std::string_view b) { return a.m_str == b; }
    friend bool operator==(const CZrString& a, const char* b) { return a.m_str == (b ? b : ""); }

private:
    std::string m_str;
};
