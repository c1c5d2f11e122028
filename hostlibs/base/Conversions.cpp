// Safe number and text conversions of the base library: bounded, never throwing, never overflowing.
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "BaseLib.h"

namespace {
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f';
}

// Length of the UTF-8 sequence a lead byte starts (1 for bytes that start none).
std::size_t Utf8SequenceLength(unsigned char c) {
    if (c >= 0xF0 && c <= 0xF4) return 4;
    if (c >= 0xE0) return c <= 0xEF ? 3 : 1;
    if (c >= 0xC2) return 2;
    return 1;
}
} // namespace

int SafeAtoi(const char* sz) {
    if (!sz) return 0;
    while (IsBlank(*sz)) ++sz;
    bool negative = false;
    if (*sz == '+' || *sz == '-') negative = *sz++ == '-';
    long long value = 0;
    for (; *sz >= '0' && *sz <= '9'; ++sz) {
        value = value * 10 + (*sz - '0');
        if (value > static_cast<long long>(INT_MAX) + 1) value = static_cast<long long>(INT_MAX) + 1;
    }
    if (negative) value = -value;
    if (value > INT_MAX) return INT_MAX;
    if (value < INT_MIN) return INT_MIN;
    return static_cast<int>(value);
}

char* SafeItoA(int nValue, char* szBuf, std::size_t nSize, int nRadix) {
    if (!szBuf || nSize == 0) return szBuf;
    if (nRadix < 2 || nRadix > 36) nRadix = 10;
    char digits[40];
    std::size_t n = 0;
    long long v = nValue;
    const bool negative = v < 0 && nRadix == 10;
    unsigned long long u = negative ? static_cast<unsigned long long>(-v) : static_cast<unsigned int>(nValue);
    do {
        const int d = static_cast<int>(u % static_cast<unsigned>(nRadix));
        digits[n++] = static_cast<char>(d < 10 ? '0' + d : 'a' + d - 10);
        u /= static_cast<unsigned>(nRadix);
    } while (u != 0);
    if (negative) digits[n++] = '-';
    std::size_t out = 0;
    while (n > 0 && out + 1 < nSize) szBuf[out++] = digits[--n];
    szBuf[out] = '\0';
    return szBuf;
}

unsigned long SafeStrtoul(const char* sz, int nBase) {
    if (!sz) return 0;
    errno = 0;
    const unsigned long long v = std::strtoull(sz, nullptr, nBase);
    if (errno == ERANGE || v > 0xFFFFFFFFull) return 0xFFFFFFFFul;
    return static_cast<unsigned long>(v);
}

int SafeSprintf(char* szBuf, std::size_t nSize, const char* szFormat, ...) {
    if (!szBuf || nSize == 0) return 0;
    szBuf[0] = '\0';
    if (!szFormat) return 0;
    va_list args;
    va_start(args, szFormat);
    const int n = std::vsnprintf(szBuf, nSize, szFormat, args);
    va_end(args);
    if (n < 0) {
        szBuf[0] = '\0';
        return 0;
    }
    return static_cast<std::size_t>(n) < nSize ? n : static_cast<int>(nSize - 1);
}

void Split(std::vector<CZrString>& vecOut, const char* szText, const char* szSep, UINT nCodePage) {
    vecOut.clear();
    if (!szText) return;
    const std::string_view text(szText);
    const std::string_view sep(szSep ? szSep : "");
    if (sep.empty()) {
        vecOut.emplace_back(text);
        return;
    }
    const bool utf8 = nCodePage == 65001;
    std::size_t start = 0;
    std::size_t i = 0;
    while (i < text.size()) {
        if (text.compare(i, sep.size(), sep) == 0) {
            vecOut.emplace_back(text.substr(start, i - start));
            i += sep.size();
            start = i;
            continue;
        }
        // NOTE: in UTF-8 a separator byte can never sit inside a sequence, but skipping whole sequences keeps
        // the split correct for multi-byte separators too.
        i += utf8 ? Utf8SequenceLength(static_cast<unsigned char>(text[i])) : 1;
    }
    vecOut.emplace_back(text.substr(start));
}

std::u16string StringToWString(const char* sz, UINT nCodePage) {
    std::u16string out;
    if (!sz) return out;
    const auto* p = reinterpret_cast<const unsigned char*>(sz);
    if (nCodePage != 65001) {
        for (; *p; ++p) out.push_back(static_cast<char16_t>(*p));
        return out;
    }
    while (*p) {
        const std::size_t len = Utf8SequenceLength(*p);
        char32_t cp = *p;
        bool valid = len == 1 ? *p < 0x80 : true;
        if (len > 1) {
            cp = *p & (0xFF >> (len + 1));
            for (std::size_t k = 1; k < len; ++k) {
                if ((p[k] & 0xC0) != 0x80) {
                    valid = false;
                    break;
                }
                cp = (cp << 6) | (p[k] & 0x3F);
            }
        }
        if (!valid) {
            out.push_back(u'\uFFFD');
            ++p;
            continue;
        }
        p += len;
        if (cp >= 0x10000) {
            cp -= 0x10000;
            out.push_back(static_cast<char16_t>(0xD800 + (cp >> 10)));
            out.push_back(static_cast<char16_t>(0xDC00 + (cp & 0x3FF)));
        } else {
            out.push_back(static_cast<char16_t>(cp));
        }
    }
    return out;
}

void ConverCodeToOnlyEnglish(char* szText, std::size_t nSize) {
    if (!szText || nSize == 0) return;
    std::size_t out = 0;
    for (std::size_t in = 0; in < nSize && szText[in] != '\0';) {
        const auto c = static_cast<unsigned char>(szText[in]);
        if (c >= 0x20 && c < 0x7F) {
            szText[out++] = szText[in++];
            continue;
        }
        std::size_t len = Utf8SequenceLength(c);
        for (std::size_t k = 1; k < len; ++k)
            if (in + k >= nSize || (static_cast<unsigned char>(szText[in + k]) & 0xC0) != 0x80) len = k;
        in += len;
        szText[out++] = c == '\n' ? '\n' : '?';
    }
    szText[out < nSize ? out : nSize - 1] = '\0';
}
