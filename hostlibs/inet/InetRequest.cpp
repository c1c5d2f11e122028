// One HTTP GET behind a WinINet address handle: sent through libcurl, its body read on demand by the caller.
//
// libcurl pushes data through callbacks; WinINet callers pull it. The multi interface bridges the two: the
// caller's thread lets libcurl work only while it waits for something (the head, or body bytes), so a slow
// reader leaves the rest of the body in the socket, and an abort from another thread wakes the wait.
#include "InetRequest.h"

#include <strings.h>

#include <algorithm>
#include <cstring>

namespace inet {
namespace {
constexpr long CONNECT_TIMEOUT_MS = 30000;
// A transfer that moves less than one byte a second for this long has stalled (WinINet's receive timeout).
constexpr long STALL_SECONDS = 30;
constexpr long MAX_REDIRECTS = 10;
constexpr int POLL_MS = 1000;
constexpr std::size_t COMPACT_AFTER = 64 * 1024;

bool StartsWithNoCase(const char* pData, std::size_t nLength, const char* szPrefix) {
    const std::size_t nPrefix = std::strlen(szPrefix);
    return nLength >= nPrefix && ::strncasecmp(pData, szPrefix, nPrefix) == 0;
}
} // namespace

CInetRequest::CInetRequest(const std::string& agent, const std::string& url)
    : m_pMulti(curl_multi_init()), m_pEasy(curl_easy_init()) {
    if (!m_pMulti || !m_pEasy) return;
    curl_easy_setopt(m_pEasy, CURLOPT_URL, url.c_str());
    curl_easy_setopt(m_pEasy, CURLOPT_USERAGENT, agent.c_str());
    curl_easy_setopt(m_pEasy, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(m_pEasy, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(m_pEasy, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(m_pEasy, CURLOPT_MAXREDIRS, MAX_REDIRECTS);
    curl_easy_setopt(m_pEasy, CURLOPT_CONNECTTIMEOUT_MS, CONNECT_TIMEOUT_MS);
    curl_easy_setopt(m_pEasy, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(m_pEasy, CURLOPT_LOW_SPEED_TIME, STALL_SECONDS);
    curl_easy_setopt(m_pEasy, CURLOPT_NOSIGNAL, 1L);
    // Always from the server: no cache on the way may answer.
    m_pHeaders = curl_slist_append(m_pHeaders, "Cache-Control: no-cache");
    m_pHeaders = curl_slist_append(m_pHeaders, "Pragma: no-cache");
    curl_easy_setopt(m_pEasy, CURLOPT_HTTPHEADER, m_pHeaders);
    curl_easy_setopt(m_pEasy, CURLOPT_HEADERFUNCTION, &CInetRequest::OnHeader);
    curl_easy_setopt(m_pEasy, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(m_pEasy, CURLOPT_WRITEFUNCTION, &CInetRequest::OnBody);
    curl_easy_setopt(m_pEasy, CURLOPT_WRITEDATA, this);
    curl_multi_add_handle(m_pMulti, m_pEasy);
}

CInetRequest::~CInetRequest() {
    if (m_pMulti && m_pEasy) curl_multi_remove_handle(m_pMulti, m_pEasy);
    if (m_pEasy) curl_easy_cleanup(m_pEasy);
    if (m_pMulti) curl_multi_cleanup(m_pMulti);
    curl_slist_free_all(m_pHeaders);
}

std::size_t CInetRequest::OnHeader(char* pData, std::size_t nSize, std::size_t nCount, void* pSelf) {
    auto* self = static_cast<CInetRequest*>(pSelf);
    const std::size_t nLength = nSize * nCount;
    if (StartsWithNoCase(pData, nLength, "HTTP/")) {
        self->m_bLocationSeen = false; // a new response (after a redirect or a 100 Continue)
    } else if (StartsWithNoCase(pData, nLength, "Location:")) {
        self->m_bLocationSeen = true;
    } else if (nLength <= 2 && (nLength == 0 || pData[0] == '\r' || pData[0] == '\n')) {
        long nStatus = 0;
        curl_easy_getinfo(self->m_pEasy, CURLINFO_RESPONSE_CODE, &nStatus);
        const bool bInterim = nStatus < 200 || (nStatus >= 300 && nStatus < 400 && self->m_bLocationSeen);
        if (!bInterim) {
            self->m_nStatus = nStatus;
            self->m_bHeadDone = true;
        }
    }
    return nLength;
}

std::size_t CInetRequest::OnBody(char* pData, std::size_t nSize, std::size_t nCount, void* pSelf) {
    auto* self = static_cast<CInetRequest*>(pSelf);
    const std::size_t nLength = nSize * nCount;
    if (self->m_nReadPos >= COMPACT_AFTER) {
        self->m_body.erase(0, self->m_nReadPos);
        self->m_nReadPos = 0;
    }
    self->m_body.append(pData, nLength);
    return nLength;
}

void CInetRequest::CollectEnd() {
    int nQueued = 0;
    while (CURLMsg* pMsg = curl_multi_info_read(m_pMulti, &nQueued)) {
        if (pMsg->msg != CURLMSG_DONE) continue;
        m_bEnded = true;
        m_result = pMsg->data.result;
    }
}

template <class Done> bool CInetRequest::PumpUntil(Done bDone) {
    if (!m_pMulti || !m_pEasy) return false;
    while (!bDone() && !m_bEnded) {
        if (m_bAborted.load()) return false;
        int nRunning = 0;
        if (curl_multi_perform(m_pMulti, &nRunning) != CURLM_OK) return false;
        CollectEnd();
        if (bDone() || m_bEnded) break;
        if (curl_multi_poll(m_pMulti, nullptr, 0, POLL_MS, nullptr) != CURLM_OK) return false;
    }
    return !m_bAborted.load();
}

bool CInetRequest::Open() {
    if (!PumpUntil([this] { return m_bHeadDone; })) return false;
    if (!m_bHeadDone) { // ended without a usable head: no connection, a bad address, too many redirects
        curl_easy_getinfo(m_pEasy, CURLINFO_RESPONSE_CODE, &m_nStatus);
        return false;
    }
    return m_nStatus > 0 && m_nStatus < FIRST_FAILING_STATUS;
}

bool CInetRequest::Read(void* pBuffer, DWORD nToRead, DWORD* pRead) {
    if (pRead) *pRead = 0;
    if (!pBuffer || !pRead) return false;
    if (!PumpUntil([this] { return m_nReadPos < m_body.size(); })) return false;
    const std::size_t nAvailable = m_body.size() - m_nReadPos;
    if (nAvailable == 0) return m_result == CURLE_OK; // the end; a broken transfer fails here
    const std::size_t nCopy = std::min<std::size_t>(nAvailable, nToRead);
    std::memcpy(pBuffer, m_body.data() + m_nReadPos, nCopy);
    m_nReadPos += nCopy;
    *pRead = static_cast<DWORD>(nCopy);
    return true;
}

void CInetRequest::Abort() {
    m_bAborted.store(true);
    if (m_pMulti) curl_multi_wakeup(m_pMulti);
}

} // namespace inet
