// The login service of a scenario: a loopback HTTP server that serves one file, with the client copy's
// login-service addresses pointed at it.
#include "LoopbackSite.h"

#include <fstream>
#include <sstream>
#include <vector>

#include "LoopbackHttpServer.h"

namespace {
constexpr const char* SERVER_STATE_FILE = "ini/ServerState.ini";
constexpr std::string_view LOGIN_URL_SECTION = "[loginUrl]";

bool ReadWhole(const std::string& path, std::string& out) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    std::ostringstream text;
    text << in.rdbuf();
    out = text.str();
    return true;
}

// "key=http://host:port/path" becomes "key=ORIGIN/path"; lines without an address stay as they are.
std::string WithOrigin(const std::string& line, const std::string& origin) {
    const std::size_t eq = line.find('=');
    if (eq == std::string::npos) return line;
    const std::size_t scheme = line.find("://", eq);
    if (scheme == std::string::npos) return line;
    const std::size_t path = line.find('/', scheme + 3);
    return line.substr(0, eq + 1) + origin + (path == std::string::npos ? "" : line.substr(path));
}

std::string PointLoginUrlsAt(const std::string& text, const std::string& origin) {
    std::istringstream in(text);
    std::string out;
    std::string line;
    bool bInSection = false;
    while (std::getline(in, line)) {
        const std::string_view body =
            !line.empty() && line.back() == '\r' ? std::string_view(line).substr(0, line.size() - 1) : line;
        if (!body.empty() && body.front() == '[')
            bInSection = body == LOGIN_URL_SECTION;
        else if (bInSection)
            line = WithOrigin(line, origin);
        out += line;
        out += '\n';
    }
    return out;
}
} // namespace

LoopbackSite::LoopbackSite() = default;
LoopbackSite::~LoopbackSite() = default;

bool LoopbackSite::Start(const std::string& filePath, const std::string& clientDir, std::string& error) {
    std::string body;
    if (!ReadWhole(filePath, body)) {
        error = "cannot read " + filePath;
        return false;
    }
    const std::string configPath = clientDir + "/" + SERVER_STATE_FILE;
    std::string config;
    if (!ReadWhole(configPath, config)) {
        error = std::string("the client directory has no ") + SERVER_STATE_FILE;
        return false;
    }
    m_pServer = std::make_unique<LoopbackHttpServer>();
    LoopbackHttpServer::Reply reply;
    reply.body = std::move(body);
    m_pServer->SetReply(std::move(reply));
    std::ofstream out(configPath, std::ios::binary | std::ios::trunc);
    out << PointLoginUrlsAt(config, Origin());
    if (!out) {
        error = "cannot rewrite " + configPath;
        return false;
    }
    return true;
}

std::string LoopbackSite::Origin() const {
    return m_pServer ? m_pServer->Url("") : std::string{};
}

std::size_t LoopbackSite::RequestCount() const {
    return m_pServer ? m_pServer->Requests().size() : 0;
}
