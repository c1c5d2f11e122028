// Downloads one address into "data/softkey.jpg" on a worker thread of its own and tells the requesting window
// the outcome with a posted message.
#include "resources/HttpImgDown.h"

#include <algorithm>
#include <cstring>
#include <mutex>
#include <optional>

#include "common/SysLog.h"
#include "resources/WinInetTransport.h"

// The target window and the sessions of the running workers, under one lock: the host's thread changes the
// target and, at the downloader's end, cancels; the workers post and register their sessions.
struct CHttpImgDown::SShared {
    explicit SShared(IImgDownTransport& rTransport) : transport(rTransport) {}

    IImgDownTransport& transport;
    std::mutex mutex;
    LuGui::CLuBaseWindow* pTarget = nullptr;
    bool bCancelled = false;
    std::vector<HINTERNET> sessions;

    /// Posts the outcome to the target; nothing without one or after the downloader's end.
    void Notify(bool bSuccess) {
        std::lock_guard lock(mutex);
        if (pTarget && !bCancelled) pTarget->PostMessageA(WM_IMG_DOWNLOADED, bSuccess ? 1 : 0, 0);
    }
    /// False when the downloader has ended: the worker must stop.
    bool AddSession(HINTERNET hSession) {
        std::lock_guard lock(mutex);
        if (bCancelled) return false;
        sessions.push_back(hSession);
        return true;
    }
    void RemoveSession(HINTERNET hSession) {
        std::lock_guard lock(mutex);
        std::erase(sessions, hSession);
    }
    /// Host's thread, at the downloader's end: no more posts, and every worker's wait ends.
    void Cancel() {
        std::lock_guard lock(mutex);
        bCancelled = true;
        pTarget = nullptr;
        // NOTE: closing a session from another thread is how WinINet ends a call blocked on it; the worker
        // then finds its reads failing and ends.
        for (HINTERNET hSession : sessions) transport.InternetCloseHandle(hSession);
        sessions.clear();
    }
};

namespace {
// One worker's request: the address as it was when it started.
struct SDownloadJob {
    std::shared_ptr<CHttpImgDown::SShared> shared;
    std::optional<std::string> url;
};

// The worker's steps; each failure closes what is open, posts the failure and ends with 0.
DWORD Download(const SDownloadJob& job) {
    CHttpImgDown::SShared& shared = *job.shared;
    IImgDownTransport& transport = shared.transport;
    HINTERNET hSession =
        transport.InternetOpenA(CHttpImgDown::AGENT, INTERNET_OPEN_TYPE_PRECONFIG, nullptr, nullptr, 0);
    if (!hSession) {
        shared.Notify(false);
        return 0;
    }
    if (!shared.AddSession(hSession)) {
        transport.InternetCloseHandle(hSession);
        return 0;
    }
    const auto closeSession = [&] {
        shared.RemoveSession(hSession);
        transport.InternetCloseHandle(hSession);
    };
    HINTERNET hUrl = transport.InternetOpenUrlA(hSession, job.url ? job.url->c_str() : nullptr, nullptr, 0,
                                                INTERNET_FLAG_RELOAD, 0);
    if (!hUrl) {
        closeSession();
        shared.Notify(false);
        return 0;
    }
    HANDLE hFile = transport.CreateFileA(CHttpImgDown::FILE_NAME, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                         FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE || !hFile) {
        transport.InternetCloseHandle(hUrl);
        closeSession();
        shared.Notify(false);
        return 0;
    }
    char buffer[CHttpImgDown::READ_SIZE];
    for (;;) {
        std::memset(buffer, 0, sizeof buffer);
        DWORD nRead = 0;
        // NOTE: a failed read ends the loop like the end of the data; what arrived is kept.
        transport.InternetReadFile(hUrl, buffer, sizeof buffer, &nRead);
        if (nRead == 0) break;
        DWORD nWritten = 0;
        transport.WriteFile(hFile, buffer, std::min<DWORD>(nRead, sizeof buffer), &nWritten, nullptr);
        if (nWritten == 0) {
            transport.CloseHandle(hFile);
            transport.InternetCloseHandle(hUrl);
            closeSession();
            shared.Notify(false);
            return 0;
        }
    }
    transport.CloseHandle(hFile);
    transport.InternetCloseHandle(hUrl);
    closeSession();
    shared.Notify(true);
    return 1;
}

DWORD WINAPI ThreadDownImg(void* pParam) {
    if (!pParam) return 0;
    const std::unique_ptr<SDownloadJob> job(static_cast<SDownloadJob*>(pParam));
    // NOTE: machine faults cannot be caught portably here; the Windows build wraps this in a structured
    // handler that ends the worker with 0 and posts nothing.
    try {
        return Download(*job);
    } catch (...) {
        SysLogError(__FILE__, __LINE__, "Try Catch(...) ThreadDownImg");
        return 0;
    }
}
} // namespace

CHttpImgDown::CHttpImgDown() : CHttpImgDown(CWinInetTransport::Instance()) {
}

CHttpImgDown::CHttpImgDown(IImgDownTransport& transport) : m_pShared(std::make_shared<SShared>(transport)) {
}

CHttpImgDown::~CHttpImgDown() {
    m_pShared->Cancel();
    WaitForWorkers();
}

void CHttpImgDown::SetNotifyWnd(LuGui::CLuBaseWindow* pWnd) {
    std::lock_guard lock(m_pShared->mutex);
    m_pShared->pTarget = pWnd;
}

void CHttpImgDown::Start(LuGui::CLuBaseWindow* pWnd, const char* szUrl) {
    SetNotifyWnd(pWnd);
    if (szUrl) m_strUrl = szUrl;
    ReapEndedWorkers();
    auto job = std::make_unique<SDownloadJob>(
        SDownloadJob{m_pShared, GetUrl() ? std::optional<std::string>(m_strUrl) : std::nullopt});
    HANDLE hThread =
        CHandleHelper::CreateThreadProxy(nullptr, 0, &ThreadDownImg, job.get(), CREATE_SUSPENDED, nullptr);
    if (!hThread) {
        // NOTE: the target still learns the end (docs/DECISIONS.md).
        m_pShared->Notify(false);
        return;
    }
    job.release(); // the worker owns it now
    SetThreadPriority(hThread, THREAD_PRIORITY_ABOVE_NORMAL);
    ResumeThread(hThread);
    m_vecWorkers.push_back(hThread);
}

void CHttpImgDown::WaitForWorkers() {
    for (HANDLE hThread : m_vecWorkers) {
        WaitForSingleObject(hThread, INFINITE);
        CloseHandle(hThread);
    }
    m_vecWorkers.clear();
}

void CHttpImgDown::ReapEndedWorkers() {
    std::erase_if(m_vecWorkers, [](HANDLE hThread) {
        if (WaitForSingleObject(hThread, 0) != WAIT_OBJECT_0) return false;
        CloseHandle(hThread);
        return true;
    });
}
