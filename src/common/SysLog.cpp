// Adds the keys every structured line of the system carries ("svr_time", "__cb__") before handing it to the
// log.
#include "common/SysLog.h"

#include <string>

#include "platform/Log.h"

namespace {
using LogFn = void (*)(const char*, int, std::string_view, std::initializer_list<_log::KV>);

void Write(LogFn fn, const char* szFile, int nLine, std::string_view msg, std::string_view key,
           std::string_view value) {
    const std::string time = FormatSvrTime();
    const char* file = _log::CutFileName(szFile);
    if (key.empty())
        fn(file, nLine, msg, {{"svr_time", time}, {"__cb__", ""}});
    else
        fn(file, nLine, msg, {{"svr_time", time}, {"__cb__", ""}, {key, value}});
}
} // namespace

void SysLogInfo(const char* szFile, int nLine, std::string_view msg, std::string_view key,
                std::string_view value) {
    Write(&_log::Info, szFile, nLine, msg, key, value);
}
void SysLogWarn(const char* szFile, int nLine, std::string_view msg, std::string_view key,
                std::string_view value) {
    Write(&_log::Warn, szFile, nLine, msg, key, value);
}
void SysLogError(const char* szFile, int nLine, std::string_view msg, std::string_view key,
                 std::string_view value) {
    Write(&_log::Error, szFile, nLine, msg, key, value);
}
