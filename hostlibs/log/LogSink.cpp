// The one sink every log line and every host-library record goes to, and the journal counts of those records.
#include <map>
#include <mutex>
#include <string>

#include "hostlibs/HostEnv.h"

namespace host {
namespace {
struct SinkState {
    std::mutex mutex; // log lines may come from the worker threads
    LogSink sink;
    std::map<std::string, int, std::less<>> counts;
};
SinkState& State() {
    static SinkState state;
    return state;
}
} // namespace

LogSink SetLogSink(LogSink sink) {
    std::lock_guard lock(State().mutex);
    std::swap(State().sink, sink);
    return sink;
}

void Emit(LogRecord record) {
    LogSink sink;
    {
        std::lock_guard lock(State().mutex);
        sink = State().sink;
    }
    if (sink) sink(record);
}

void Count(std::string_view what) {
    std::lock_guard lock(State().mutex);
    const auto it = State().counts.find(what);
    if (it == State().counts.end())
        State().counts.emplace(std::string(what), 1);
    else
        ++it->second;
}

void Journal(std::string_view what, std::initializer_list<std::pair<std::string_view, std::string>> keys) {
    Count(what);
    LogRecord record{"HOST", std::string(what), {}, {}, 0};
    for (const auto& [k, v] : keys) record.keys.emplace_back(std::string(k), v);
    Emit(std::move(record));
}

int JournalCount(std::string_view what) {
    std::lock_guard lock(State().mutex);
    const auto it = State().counts.find(what);
    return it == State().counts.end() ? 0 : it->second;
}

void ResetJournalCounts() {
    std::lock_guard lock(State().mutex);
    State().counts.clear();
}
} // namespace host
