// The base library's operations used by the system: safe conversions, client-directory files, time, threads,
// text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "Win32Api.h"
#include "ZrString.h"

// ---- safe conversions ----------------------------------------------------------------------------

/// Leading blanks, an optional sign and decimal digits ("12abc" reads 12); null or empty text reads 0; values
/// beyond 32 bits saturate.
int SafeAtoi(const char* sz);
/// Writes nValue in base nRadix (2..36) into a buffer of nSize bytes, truncated but always terminated;
/// returns szBuf.
char* SafeItoA(int nValue, char* szBuf, std::size_t nSize, int nRadix);
/// strtoul with base nBase; null text reads 0, values beyond 32 bits saturate.
unsigned long SafeStrtoul(const char* sz, int nBase);
/// printf into a buffer of nSize bytes, truncated but always terminated; returns the number of bytes written.
int SafeSprintf(char* szBuf, std::size_t nSize, const char* szFormat, ...)
    __attribute__((format(printf, 3, 4)));
/// Splits text at every occurrence of szSep. Code page 65001 (UTF-8) never splits inside a multi-byte
/// character.
void Split(std::vector<CZrString>& vecOut, const char* szText, const char* szSep, UINT nCodePage);
/// Replaces, in place, every character outside printable ASCII by "?" (one per character, UTF-8 aware), for
/// clients that show English characters only; the text stays terminated within nSize bytes.
void ConverCodeToOnlyEnglish(char* szText, std::size_t nSize);
/// UTF-8 (code page 65001) or Latin-1 (anything else) to UTF-16.
std::u16string StringToWString(const char* sz, UINT nCodePage);
/// UTF-16 (to its first NUL, unpaired surrogates replaced) to UTF-8 of at most nMaxBytes, never cut inside a
/// character.
std::string WStringToUTF8(const char16_t* sz, std::size_t nMaxBytes);

// ---- files below the client directory ------------------------------------------------------------

/// An open file of the client directory (or, on the real client, of its packed archives).
struct ZrFile;
/// Opens szPath relative to the client directory; null when it cannot be opened.
ZrFile* Safefopen(const char* szPath, const char* szMode);
/// Reads one line (with its line feed) into szBuf of nSize bytes; null at the end of the file.
char* Safefgets(char* szBuf, int nSize, ZrFile* pFile);
void Safefclose(ZrFile* pFile);
/// Writes nCount items of nSize bytes; returns how many items were written (fwrite).
std::size_t Safefwrite(const void* pData, std::size_t nSize, std::size_t nCount, ZrFile* pFile);
/// The client directory (the game's current directory), as GetCurrentDirectoryA gives it.
std::string GetClientDirectory();

// ---- languages -----------------------------------------------------------------------------------

/// One language the client offers.
struct SLanguageInfo {
    int nIndex;        ///< the client's language index
    CZrString strName; ///< its own name, shown in lists
};

/// The client's languages and the current one (`g_objMultiLang`).
class CMultiLanguage {
public:
    /// The languages, in the client's order.
    const std::vector<SLanguageInfo>& Infos();
    /// Position of the current language in Infos (0 when unknown).
    int GetCurIndex();
    /// The entry at a position of Infos; null outside.
    const SLanguageInfo* GetInfo(int nPos);
    /// Makes a language current.
    void SetInfo(const SLanguageInfo* pInfo);

private:
    std::vector<SLanguageInfo> m_vecInfos;
};
extern CMultiLanguage g_objMultiLang;

// ---- time ----------------------------------------------------------------------------------------

/// Milliseconds of the host's clock (timeGetTime).
DWORD TimeGet();
/// The local calendar time as "YYYY-MM-DD HH:MM:SS".
std::string FormatSvrTime();
/// Local calendar time broken down.
struct SLocalTime {
    int nYear, nMonth, nDay, nHour, nMinute, nSecond;
};
SLocalTime GetLocalCalendarTime();

/// The current local time as seconds of the local calendar since 1970-01-01 00:00 (no time zone); false when
/// the clock cannot be read.
bool GetSafeLocalTime(std::int64_t& nSeconds);
/// Minutes since 1970-01-01 00:00 of the local calendar, as the seconds GetSafeLocalTime counts.
std::int64_t GetTimeFromIntervalMin(std::int64_t nMinutes);

/// Last step reached by the per-frame calls, read by the host's crash dump.
extern int g_nDumpStep;

// ---- threads -------------------------------------------------------------------------------------

class CHandleHelper {
public:
    /// Starts a thread running pfn(pParam); returns its handle (close with CloseHandle) or null.
    static HANDLE CreateThreadProxy(void* pSecurity, std::size_t nStackSize, LPTHREAD_START_ROUTINE pfn,
                                    void* pParam, DWORD dwFlags, DWORD* pThreadId);
};

// ---- INI files -----------------------------------------------------------------------------------

/// Reads a key of a section of an INI file below the client directory into szBuf (nSize bytes, truncated,
/// always terminated); szDefault when the file, the section or the key is missing. Sections and keys match
/// without regard to case; blanks around keys and values are trimmed. Returns the number of bytes copied.
DWORD MyGetPrivateProfileString(const char* szSection, const char* szKey, const char* szDefault, char* szBuf,
                                DWORD nSize, const char* szFile);
/// The client's server-state INI file (web addresses, field placeholders, edition descriptions) and
/// game-setup INI file (the last login), relative to the client directory.
extern const char* const g_pszIniServerState;
extern const char* const g_pszIniGameSetup;
/// Reads a key as a decimal integer (SafeAtoi); nDefault when it is missing.
int MyGetPrivateProfileInt(const char* szSection, const char* szKey, int nDefault, const char* szFile);
