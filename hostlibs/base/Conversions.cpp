// Safe number and text conversions of the base library: bounded, never throwing, never overflowing.
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "BaseLib.h"
#include "text/Utf8.h"

namespace {
bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f';
}

constexpr UINT CODE_PAGE_UTF8 = 65001;
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
    const bool utf8 = nCodePage == CODE_PAGE_UTF8;
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
        i += utf8 ? txt::Utf8::SequenceLength(text, i) : 1;
    }
    vecOut.emplace_back(text.substr(start));
}

std::u16string StringToWString(const char* sz, UINT nCodePage) {
    if (!sz) return {};
    if (nCodePage == CODE_PAGE_UTF8) return txt::Utf8::ToUtf16(sz);
    std::u16string out;
    for (const auto* p = reinterpret_cast<const unsigned char*>(sz); *p; ++p)
        out.push_back(static_cast<char16_t>(*p));
    return out;
}

std::string WStringToUTF8(const char16_t* sz, std::size_t nMaxBytes) {
    if (!sz) return {};
    std::u16string_view text(sz);
    const std::string utf8 = txt::Utf8::FromUtf32(txt::Utf8::Utf16ToUtf32(text));
    return utf8.substr(0, txt::Utf8::CutAtBoundary(utf8, nMaxBytes));
}

void ConverCodeToOnlyEnglish(char* szText, std::size_t nSize) {
    if (!szText || nSize == 0) return;
    // NOTE: the text is rewritten in place behind the reading position, which never passes what it reads.
    const std::string_view text(szText, strnlen(szText, nSize));
    std::size_t out = 0;
    for (std::size_t in = 0; in < text.size();) {
        const auto c = static_cast<unsigned char>(text[in]);
        if (c >= 0x20 && c < 0x7F) {
            szText[out++] = szText[in++];
            continue;
        }
        // A character cut short by the buffer's end still counts once.
        in += txt::Utf8::SequenceLength(text, in, txt::Utf8Broken::PerSubpart);
        szText[out++] = c == '\n' ? '\n' : '?';
    }
    szText[out < nSize ? out : nSize - 1] = '\0';
}
