// The logging library's structured lines and the plain log operations of the graphics and base libraries.
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "Log.h"
#include "hostlibs/HostEnv.h"

namespace {
void EmitStructured(const char* level, const char* szFile, int nLine, std::string_view msg,
                    std::initializer_list<_log::KV> kvs) {
    host::LogRecord record{level, std::string(msg), {}, _log::CutFileName(szFile), nLine};
    for (const auto& [k, v] : kvs) record.keys.emplace_back(std::string(k), std::string(v));
    host::Emit(std::move(record));
}

void EmitPlain(const char* level, const char* szFormat, va_list args) {
    char buf[2048];
    std::vsnprintf(buf, sizeof buf, szFormat ? szFormat : "", args);
    host::Emit(host::LogRecord{level, buf, {}, {}, 0});
}
} // namespace

namespace _log {
void Info(const char* szFile, int nLine, std::string_view msg, std::initializer_list<KV> kvs) {
    EmitStructured("INFO", szFile, nLine, msg, kvs);
}
void Warn(const char* szFile, int nLine, std::string_view msg, std::initializer_list<KV> kvs) {
    EmitStructured("WARN", szFile, nLine, msg, kvs);
}
void Error(const char* szFile, int nLine, std::string_view msg, std::initializer_list<KV> kvs) {
    EmitStructured("ERROR", szFile, nLine, msg, kvs);
}
const char* CutFileName(const char* szPath) {
    if (!szPath) return "";
    const char* name = szPath;
    for (const char* p = szPath; *p; ++p)
        if (*p == '/' || *p == '\\') name = p + 1;
    return name;
}
} // namespace _log

void LogMsg(const char* szFormat, ...) {
    va_list args;
    va_start(args, szFormat);
    EmitPlain("MSG", szFormat, args);
    va_end(args);
}

void DebugMsg(const char* szFormat, ...) {
    va_list args;
    va_start(args, szFormat);
    EmitPlain("DEBUG", szFormat, args);
    va_end(args);
}

void LogLocalErrMsg(const char* szFormat, ...) {
    va_list args;
    va_start(args, szFormat);
    EmitPlain("LOCALERR", szFormat, args);
    va_end(args);
}

void LogMsgError(const char* szFaultRecord) {
    host::Emit(host::LogRecord{"FAULT", szFaultRecord ? szFaultRecord : "", {}, {}, 0});
}
