// Resolution of file names below the client directory, without regard to the case of the names.
#pragma once

#include <string>
#include <string_view>

namespace gfx {

class ClientPath {
public:
    /// The existing file that a client-relative name (slashes or backslashes) denotes, matching each part of
    /// the name exactly first and then without regard to case; absolute names are taken as they are. Empty
    /// when there is no such file.
    static std::string Resolve(std::string_view name);
    /// The name with backslashes as slashes, without leading "./", lower-cased (ASCII): the same for every
    /// spelling.
    static std::string NormalKey(std::string_view name);
};

} // namespace gfx
