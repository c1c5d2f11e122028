// The image downloader on the platform's HTTP client against a server on 127.0.0.1 that the test runs: the
// request sent, error statuses, broken and short bodies, a slow body while the host draws frames, two
// workers on one file, and the downloader's end in the middle of a download.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "DownloadTarget.h"
#include "LoopbackHttpServer.h"

namespace {

std::string Body(std::size_t n) {
    std::string body(n, '\0');
    for (std::size_t i = 0; i < n; ++i) body[i] = static_cast<char>((i * 31 + 7) & 0xFF);
    return body;
}

class HttpImgDownCurlTest : public DownloadFixture {
protected:
    void SetUp() override {
        DownloadFixture::SetUp();
        ::setenv("no_proxy", "127.0.0.1", 1); // a proxy of the machine must not see the test's requests
    }
    /// Waits (at most ten seconds) until a worker has created the picture file.
    bool WaitUntilCreated() const {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (!std::filesystem::exists(m_dir.Path() / CHttpImgDown::FILE_NAME)) {
            if (std::chrono::steady_clock::now() > deadline) return false;
            std::this_thread::yield();
        }
        return true;
    }

    LoopbackHttpServer m_server;
};

TEST_F(HttpImgDownCurlTest, APictureIsFetchedFreshWithTheAgentAndStored) {
    const std::string body = Body(64 * 1024);
    m_server.SetReply({200, body});
    CHttpImgDown downloader;
    downloader.Start(&m_target, m_server.Url().c_str());
    WaitForResults(1);
    EXPECT_EQ(m_target.results, std::vector<int>{1});
    EXPECT_TRUE(Downloaded() == body);
    const auto requests = m_server.Requests();
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_NE(requests[0].find("GET /softkey.jpg HTTP/1.1\r\n"), std::string::npos);
    EXPECT_NE(requests[0].find("User-Agent: MyAgent\r\n"), std::string::npos);
    EXPECT_NE(requests[0].find("Cache-Control: no-cache\r\n"), std::string::npos);
}

TEST_F(HttpImgDownCurlTest, AnErrorStatusOrNoServerFailsAndKeepsTheOldPicture) {
    m_dir.Write(CHttpImgDown::FILE_NAME, "old picture");
    m_server.SetReply({404, "<html>not found</html>"});
    CHttpImgDown downloader;
    downloader.Start(&m_target, m_server.Url().c_str());
    WaitForResults(1);
    const std::string refused = "http://127.0.0.1:1/softkey.jpg"; // nothing listens on port 1
    downloader.Start(&m_target, refused.c_str());
    WaitForResults(2);
    downloader.Start(&m_target, "ftp://127.0.0.1/softkey.jpg");
    WaitForResults(3);
    EXPECT_EQ(m_target.results, (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(Downloaded(), "old picture");
}

TEST_F(HttpImgDownCurlTest, ABrokenOrShortBodyEndsLikeTheEndWithWhatArrived) {
    const std::string body = Body(8000);
    LoopbackHttpServer::Reply truncated{200, body};
    truncated.nSendFirst = 3000;
    truncated.bTruncate = true;
    m_server.SetReply(truncated);
    CHttpImgDown downloader;
    downloader.Start(&m_target, m_server.Url().c_str());
    WaitForResults(1);
    EXPECT_EQ(m_target.results, std::vector<int>{1});
    EXPECT_TRUE(Downloaded() == body.substr(0, 3000));

    LoopbackHttpServer::Reply reset{200, body};
    reset.nSendFirst = 2000;
    reset.bReset = true;
    m_server.SetReply(reset);
    downloader.Start(&m_target, m_server.Url().c_str());
    WaitForResults(2);
    EXPECT_EQ(m_target.results, (std::vector<int>{1, 1}));
    const std::string stored = Downloaded(); // a reset may lose what was still on the way
    EXPECT_LE(stored.size(), 2000u);
    EXPECT_TRUE(body.compare(0, stored.size(), stored) == 0);
}

TEST_F(HttpImgDownCurlTest, ASlowBodyLetsTheHostDrawAndIsReportedOnceComplete) {
    const std::string body = Body(20000);
    LoopbackHttpServer::Reply slow{200, body};
    slow.nSendFirst = 5000;
    slow.bHold = true;
    m_server.SetReply(slow);
    CHttpImgDown downloader;
    downloader.Start(&m_target, m_server.Url().c_str());
    ASSERT_TRUE(m_server.WaitUntilHolding());
    for (int i = 0; i < 5; ++i) Frame(); // frames go on while the body is held back
    EXPECT_TRUE(m_target.results.empty());
    m_server.Release();
    WaitForResults(1);
    EXPECT_EQ(m_target.results, std::vector<int>{1});
    EXPECT_TRUE(Downloaded() == body);
}

TEST_F(HttpImgDownCurlTest, ASecondWorkerFindingTheFileOpenFailsAtCreate) {
    const std::string body = Body(10000);
    LoopbackHttpServer::Reply held{200, body};
    held.nSendFirst = 4000;
    held.bHold = true;
    m_server.SetReplies({held, LoopbackHttpServer::Reply{200, "second"}});
    CHttpImgDown downloader;
    downloader.Start(&m_target, m_server.Url().c_str());
    ASSERT_TRUE(m_server.WaitUntilHolding());
    ASSERT_TRUE(WaitUntilCreated()); // the first worker holds the file from here on
    downloader.Start(&m_target, m_server.Url().c_str());
    WaitForResults(1);
    EXPECT_EQ(m_target.results, std::vector<int>{0});
    m_server.Release();
    WaitForResults(2);
    EXPECT_EQ(m_target.results, (std::vector<int>{0, 1}));
    EXPECT_TRUE(Downloaded() == body);
}

TEST_F(HttpImgDownCurlTest, EndingTheDownloaderMidDownloadReturnsAndPostsNothing) {
    LoopbackHttpServer::Reply held{200, Body(10000)};
    held.nSendFirst = 3000;
    held.bHold = true;
    m_server.SetReply(held);
    {
        CHttpImgDown downloader;
        downloader.Start(&m_target, m_server.Url().c_str());
        ASSERT_TRUE(m_server.WaitUntilHolding());
    } // the worker is blocked in a read here: the end must wake it
    for (int i = 0; i < 3; ++i) Frame();
    EXPECT_TRUE(m_target.results.empty());
    EXPECT_FALSE(host::WaitForPostedMessage(0));
    m_server.Release();
}

} // namespace
