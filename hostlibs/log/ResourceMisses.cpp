// The note of resources the system asked for and did not get (off unless a checker turns it on).
#include <atomic>
#include <mutex>

#include "hostlibs/HostMisses.h"

namespace host {
namespace {
struct SMissState {
    std::atomic<bool> bOn{false}; // read on every lookup that fails, without the lock
    std::mutex mutex;             // misses may come from worker threads
    std::vector<ResourceMiss> misses;
};
SMissState& State() {
    static SMissState state;
    return state;
}
} // namespace

void NoteMisses(bool bOn) {
    std::lock_guard lock(State().mutex);
    State().misses.clear();
    State().bOn = bOn;
}

void NoteMiss(std::string_view kind, std::string_view name, std::string_view where) {
    if (!State().bOn) return;
    std::lock_guard lock(State().mutex);
    State().misses.push_back(ResourceMiss{std::string(kind), std::string(name), std::string(where)});
}

std::vector<ResourceMiss> TakeMisses() {
    std::lock_guard lock(State().mutex);
    std::vector<ResourceMiss> taken;
    taken.swap(State().misses);
    return taken;
}

} // namespace host
