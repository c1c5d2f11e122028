// Thread creation of the base library, with Win32-style handles that the host resumes, waits on and closes.
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "BaseLib.h"
#include "HandleObject.h"

namespace {
// The start gate of a thread created suspended; shared with the thread, which may outlive its handle.
struct StartGate {
    std::mutex mutex;
    std::condition_variable cv;
    bool open = false;

    void Open() {
        {
            std::lock_guard lock(mutex);
            open = true;
        }
        cv.notify_all();
    }
    void Wait() {
        std::unique_lock lock(mutex);
        cv.wait(lock, [this] { return open; });
    }
};

class ThreadHandle final : public host::detail::CHandleObject {
public:
    std::thread thread;
    std::shared_ptr<std::atomic<bool>> done = std::make_shared<std::atomic<bool>>(false);
    std::shared_ptr<StartGate> gate = std::make_shared<StartGate>();
    int nPriority = THREAD_PRIORITY_NORMAL;
    bool bSuspended = false;

    ~ThreadHandle() override {
        // NOTE: a thread still suspended when its handle closes would wait for ever: it is let go first.
        if (bSuspended) gate->Open();
        if (!thread.joinable()) return;
        if (done->load())
            thread.join();
        else
            thread.detach();
    }
};

ThreadHandle* AsThread(HANDLE hHandle) {
    return dynamic_cast<ThreadHandle*>(static_cast<host::detail::CHandleObject*>(hHandle));
}
} // namespace

HANDLE CHandleHelper::CreateThreadProxy(void* /*pSecurity*/, std::size_t /*nStackSize*/,
                                        LPTHREAD_START_ROUTINE pfn, void* pParam, DWORD dwFlags,
                                        DWORD* pThreadId) {
    if (!pfn) return nullptr;
    auto handle = std::make_unique<ThreadHandle>();
    handle->bSuspended = (dwFlags & CREATE_SUSPENDED) != 0;
    if (!handle->bSuspended) handle->gate->open = true;
    try {
        handle->thread = std::thread([pfn, pParam, done = handle->done, gate = handle->gate] {
            gate->Wait();
            pfn(pParam);
            done->store(true);
        });
    } catch (...) {
        return nullptr;
    }
    if (pThreadId) *pThreadId = 0;
    return static_cast<host::detail::CHandleObject*>(handle.release());
}

DWORD ResumeThread(HANDLE hThread) {
    ThreadHandle* h = AsThread(hThread);
    if (!h) return 0xFFFFFFFFu;
    if (!h->bSuspended) return 0;
    h->bSuspended = false;
    h->gate->Open();
    return 1;
}

BOOL SetThreadPriority(HANDLE hThread, int nPriority) {
    ThreadHandle* h = AsThread(hThread);
    if (!h) return FALSE;
    h->nPriority = nPriority;
    return TRUE;
}

DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds) {
    ThreadHandle* h = AsThread(hHandle);
    if (!h) return WAIT_OBJECT_0;
    if (dwMilliseconds != INFINITE && !h->done->load()) return WAIT_TIMEOUT;
    if (h->thread.joinable()) h->thread.join();
    return WAIT_OBJECT_0;
}

BOOL CloseHandle(HANDLE hHandle) {
    if (!hHandle || hHandle == reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(-1))) return FALSE;
    delete static_cast<host::detail::CHandleObject*>(hHandle);
    return TRUE;
}
