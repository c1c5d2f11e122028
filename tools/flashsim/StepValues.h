// Strict readers for the numbers, dates and sizes of scenario steps: a value is whole and in range, or an
// error.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "BaseLib.h"

/// A decimal integer with an optional sign, or "0x" and hexadecimal digits, nothing else around it, in
/// [nMin, nMax]; on failure the reason names the value ("\"abc\" is not a number").
std::optional<long long> ParseStepNumber(std::string_view text, long long nMin, long long nMax,
                                         std::string& strReason);
/// "1" or "true", "0" or "false".
std::optional<bool> ParseStepTruth(std::string_view text, std::string& strReason);
/// "YYYY-MM-DD" and "HH:MM" with real calendar values (the day exists in that month, hours 0-23, minutes
/// 0-59); seconds are 0.
std::optional<SLocalTime> ParseStepTime(std::string_view date, std::string_view clock,
                                        std::string& strReason);
/// "WxH" with both sides from 1 to MAX_SCREEN_SIDE.
std::optional<SIZE> ParseStepScreenSize(std::string_view text, std::string& strReason);

inline constexpr long long MAX_SCREEN_SIDE = 16384;
