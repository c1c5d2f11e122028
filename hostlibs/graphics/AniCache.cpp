// Caching of animation data so that the per-frame lookups of every widget cost a map search, not a file read.
#include "AniCache.h"

#include <cstdint>

#include "base/HostEnvironment.h"

#include "AniHandle.h"
#include "ImageDecoder.h"
#include "Log.h"
#include "hostlibs/HostMisses.h"
#include "text/ClientPath.h"
#include "text/IniDocument.h"

namespace gfx {
namespace {
constexpr std::size_t MAX_WARNINGS_LOGGED = 20;
// Spreads the bits of two hashes apart when they are combined into one.
constexpr std::size_t HASH_MIX = 0x9e3779b97f4a7c15ULL;
// The high bits of a multiplied address are the well mixed ones.
constexpr int RECENT_SHIFT = 40;
} // namespace

AniCache& AniCache::Instance() {
    static AniCache cache;
    return cache;
}

AniCache::~AniCache() = default;

std::string AniCache::Key(std::string_view name) {
    return GetClientDirectory() + '\n' + txt::ClientPath::NormalKey(name);
}

std::shared_ptr<const AniIndex> AniCache::LoadIndex(std::string_view file) {
    const std::string name(file);
    const auto text = txt::IniDocument::ReadClientFile(file);
    if (!text) {
        LogMsg("animation index %s missing", name.c_str());
        return nullptr;
    }
    auto index = std::make_shared<AniIndex>(AniIndexParser::Parse(*text));
    const std::vector<std::string>& warnings = index->warnings;
    for (std::size_t i = 0; i < warnings.size() && i < MAX_WARNINGS_LOGGED; ++i)
        LogMsg("animation index %s, %s", name.c_str(), warnings[i].c_str());
    if (warnings.size() > MAX_WARNINGS_LOGGED)
        LogMsg("animation index %s, %zu more problems not listed", name.c_str(),
               warnings.size() - MAX_WARNINGS_LOGGED);
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
    if (auto image = ImageDecoder::DecodeClientFile(path))
        picture = std::make_shared<const Image>(std::move(*image));
    return m_pictures.emplace(key, std::move(picture)).first->second;
}

std::size_t AniCache::RequestHash::operator()(const RequestView& request) const {
    const std::size_t fileHash = std::hash<std::string_view>()(request.first);
    const std::size_t titleHash = std::hash<std::string_view>()(request.second);
    return fileHash ^ (titleHash + HASH_MIX + (fileHash << 6) + (fileHash >> 2));
}

std::size_t AniCache::RecentSlot(std::string_view file, std::string_view title) {
    const auto fileAt = reinterpret_cast<std::uintptr_t>(file.data());
    const auto titleAt = reinterpret_cast<std::uintptr_t>(title.data());
    const auto mixed = static_cast<std::size_t>(((fileAt ^ (titleAt * HASH_MIX)) * HASH_MIX) >> RECENT_SHIFT);
    return mixed % (RECENT_SLOTS - RECENT_WAYS + 1);
}

bool AniCache::IsRecent(const RecentRequest& recent, std::string_view file, std::string_view title) {
    return recent.file == file.data() && recent.title == title.data() && recent.fileText == file &&
           recent.titleText == title;
}

const AniCache::RecentRequest* AniCache::FindRecent(std::string_view file, std::string_view title) const {
    const std::size_t slot = RecentSlot(file, title);
    for (std::size_t way = 0; way < RECENT_WAYS; ++way)
        if (const RecentRequest& recent = m_recent[slot + way]; IsRecent(recent, file, title)) return &recent;
    return nullptr;
}

void AniCache::RememberRecent(std::string_view file, std::string_view title, AniHandle* pHandle) {
    // The first free place of the request's two, else the second (the first stays for its older owner).
    const std::size_t slot = RecentSlot(file, title);
    RecentRequest& recent = m_recent[m_recent[slot].file ? slot + 1 : slot];
    recent.file = file.data();
    recent.title = title.data();
    recent.fileText.assign(file);
    recent.titleText.assign(title);
    recent.handle = pHandle;
}

void AniCache::ForgetRecent() {
    for (RecentRequest& recent : m_recent) recent = RecentRequest{};
}

AniHandle* AniCache::Animation(std::string_view file, std::string_view title) {
    if (file.empty() || title.empty()) return nullptr;
    const RequestView request(file, title);
    const unsigned nDirVersion = host::detail::Env().clientDirVersion;
    {
        std::lock_guard lock(m_mutex);
        if (nDirVersion != m_nRequestDirVersion) {
            m_byRequest.clear();
            ForgetRecent();
            m_nRequestDirVersion = nDirVersion;
        }
        if (const RecentRequest* pRecent = FindRecent(file, title)) return pRecent->handle;
        if (auto it = m_byRequest.find(request); it != m_byRequest.end()) {
            RememberRecent(file, title, it->second);
            return it->second;
        }
    }
    AniHandle* pHandle = Resolve(file, title);
    std::lock_guard lock(m_mutex);
    m_byRequest.emplace(std::pair<std::string, std::string>(file, title), pHandle);
    RememberRecent(file, title, pHandle);
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
    if (!found) {
        host::NoteMiss("animation", title, file);
        return nullptr;
    }
    auto handle = std::make_unique<AniHandle>(std::string(file), std::move(index), *found);
    std::lock_guard lock(m_mutex);
    return m_animations.emplace(key, std::move(handle)).first->second.get();
}

unsigned long long AniCache::Version() const {
    constexpr int CLEARS_SHIFT = 32;
    return (static_cast<unsigned long long>(m_nClears.load()) << CLEARS_SHIFT) |
           host::detail::Env().clientDirVersion;
}

void AniCache::Clear() {
    std::lock_guard lock(m_mutex);
    m_byRequest.clear();
    ForgetRecent();
    ++m_nClears;
    m_animations.clear();
    m_indexes.clear();
    m_pictures.clear();
}

} // namespace gfx
