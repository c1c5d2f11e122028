// Strict readers for the numbers, dates and sizes of scenario steps.
#include "StepValues.h"

#include <charconv>
#include <cstdint>

namespace {

std::string Quoted(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

// Exactly nDigits decimal digits.
std::optional<int> FixedDigits(std::string_view text, std::size_t nDigits) {
    if (text.size() != nDigits) return std::nullopt;
    int nValue = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        nValue = nValue * 10 + (c - '0');
    }
    return nValue;
}

bool IsLeapYear(int nYear) {
    return (nYear % 4 == 0 && nYear % 100 != 0) || nYear % 400 == 0;
}

int DaysInMonth(int nYear, int nMonth) {
    static constexpr int DAYS[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return nMonth == 2 && IsLeapYear(nYear) ? 29 : DAYS[nMonth - 1];
}

} // namespace

std::optional<long long> ParseStepNumber(std::string_view text, long long nMin, long long nMax,
                                         std::string& strReason) {
    std::string_view digits = text;
    const bool bNegative = !digits.empty() && digits.front() == '-';
    if (!digits.empty() && (digits.front() == '-' || digits.front() == '+')) digits.remove_prefix(1);
    int nBase = 10;
    if (digits.size() > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X')) {
        digits.remove_prefix(2);
        nBase = 16;
    }
    // from_chars takes no sign of its own here, so that "--1" and "-+1" are refused.
    std::uint64_t nMagnitude = 0;
    const auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), nMagnitude, nBase);
    if (digits.empty() || digits.front() == '-' || digits.front() == '+' ||
        ec == std::errc::invalid_argument || end != digits.data() + digits.size()) {
        strReason = Quoted(text) + " is not a number";
        return std::nullopt;
    }
    constexpr std::uint64_t LARGEST = static_cast<std::uint64_t>(INT64_MAX);
    const bool bFits = ec != std::errc::result_out_of_range && nMagnitude <= LARGEST;
    const long long nValue =
        bFits ? (bNegative ? -static_cast<long long>(nMagnitude) : static_cast<long long>(nMagnitude)) : 0;
    if (!bFits || nValue < nMin || nValue > nMax) {
        strReason =
            Quoted(text) + " is out of range (" + std::to_string(nMin) + " to " + std::to_string(nMax) + ")";
        return std::nullopt;
    }
    return nValue;
}

std::optional<bool> ParseStepTruth(std::string_view text, std::string& strReason) {
    if (text == "1" || text == "true") return true;
    if (text == "0" || text == "false") return false;
    strReason = Quoted(text) + " is not a truth value (1, 0, true or false)";
    return std::nullopt;
}

std::optional<SLocalTime> ParseStepTime(std::string_view date, std::string_view clock,
                                        std::string& strReason) {
    const auto year = date.size() == 10 && date[4] == '-' && date[7] == '-'
                          ? FixedDigits(date.substr(0, 4), 4)
                          : std::nullopt;
    const auto month = year ? FixedDigits(date.substr(5, 2), 2) : std::nullopt;
    const auto day = month ? FixedDigits(date.substr(8, 2), 2) : std::nullopt;
    if (!day) {
        strReason = Quoted(date) + " is not a date YYYY-MM-DD";
        return std::nullopt;
    }
    if (*month < 1 || *month > 12 || *day < 1 || *day > DaysInMonth(*year, *month)) {
        strReason = Quoted(date) + " is no day of the calendar";
        return std::nullopt;
    }
    const auto hour =
        clock.size() == 5 && clock[2] == ':' ? FixedDigits(clock.substr(0, 2), 2) : std::nullopt;
    const auto minute = hour ? FixedDigits(clock.substr(3, 2), 2) : std::nullopt;
    if (!minute) {
        strReason = Quoted(clock) + " is not a time HH:MM";
        return std::nullopt;
    }
    if (*hour > 23 || *minute > 59) {
        strReason = Quoted(clock) + " is no time of the day (00:00 to 23:59)";
        return std::nullopt;
    }
    return SLocalTime{*year, *month, *day, *hour, *minute, 0};
}

std::optional<SIZE> ParseStepScreenSize(std::string_view text, std::string& strReason) {
    const std::size_t x = text.find('x');
    std::string ignored;
    const auto width = x == std::string_view::npos
                           ? std::nullopt
                           : ParseStepNumber(text.substr(0, x), 1, MAX_SCREEN_SIDE, ignored);
    const auto height =
        width ? ParseStepNumber(text.substr(x + 1), 1, MAX_SCREEN_SIDE, ignored) : std::nullopt;
    if (!height) {
        strReason =
            Quoted(text) + " is not a size WxH with sides from 1 to " + std::to_string(MAX_SCREEN_SIDE);
        return std::nullopt;
    }
    return SIZE{static_cast<LONG>(*width), static_cast<LONG>(*height)};
}
