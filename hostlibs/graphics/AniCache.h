// The process-wide cache of parsed animation index files, decoded pictures and the animations handed out.
#pragma once

#include <array>
#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "AniIndex.h"
#include "Canvas.h"

namespace gfx {

class AniHandle;

/// Files are looked up below the client directory without regard to case and read once; a missing file is
/// remembered as missing until Clear.
class AniCache {
public:
    static AniCache& Instance();
    ~AniCache();

    /// The parsed index of an animation file; null when the file does not exist.
    std::shared_ptr<const AniIndex> Index(std::string_view file);
    /// The decoded picture of a client file; null when it is missing or cannot be decoded.
    std::shared_ptr<const Image> Picture(std::string_view path);
    /// The animation titled title in file, owned by the cache until Clear; null when there is none.
    AniHandle* Animation(std::string_view file, std::string_view title);
    /// Forgets everything; animations handed out before are invalid afterwards.
    void Clear();
    /// Changes whenever an animation handed out before may no longer be the answer to its request (at Clear,
    /// and when the client directory changes); never 0.
    unsigned long long Version() const;

private:
    AniCache() = default;
    static std::string Key(std::string_view name);
    /// The animation by its normalised file and title (the cache's own key).
    AniHandle* Resolve(std::string_view file, std::string_view title);
    std::shared_ptr<const AniIndex> LoadIndex(std::string_view file);

    std::mutex m_mutex;
    std::map<std::string, std::shared_ptr<const AniIndex>> m_indexes;
    std::map<std::string, std::shared_ptr<const Image>> m_pictures;
    std::map<std::string, std::unique_ptr<AniHandle>> m_animations;
    /// A caller's file and title as given, looked up without copying them.
    using RequestView = std::pair<std::string_view, std::string_view>;
    /// Hashes and compares stored requests and looked-up ones alike.
    struct RequestHash {
        using is_transparent = void;
        std::size_t operator()(const RequestView& request) const;
        std::size_t operator()(const std::pair<std::string, std::string>& request) const {
            return (*this)(RequestView(request.first, request.second));
        }
    };
    struct RequestEqual {
        using is_transparent = void;
        template <class A, class B> bool operator()(const A& a, const B& b) const {
            return std::string_view(a.first) == std::string_view(b.first) &&
                   std::string_view(a.second) == std::string_view(b.second);
        }
    };
    /// Animations by the exact file and title the caller gave (null when there is none): the per-frame path,
    /// valid for one client directory.
    std::unordered_map<std::pair<std::string, std::string>, AniHandle*, RequestHash, RequestEqual>
        m_byRequest;
    /// A recent answer, found again by where the caller keeps its file and title: a window asks with the same
    /// strings every frame, and comparing them with the copies here is cheaper than hashing them. The copies
    /// make the answer right even when other text comes to lie at the same place.
    struct RecentRequest {
        const char* file = nullptr;
        const char* title = nullptr;
        std::string fileText;
        std::string titleText;
        AniHandle* handle = nullptr;
    };
    /// Two places per request: two requests that meet in one place do not push each other out every frame.
    static constexpr std::size_t RECENT_SLOTS = 1024;
    static constexpr std::size_t RECENT_WAYS = 2;
    static std::size_t RecentSlot(std::string_view file, std::string_view title);
    /// The recent answer to the request, or null when none is kept (the lock held).
    const RecentRequest* FindRecent(std::string_view file, std::string_view title) const;
    static bool IsRecent(const RecentRequest& recent, std::string_view file, std::string_view title);
    void RememberRecent(std::string_view file, std::string_view title, AniHandle* pHandle);
    void ForgetRecent();
    std::array<RecentRequest, RECENT_SLOTS> m_recent;
    unsigned m_nRequestDirVersion = 0;
    std::atomic<unsigned> m_nClears{1};
};

} // namespace gfx
