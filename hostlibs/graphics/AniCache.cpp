// Caching of animation data so that the per-frame lookups of every widget cost a map search, not a file read.
#include "AniCache.h"

#include "base/HostEnvironment.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "AniHandle.h"
#include "ClientPath.h"
#include "ImageDecoder.h"
#include "Log.h"

namespace gfx {
namespace {
constexpr std::size_t kMaxIndexBytes = 16u * 1024u * 1024u;
constexpr std::size_t kMaxWarningsLogged = 20;

std::optional<std::string> ReadText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    // Read in pieces up to the cap: a cap-sized buffer per file would cost more than the parse.
    std::string text;
    char buf[16384];
    while (text.size() < kMaxIndexBytes && in.read(buf, sizeof buf).gcount() > 0)
        text.append(buf, std::min(static_cast<std::size_t>(in.gcount()), kMaxIndexBytes - text.size()));
    return text;
}
} // namespace

AniCache& AniCache::Instance() {
    static AniCache cache;
    return cache;
}

AniCache::~AniCache() = default;

std::string AniCache::Key(std::string_view name) {
    return GetClientDirectory() + '\n' + ClientPath::NormalKey(name);
}

std::shared_ptr<const AniIndex> AniCache::LoadIndex(std::string_view file) {
    const std::string path = ClientPath::Resolve(file);
    if (path.empty()) return nullptr;
    const auto text = ReadText(path);
    if (!text) return nullptr;
    auto index = std::make_shared<AniIndex>(AniIndexParser::Parse(*text));
    const std::string name(file);
    for (std::size_t i = 0; i < index->warnings.size() && i < kMaxWarningsLogged; ++i) {
        LogMsg("animation index %s, %s", name.c_str(), index->warnings[i].c_str());
    }
    return index;
}

std::shared_ptr<const AniIndex> AniCache::Index(std::string_view file) {
    const std::string key = Key(file);
    std::lock_guard lock(m_mutex);
    if (auto it = m_indexes.find(key); it != m_indexes.end()) return it->second;
    return m_indexes.emplace(key, LoadIndex(file)).first->second;
}

std::shared_ptr<const Image> AniCache::Picture(std::string_view path) {
    const std::string key = Key(path);
    std::lock_guard lock(m_mutex);
    if (auto it = m_pictures.find(key); it != m_pictures.end()) return it->second;
    std::shared_ptr<const Image> picture;
    const std::string resolved = ClientPath::Resolve(path);
    if (!resolved.empty()) {
        if (auto image = ImageDecoder::DecodeFile(resolved))
            picture = std::make_shared<const Image>(std::move(*image));
    }
    return m_pictures.emplace(key, std::move(picture)).first->second;
}

AniHandle* AniCache::Animation(std::string_view file, std::string_view title) {
    if (file.empty() || title.empty()) return nullptr;
    std::string request;
    request.reserve(file.size() + title.size() + 1);
    request.append(file).append(1, '\n').append(title);
    const unsigned nDirVersion = host::detail::Env().clientDirVersion;
    {
        std::lock_guard lock(m_mutex);
        if (nDirVersion != m_nRequestDirVersion) {
            m_byRequest.clear();
            m_nRequestDirVersion = nDirVersion;
        }
        if (auto it = m_byRequest.find(request); it != m_byRequest.end()) return it->second;
    }
    AniHandle* pHandle = Resolve(file, title);
    std::lock_guard lock(m_mutex);
    m_byRequest.emplace(std::move(request), pHandle);
    return pHandle;
}

AniHandle* AniCache::Resolve(std::string_view file, std::string_view title) {
    const std::string key = Key(file) + '\n' + LowerAscii(title);
    {
        std::lock_guard lock(m_mutex);
        if (auto it = m_animations.find(key); it != m_animations.end()) return it->second.get();
    }
    auto index = Index(file);
    if (!index) return nullptr;
    const AniTitle* found = index->Find(title);
    if (!found) return nullptr;
    auto handle = std::make_unique<AniHandle>(std::string(file), std::move(index), *found);
    std::lock_guard lock(m_mutex);
    return m_animations.emplace(key, std::move(handle)).first->second.get();
}

void AniCache::Clear() {
    std::lock_guard lock(m_mutex);
    m_byRequest.clear();
    m_animations.clear();
    m_indexes.clear();
    m_pictures.clear();
}

} // namespace gfx
