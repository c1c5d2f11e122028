// Reading 32-bit integers from outside text whole: a number that leaves 32 bits is no number (sscanf's "%d"
// would give it no defined value).
#pragma once

#include <span>
#include <string_view>

namespace txt {

/// Reads out.size() integers from the start of text, each after optional blanks and an optional '+', the
/// second and later ones after cSeparator (a blank separator needs nothing but the blanks). False when one
/// is missing, malformed or outside 32 bits; what follows the last number is not looked at.
bool ReadWholeInts(std::string_view text, std::span<int> out, char cSeparator);

} // namespace txt
