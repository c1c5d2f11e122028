// Structured log lines of the system: every line carries the server time and the empty callback key.
#pragma once

#include <string_view>

void SysLogInfo(const char* szFile, int nLine, std::string_view msg, std::string_view key = {},
                std::string_view value = {});
void SysLogWarn(const char* szFile, int nLine, std::string_view msg, std::string_view key = {},
                std::string_view value = {});
void SysLogError(const char* szFile, int nLine, std::string_view msg, std::string_view key = {},
                 std::string_view value = {});
