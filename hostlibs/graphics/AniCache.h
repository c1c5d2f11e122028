// The process-wide cache of parsed animation index files, decoded pictures and the animations handed out.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <unordered_map>

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
    /// Animations by the exact file and title the caller gave (null when there is none): the per-frame path,
    /// valid for one client directory.
    std::unordered_map<std::string, AniHandle*> m_byRequest;
    unsigned m_nRequestDirVersion = 0;
};

} // namespace gfx
