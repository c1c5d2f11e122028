// The host libraries' note of every resource the system asked for and did not get, for a client-directory
// check.
//
// Missing art is drawn as nothing and a control without a layout record keeps its defaults, so none of these
// is an error worth a log line in a running client; a checker turns the note on and reads what was missed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

/// One resource asked for and not found.
struct ResourceMiss {
    /// "dialog-layout" (no [DialogT] record), "control-layout" (no [DialogT.C] record), "animation" (a title
    /// its animation file lacks), "picture" (a picture file that is not there).
    std::string kind;
    std::string name;  ///< the section, title or picture file asked for
    std::string where; ///< the file that was searched (the layout or animation file); may be empty
};

/// Starts (clearing what was noted) or stops noting misses; off by default.
void NoteMisses(bool bOn);
/// Notes a miss when noting is on; the host libraries call it where they fall back.
void NoteMiss(std::string_view kind, std::string_view name, std::string_view where = {});
/// The misses noted since the last call, in the order they happened; the note is emptied.
std::vector<ResourceMiss> TakeMisses();

} // namespace host
