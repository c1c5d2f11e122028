// The logging library (structured lines) and the plain log operations of the graphics and base libraries.
#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "BaseLib.h"

namespace _log {
/// One key-value pair of a structured line.
using KV = std::pair<std::string_view, std::string_view>;

void Info(const char* szFile, int nLine, std::string_view msg, std::initializer_list<KV> kvs = {});
void Warn(const char* szFile, int nLine, std::string_view msg, std::initializer_list<KV> kvs = {});
void Error(const char* szFile, int nLine, std::string_view msg, std::initializer_list<KV> kvs = {});
/// The file name part of a source path (after the last slash or backslash).
const char* CutFileName(const char* szPath);
} // namespace _log

/// The graphics library's log line (assertions, notices).
void LogMsg(const char* szFormat, ...) __attribute__((format(printf, 1, 2)));
/// The graphics library's debug line.
void DebugMsg(const char* szFormat, ...) __attribute__((format(printf, 1, 2)));
/// The base library's local error line (missing layout numbers and the like).
void LogLocalErrMsg(const char* szFormat, ...) __attribute__((format(printf, 1, 2)));
/// The base library's report of a machine fault caught in a guarded region.
void LogMsgError(const char* szFaultRecord);
