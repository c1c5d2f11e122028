// The queue of messages posted to windows from any thread, delivered by the dialog manager on the host's
// thread.
//
// NOTE: one process-wide queue rather than one per manager: the host releases the manager before it destroys
// the dialogs, and a window's destructor must still be able to drop what was posted to it.
#include "PostedMessages.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>

#include "hostlibs/HostGui.h"

namespace LuGui {
namespace {
struct Queue {
    std::mutex mutex;
    std::condition_variable cv;
    std::deque<CPostedMessages::SPosted> messages;
};
Queue& TheQueue() {
    static auto* queue = new Queue; // never destroyed: windows of static objects may end after it
    return *queue;
}
} // namespace

void CPostedMessages::Post(const SPosted& msg) {
    {
        std::lock_guard lock(TheQueue().mutex);
        TheQueue().messages.push_back(msg);
    }
    TheQueue().cv.notify_all();
}

std::size_t CPostedMessages::Count() {
    std::lock_guard lock(TheQueue().mutex);
    return TheQueue().messages.size();
}

bool CPostedMessages::TakeOneFor(const ILuGuiMgr* pMgr, SPosted& out) {
    std::lock_guard lock(TheQueue().mutex);
    auto& messages = TheQueue().messages;
    const auto it = std::find_if(messages.begin(), messages.end(),
                                 [&](const SPosted& msg) { return msg.pWnd->GetGuiMgr() == pMgr; });
    if (it == messages.end()) return false;
    out = *it;
    messages.erase(it);
    return true;
}

void CPostedMessages::Drop(const CLuBaseWindow* pWnd) {
    std::lock_guard lock(TheQueue().mutex);
    std::erase_if(TheQueue().messages, [&](const SPosted& msg) { return msg.pWnd == pWnd; });
}

bool CPostedMessages::Wait(DWORD dwMilliseconds) {
    std::unique_lock lock(TheQueue().mutex);
    return TheQueue().cv.wait_for(lock, std::chrono::milliseconds(dwMilliseconds),
                                  [] { return !TheQueue().messages.empty(); });
}

BOOL CLuBaseWindow::PostMessageA(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    CPostedMessages::Post(CPostedMessages::SPosted{this, uMsg, wParam, lParam});
    return TRUE;
}

} // namespace LuGui

namespace host {
bool WaitForPostedMessage(DWORD dwMilliseconds) {
    return LuGui::CPostedMessages::Wait(dwMilliseconds);
}
} // namespace host
