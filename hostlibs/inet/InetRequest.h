// One HTTP GET behind a WinINet address handle: sent through libcurl, its body read on demand by the caller.
#pragma once

#include <curl/curl.h>

#include <atomic>
#include <string>

#include "BaseLib.h"

namespace inet {

class CInetRequest {
public:
    /// Responses from this status on fail the open (the body is an error page, not the resource).
    static constexpr long FIRST_FAILING_STATUS = 400;

    CInetRequest(const std::string& agent, const std::string& url);
    ~CInetRequest();
    CInetRequest(const CInetRequest&) = delete;
    CInetRequest& operator=(const CInetRequest&) = delete;

    /// Sends the request and waits for the final response head; false when the address cannot be fetched,
    /// the status fails or the request was aborted.
    bool Open();
    /// Copies up to nToRead bytes of the body, waiting for some when none is buffered; *pRead is 0 at the
    /// end. False when the transfer broke or was aborted.
    bool Read(void* pBuffer, DWORD nToRead, DWORD* pRead);
    /// Any thread: ends a wait in Open or Read (which then fail) and every later call.
    void Abort();
    long GetStatus() const { return m_nStatus; }

private:
    static std::size_t OnHeader(char* pData, std::size_t nSize, std::size_t nCount, void* pSelf);
    static std::size_t OnBody(char* pData, std::size_t nSize, std::size_t nCount, void* pSelf);
    /// Lets libcurl work until bDone() holds, the transfer ends or an abort; false on abort or failure of
    /// libcurl itself.
    template <class Done> bool PumpUntil(Done bDone);
    void CollectEnd();

    CURLM* m_pMulti = nullptr;
    CURL* m_pEasy = nullptr;
    curl_slist* m_pHeaders = nullptr;
    std::atomic<bool> m_bAborted{false};

    std::string m_body; ///< received and not yet read, from m_nReadPos
    std::size_t m_nReadPos = 0;
    bool m_bHeadDone = false;
    bool m_bLocationSeen = false;
    long m_nStatus = 0;
    bool m_bEnded = false;
    CURLcode m_result = CURLE_OK;
};

} // namespace inet
