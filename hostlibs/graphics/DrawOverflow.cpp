// The one-line form of a text or picture drawn past its window, as the reference host's drawing check prints
// it.
#include <string>

#include "hostlibs/HostCanvas.h"

namespace host {

std::string DrawOverflow::ToString() const {
    std::string out = clipped ? "cut at " : "outside ";
    out += std::to_string(dialog);
    if (control != 0) out += '.' + std::to_string(control);
    out += ' ' + std::to_string(window.left) + ',' + std::to_string(window.top) + ' ' +
           std::to_string(static_cast<long long>(window.right) - window.left) + 'x' +
           std::to_string(static_cast<long long>(window.bottom) - window.top);
    return out + ": " + op.ToString();
}

} // namespace host
