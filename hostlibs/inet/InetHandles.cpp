// WinINet's session and address handles over libcurl: the handle table, sessions, and the operations the
// system calls (InternetOpenA, InternetOpenUrlA, InternetReadFile, InternetCloseHandle).
//
// Handles are numbers that are never reused, so a handle closed twice, or closed by one thread while another
// still uses it, is recognised instead of reaching freed memory; the objects behind them are shared with the
// call that is using them and end when the last user lets go.
#include <curl/curl.h>

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "InetRequest.h"
#include "WinInet.h"
#include "hostlibs/HostEnv.h"

namespace {
struct Session {
    std::string agent;
    std::mutex mutex;
    bool bClosed = false;
    std::vector<std::weak_ptr<inet::CInetRequest>> requests;
};

using Object = std::variant<std::shared_ptr<Session>, std::shared_ptr<inet::CInetRequest>>;

struct HandleTable {
    std::mutex mutex;
    std::uintptr_t nNext = 0x1000;
    std::map<std::uintptr_t, Object> objects;
};
HandleTable& Table() {
    static auto* table = new HandleTable; // never destroyed: workers may close handles during the exit
    return *table;
}

HINTERNET Add(Object object) {
    std::lock_guard lock(Table().mutex);
    const std::uintptr_t nHandle = Table().nNext++;
    Table().objects.emplace(nHandle, std::move(object));
    return reinterpret_cast<HINTERNET>(nHandle);
}

template <class T> std::shared_ptr<T> Find(HINTERNET hHandle) {
    std::lock_guard lock(Table().mutex);
    const auto it = Table().objects.find(reinterpret_cast<std::uintptr_t>(hHandle));
    if (it == Table().objects.end()) return nullptr;
    const auto* pObject = std::get_if<std::shared_ptr<T>>(&it->second);
    return pObject ? *pObject : nullptr;
}

std::optional<Object> Remove(HINTERNET hHandle) {
    std::lock_guard lock(Table().mutex);
    const auto it = Table().objects.find(reinterpret_cast<std::uintptr_t>(hHandle));
    if (it == Table().objects.end()) return std::nullopt;
    Object object = std::move(it->second);
    Table().objects.erase(it);
    return object;
}

void InitCurlOnce() {
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

// Registers the request with its session; false when the session was closed meanwhile.
bool Attach(Session& session, const std::shared_ptr<inet::CInetRequest>& request) {
    std::lock_guard lock(session.mutex);
    if (session.bClosed) return false;
    std::erase_if(session.requests, [](const auto& weak) { return weak.expired(); });
    session.requests.push_back(request);
    return true;
}

void CloseSession(Session& session) {
    std::vector<std::weak_ptr<inet::CInetRequest>> requests;
    {
        std::lock_guard lock(session.mutex);
        session.bClosed = true;
        requests.swap(session.requests);
    }
    for (const auto& weak : requests)
        if (const auto request = weak.lock()) request->Abort();
}
} // namespace

HINTERNET InternetOpenA(const char* szAgent, DWORD, const char*, const char*, DWORD) {
    InitCurlOnce();
    auto session = std::make_shared<Session>();
    session->agent = szAgent ? szAgent : "";
    return Add(std::move(session));
}

HINTERNET InternetOpenUrlA(HINTERNET hSession, const char* szUrl, const char*, DWORD, DWORD, std::uintptr_t) {
    const auto session = Find<Session>(hSession);
    if (!session || !szUrl || !*szUrl) return nullptr;
    auto request = std::make_shared<inet::CInetRequest>(session->agent, szUrl);
    if (!Attach(*session, request)) return nullptr;
    const bool bOpened = request->Open();
    host::Journal("inet.open", {{"url", szUrl}, {"status", std::to_string(request->GetStatus())}});
    if (!bOpened) return nullptr;
    return Add(std::move(request));
}

BOOL InternetReadFile(HINTERNET hFile, void* pBuffer, DWORD nToRead, DWORD* pRead) {
    if (pRead) *pRead = 0;
    const auto request = Find<inet::CInetRequest>(hFile);
    if (!request) return FALSE;
    return request->Read(pBuffer, nToRead, pRead) ? TRUE : FALSE;
}

BOOL InternetCloseHandle(HINTERNET hInternet) {
    std::optional<Object> object = Remove(hInternet);
    if (!object) return FALSE;
    if (auto* pSession = std::get_if<std::shared_ptr<Session>>(&*object)) CloseSession(**pSession);
    if (auto* pRequest = std::get_if<std::shared_ptr<inet::CInetRequest>>(&*object)) (*pRequest)->Abort();
    return TRUE;
}
