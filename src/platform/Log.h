// The logging library (structured lines) and the plain log operations of the graphics and base libraries.
#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "BaseLib.h"

namespace _log {
/// One key-value pair of a structured line.
using KV = std::pair<std::string_view, std::string_view>;

HOSTLIB_API void Info(const char* szFile, int nLine, std::string_view msg,
                      std::initializer_list<KV> kvs = {});
HOSTLIB_API void Warn(const char* szFile, int nLine, std::string_view msg,
                      std::initializer_list<KV> kvs = {});
HOSTLIB_API void Error(const char* szFile, int nLine, std::string_view msg,
                       std::initializer_list<KV> kvs = {});
/// The file name part of a source path (after the last slash or backslash).
HOSTLIB_API const char* CutFileName(const char* szPath);
} // namespace _log

/// The graphics library's log line (assertions, notices).
HOSTLIB_API void LogMsg(const char* szFormat, ...) __attribute__((format(printf, 1, 2)));
/// The graphics library's debug line.
HOSTLIB_API void DebugMsg(const char* szFormat, ...) __attribute__((format(printf, 1, 2)));
/// The base library's local error line (missing layout numbers and the like).
HOSTLIB_API void LogLocalErrMsg(const char* szFormat, ...) __attribute__((format(printf, 1, 2)));
/// The base library's report of a machine fault caught in a guarded region.
HOSTLIB_API void LogMsgError(const char* szFaultRecord);
