// The host libraries' one resolver of client file names: either slash, any case, never above the client
// directory.
#pragma once

#include <string>
#include <string_view>

namespace txt {

/// What a name must denote to resolve.
enum class ClientEntry {
    File,    ///< an existing regular file
    Folder,  ///< an existing folder
    Any,     ///< an existing file or folder
    NewFile, ///< a file to write: its folder exists; the file itself may not
};

class ClientPath {
public:
    static constexpr std::size_t MAX_NAME_LENGTH = 4096;

    /// The path a client-relative name (slashes or backslashes) denotes: each part matched exactly first and
    /// then without regard to case, "." skipped, ".." one part back. A name that climbs above the client
    /// directory resolves to nothing. Absolute names are taken as they are. Empty when the name does not
    /// denote what kind asks for.
    static std::string Resolve(std::string_view name, ClientEntry kind = ClientEntry::File);
    /// The name's normal form (slashes, no "." parts, ".." applied, lower-cased ASCII): the same for every
    /// spelling of one file, for caches.
    static std::string NormalKey(std::string_view name);
};

} // namespace txt
