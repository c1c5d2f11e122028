// The image downloader on a scripted transport: the calls it makes, every failing step, reads in pieces, a
// missing target, an exception.
#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <vector>

#include "DownloadTarget.h"
#include "LogCapture.h"

namespace {

// Hands out fixed handles, serves a body in reads of the size asked, and fails the step it is told to.
class FakeTransport final : public IImgDownTransport {
public:
    enum class EFail { None, Session, Url, Create, Write, Read, Throw };

    EFail fail = EFail::None;
    std::string body;

    HINTERNET InternetOpenA(const char* szAgent, DWORD dwAccess, const char*, const char*, DWORD) override {
        Log("session " + std::string(szAgent) + " " + std::to_string(dwAccess));
        return fail == EFail::Session ? nullptr : SESSION;
    }
    HINTERNET InternetOpenUrlA(HINTERNET hSession, const char* szUrl, const char*, DWORD, DWORD dwFlags,
                               std::uintptr_t) override {
        Log(std::string("url ") + (szUrl ? szUrl : "(null)") +
            (dwFlags == INTERNET_FLAG_RELOAD ? " reload" : ""));
        return fail == EFail::Url || !szUrl || hSession != SESSION ? nullptr : URL;
    }
    BOOL InternetReadFile(HINTERNET, void* pBuffer, DWORD nToRead, DWORD* pRead) override {
        if (fail == EFail::Throw) throw std::runtime_error("transport broke");
        const std::size_t n = std::min<std::size_t>(nToRead, body.size() - m_nPos);
        if (fail == EFail::Read && m_nPos > 0) { // the second read breaks
            *pRead = 0;
            return FALSE;
        }
        std::memcpy(pBuffer, body.data() + m_nPos, n);
        m_nPos += n;
        *pRead = static_cast<DWORD>(n);
        return TRUE;
    }
    BOOL InternetCloseHandle(HINTERNET h) override {
        Log(h == SESSION ? "close session" : "close url");
        return TRUE;
    }
    HANDLE CreateFileA(const char* szPath, DWORD dwAccess, DWORD dwShare, void*, DWORD dwDisposition,
                       DWORD dwAttributes, HANDLE) override {
        Log("create " + std::string(szPath) + " " + std::to_string(dwAccess == GENERIC_WRITE) +
            std::to_string(dwShare) + std::to_string(dwDisposition == CREATE_ALWAYS) +
            std::to_string(dwAttributes == FILE_ATTRIBUTE_NORMAL));
        return fail == EFail::Create ? INVALID_HANDLE_VALUE : FILE;
    }
    BOOL WriteFile(HANDLE, const void* pBuffer, DWORD nBytes, DWORD* pWritten, void*) override {
        Log("write " + std::to_string(nBytes));
        written.append(static_cast<const char*>(pBuffer), nBytes);
        *pWritten = fail == EFail::Write ? 0 : nBytes;
        return fail == EFail::Write ? FALSE : TRUE;
    }
    BOOL CloseHandle(HANDLE) override {
        Log("close file");
        return TRUE;
    }

    std::vector<std::string> Calls() {
        std::lock_guard lock(m_mutex);
        return m_calls;
    }
    std::string written;

private:
    void Log(std::string call) {
        std::lock_guard lock(m_mutex);
        m_calls.push_back(std::move(call));
    }
    inline static const HINTERNET SESSION = reinterpret_cast<HINTERNET>(0x10);
    inline static const HINTERNET URL = reinterpret_cast<HINTERNET>(0x20);
    inline static const HANDLE FILE = reinterpret_cast<HANDLE>(0x30);
    std::mutex m_mutex;
    std::vector<std::string> m_calls;
    std::size_t m_nPos = 0;
};

class HttpImgDownTest : public DownloadFixture {
protected:
    /// Downloads with the transport and returns the messages the target received.
    std::vector<int> Run(FakeTransport& transport, const char* szUrl, bool bWithTarget = true) {
        CHttpImgDown downloader(transport);
        downloader.Start(bWithTarget ? &m_target : nullptr, szUrl);
        downloader.WaitForWorkers();
        Frame();
        return m_target.results;
    }
};

TEST_F(HttpImgDownTest, ADownloadIsWrittenInPiecesOfAtMost1024BytesThenReported) {
    FakeTransport transport;
    transport.body = std::string(2500, 'x');
    transport.body[2499] = 'z';
    EXPECT_EQ(Run(transport, "http://keys/a.jpg"), std::vector<int>{1});
    EXPECT_EQ(transport.Calls(),
              (std::vector<std::string>{"session MyAgent 0", "url http://keys/a.jpg reload",
                                        "create data/softkey.jpg 1011", "write 1024", "write 1024",
                                        "write 452", "close file", "close url", "close session"}));
    EXPECT_EQ(transport.written, transport.body);
}

TEST_F(HttpImgDownTest, EachFailingStepClosesWhatIsOpenAndReportsFailure) {
    using EFail = FakeTransport::EFail;
    const std::map<EFail, std::vector<std::string>> expected{
        {EFail::Session, {"session MyAgent 0"}},
        {EFail::Url, {"session MyAgent 0", "url http://k reload", "close session"}},
        {EFail::Create,
         {"session MyAgent 0", "url http://k reload", "create data/softkey.jpg 1011", "close url",
          "close session"}},
        {EFail::Write,
         {"session MyAgent 0", "url http://k reload", "create data/softkey.jpg 1011", "write 10",
          "close file", "close url", "close session"}},
    };
    for (const auto& [fail, calls] : expected) {
        SCOPED_TRACE(static_cast<int>(fail));
        m_target.results.clear();
        FakeTransport transport;
        transport.fail = fail;
        transport.body = "0123456789";
        EXPECT_EQ(Run(transport, "http://k"), std::vector<int>{0});
        EXPECT_EQ(transport.Calls(), calls);
    }
}

TEST_F(HttpImgDownTest, AnEmptyBodyLeavesAnEmptyFileAndSucceeds) {
    FakeTransport transport;
    EXPECT_EQ(Run(transport, "http://k"), std::vector<int>{1});
    EXPECT_EQ(transport.Calls(), (std::vector<std::string>{"session MyAgent 0", "url http://k reload",
                                                           "create data/softkey.jpg 1011", "close file",
                                                           "close url", "close session"}));
}

TEST_F(HttpImgDownTest, AReadErrorEndsTheDownloadLikeItsEnd) {
    FakeTransport transport;
    transport.fail = FakeTransport::EFail::Read;
    transport.body = std::string(3000, 'r');
    EXPECT_EQ(Run(transport, "http://k"), std::vector<int>{1});
    EXPECT_EQ(transport.written, std::string(1024, 'r'));
}

TEST_F(HttpImgDownTest, AnEmptyAddressFailsAtTheAddressAndKeepsTheLastOne) {
    FakeTransport transport;
    CHttpImgDown downloader(transport);
    EXPECT_EQ(downloader.GetUrl(), nullptr);
    downloader.Start(&m_target, "");
    downloader.WaitForWorkers();
    downloader.Start(&m_target, "http://keys/b.jpg");
    downloader.Start(&m_target, nullptr); // no address given: the stored one again
    downloader.WaitForWorkers();
    EXPECT_STREQ(downloader.GetUrl(), "http://keys/b.jpg");
    Frame();
    EXPECT_EQ(m_target.results.front(), 0);
    EXPECT_EQ(transport.Calls()[1], "url (null) reload");
    int nSecondAddress = 0;
    for (const std::string& call : transport.Calls())
        nSecondAddress += call == "url http://keys/b.jpg reload";
    EXPECT_EQ(nSecondAddress, 2);
}

TEST_F(HttpImgDownTest, WithoutATargetTheFileIsStillWrittenAndNothingPosted) {
    FakeTransport transport;
    transport.body = "picture";
    EXPECT_TRUE(Run(transport, "http://k", false).empty());
    EXPECT_EQ(transport.written, "picture");
    EXPECT_FALSE(host::WaitForPostedMessage(0));
}

TEST_F(HttpImgDownTest, AnExceptionIsLoggedAndNothingIsPosted) {
    testlog::Expect("ERROR", "Try Catch(...) ThreadDownImg");
    FakeTransport transport;
    transport.fail = FakeTransport::EFail::Throw;
    EXPECT_TRUE(Run(transport, "http://k").empty());
    EXPECT_EQ(testlog::Count("ERROR", "Try Catch(...) ThreadDownImg"), 1);
}

} // namespace
