// The scenario step "call OP [ARG ...]": any interface operation by its name, with its result as text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "flashsim/IFlashSimulator.h"

struct CallOutcome {
    bool bKnown = true;                ///< false when no operation has that name
    std::string error;                 ///< a wrong argument count or value
    std::optional<std::string> result; ///< the result as text, when the operation returns one
};

/// Runs the named operation with scenario arguments (numbers in decimal or as 0x and hexadecimal digits, in
/// the range of the parameter; truth values as 1/0 or true/false); an argument that does not fit is an error.
CallOutcome CallInterface(IFlashSimulator& sim, const std::string& op, const std::vector<std::string>& args);
