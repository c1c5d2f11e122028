// The login service of a scenario: a loopback HTTP server that serves one file, with the client copy's
// login-service addresses pointed at it, so that downloads in a scenario really go over HTTP.
#pragma once

#include <memory>
#include <string>

class LoopbackHttpServer;

class LoopbackSite {
public:
    LoopbackSite();
    ~LoopbackSite();
    LoopbackSite(const LoopbackSite&) = delete;
    LoopbackSite& operator=(const LoopbackSite&) = delete;

    /// Serves the bytes of `filePath` at every address of a server on a free loopback port, and rewrites the
    /// origin of each address in the "[loginUrl]" section of `clientDir`/ini/ServerState.ini to that server.
    /// False with `error` set when the file cannot be read or the configuration cannot be rewritten.
    bool Start(const std::string& filePath, const std::string& clientDir, std::string& error);
    /// "http://127.0.0.1:PORT" once started, empty before.
    std::string Origin() const;
    /// How many requests the server has answered.
    std::size_t RequestCount() const;

private:
    std::unique_ptr<LoopbackHttpServer> m_pServer;
};
