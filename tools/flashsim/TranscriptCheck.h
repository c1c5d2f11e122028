// Compares a scenario's transcript with its expected transcript, letting log lines it did not ask for pass.
#pragma once

#include <string>
#include <string_view>

#include "Transcript.h"

/// True when the actual transcript is the expected one, apart from "log on" lines that the expected one
/// leaves out; otherwise strReport describes the first difference. Every expected line must appear in order,
/// and event lines and "log strict" lines may be neither missing nor extra nor different.
bool MatchesExpectedTranscript(std::string_view expected, const Transcript& actual, std::string& strReport);
