// A small HTTP server on 127.0.0.1 for tests, benchmarks and the reference host: each connection on its own
// thread, answers scripted (status, body, a reset or a short body, a body held back until released).
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

class LoopbackHttpServer {
public:
    /// What the next requests get.
    struct Reply {
        int nStatus = 200;
        std::string body;
        /// Bytes of the body sent before the hold (all when npos).
        std::size_t nSendFirst = std::string::npos;
        /// After nSendFirst bytes: wait for Release, then send the rest.
        bool bHold = false;
        /// After nSendFirst bytes: close the connection with a reset instead of finishing.
        bool bReset = false;
        /// After nSendFirst bytes: close the connection normally although the head announced the whole body.
        bool bTruncate = false;
    };

    LoopbackHttpServer() {
        m_listen = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in addr{};
        addr.sin_family = AF_INET;
        addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        addr.sin_port = 0;
        ::bind(m_listen, reinterpret_cast<sockaddr*>(&addr), sizeof addr);
        ::listen(m_listen, 8);
        socklen_t len = sizeof addr;
        ::getsockname(m_listen, reinterpret_cast<sockaddr*>(&addr), &len);
        m_nPort = ntohs(addr.sin_port);
        m_thread = std::thread([this] { Serve(); });
    }
    ~LoopbackHttpServer() {
        {
            std::lock_guard lock(m_mutex);
            m_bStop = true;
            m_bReleased = true;
        }
        m_cv.notify_all();
        m_thread.join();
        for (std::thread& t : m_connections) t.join();
        ::close(m_listen);
    }
    LoopbackHttpServer(const LoopbackHttpServer&) = delete;
    LoopbackHttpServer& operator=(const LoopbackHttpServer&) = delete;

    std::string Url(const std::string& path = "/softkey.jpg") const {
        return "http://127.0.0.1:" + std::to_string(m_nPort) + path;
    }
    /// Every request from now on gets this reply.
    void SetReply(Reply reply) { SetReplies({std::move(reply)}); }
    /// The next requests get these replies in turn; the last one repeats.
    void SetReplies(std::vector<Reply> replies) {
        std::lock_guard lock(m_mutex);
        m_replies = std::move(replies);
        m_nNextReply = 0;
        m_bReleased = false;
    }
    /// Lets a held body go on.
    void Release() {
        {
            std::lock_guard lock(m_mutex);
            m_bReleased = true;
        }
        m_cv.notify_all();
    }
    /// Waits until a held reply has sent its first part; false after the time is up.
    bool WaitUntilHolding(std::chrono::milliseconds timeout = std::chrono::seconds(10)) {
        std::unique_lock lock(m_mutex);
        return m_cv.wait_for(lock, timeout, [this] { return m_nHolding > 0; });
    }
    /// The request heads received so far.
    std::vector<std::string> Requests() {
        std::lock_guard lock(m_mutex);
        return m_requests;
    }

private:
    static constexpr int POLL_MS = 50;

    void Serve() {
        for (;;) {
            {
                std::lock_guard lock(m_mutex);
                if (m_bStop) return;
            }
            pollfd pfd{m_listen, POLLIN, 0};
            if (::poll(&pfd, 1, POLL_MS) <= 0) continue;
            const int fd = ::accept(m_listen, nullptr, nullptr);
            if (fd < 0) continue;
            m_connections.emplace_back([this, fd] { Answer(fd); });
        }
    }

    void Answer(int fd) {
        std::string head;
        char buf[1024];
        while (head.find("\r\n\r\n") == std::string::npos) {
            pollfd pfd{fd, POLLIN, 0};
            if (::poll(&pfd, 1, 5000) <= 0) break;
            const ssize_t n = ::recv(fd, buf, sizeof buf, 0);
            if (n <= 0) break;
            head.append(buf, static_cast<std::size_t>(n));
        }
        Reply reply;
        {
            std::lock_guard lock(m_mutex);
            m_requests.push_back(head);
            if (!m_replies.empty()) reply = m_replies[std::min(m_nNextReply++, m_replies.size() - 1)];
        }
        const std::string status =
            reply.nStatus == 200 ? "200 OK" : std::to_string(reply.nStatus) + " Status";
        SendAll(fd, "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(reply.body.size()) +
                        "\r\nConnection: close\r\n\r\n");
        const std::size_t nFirst = std::min(reply.nSendFirst, reply.body.size());
        SendAll(fd, reply.body.substr(0, nFirst));
        if (reply.bReset) {
            linger hard{1, 0};
            ::setsockopt(fd, SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
            ::close(fd);
            return;
        }
        if (reply.bHold) {
            std::unique_lock lock(m_mutex);
            ++m_nHolding;
            m_cv.notify_all();
            m_cv.wait(lock, [this] { return m_bReleased; });
            --m_nHolding;
        }
        if (!reply.bTruncate) SendAll(fd, reply.body.substr(nFirst));
        ::shutdown(fd, SHUT_WR);
        ::close(fd);
    }

    static void SendAll(int fd, const std::string& data) {
        std::size_t sent = 0;
        while (sent < data.size()) {
            const ssize_t n = ::send(fd, data.data() + sent, data.size() - sent, MSG_NOSIGNAL);
            if (n <= 0) return;
            sent += static_cast<std::size_t>(n);
        }
    }

    int m_listen = -1;
    int m_nPort = 0;
    std::thread m_thread;
    std::vector<std::thread> m_connections; ///< only the accepting thread adds, before the destructor joins
    std::mutex m_mutex;
    std::condition_variable m_cv;
    std::vector<Reply> m_replies{Reply{}};
    std::size_t m_nNextReply = 0;
    bool m_bStop = false;
    bool m_bReleased = false;
    int m_nHolding = 0;
    std::vector<std::string> m_requests;
};
