// Thread creation of the base library, with Win32-style handles that the host waits on and closes.
#include <atomic>
#include <memory>
#include <thread>

#include "BaseLib.h"

namespace {
struct ThreadHandle {
    std::thread thread;
    std::shared_ptr<std::atomic<bool>> done = std::make_shared<std::atomic<bool>>(false);
};
} // namespace

HANDLE CHandleHelper::CreateThreadProxy(void* /*pSecurity*/, std::size_t /*nStackSize*/,
                                        LPTHREAD_START_ROUTINE pfn, void* pParam, DWORD /*dwFlags*/,
                                        DWORD* pThreadId) {
    if (!pfn) return nullptr;
    auto handle = std::make_unique<ThreadHandle>();
    auto done = handle->done;
    try {
        handle->thread = std::thread([pfn, pParam, done] {
            pfn(pParam);
            done->store(true);
        });
    } catch (...) {
        return nullptr;
    }
    if (pThreadId) *pThreadId = 0;
    return handle.release();
}

DWORD WaitForSingleObject(HANDLE hHandle, DWORD dwMilliseconds) {
    auto* h = static_cast<ThreadHandle*>(hHandle);
    if (!h) return WAIT_OBJECT_0;
    if (dwMilliseconds != INFINITE && !h->done->load()) return WAIT_TIMEOUT;
    if (h->thread.joinable()) h->thread.join();
    return WAIT_OBJECT_0;
}

BOOL CloseHandle(HANDLE hHandle) {
    auto* h = static_cast<ThreadHandle*>(hHandle);
    if (!h) return FALSE;
    if (h->thread.joinable()) {
        if (h->done->load())
            h->thread.join();
        else
            h->thread.detach();
    }
    delete h;
    return TRUE;
}
