// Captures every log line of a test; a warning, error or fault the test did not declare fails it.
#pragma once

#include <string>
#include <vector>

#include "hostlibs/HostEnv.h"

namespace testlog {
/// Lines logged since the current test started.
const std::vector<host::LogRecord>& Records();
/// Declares that the test expects a line of this level whose message starts with the text.
void Expect(const std::string& level, const std::string& messagePrefix);
/// Lines of a level (all levels when empty) whose message starts with the text.
int Count(const std::string& level, const std::string& messagePrefix);
/// The value of a key in a record; empty when absent.
std::string Key(const host::LogRecord& record, const std::string& key);
} // namespace testlog
