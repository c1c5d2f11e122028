// Loads the system library at run time and finds its two exports, as a game client does.
#include "SystemLibrary.h"

#include <dlfcn.h>

SystemLibrary::~SystemLibrary() {
    // NOTE: the library stays loaded until the process ends: worker threads it started may still be
    // unwinding.
}

bool SystemLibrary::Load(const std::string& path) {
    m_handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!m_handle) {
        const char* err = ::dlerror();
        m_error = err ? err : "cannot load " + path;
        return false;
    }
    Query = reinterpret_cast<PFN_FlashSimulatorQuery>(::dlsym(m_handle, "FlashSimulatorQuery"));
    Destroy = reinterpret_cast<PFN_FlashSimulatorDestroy>(::dlsym(m_handle, "FlashSimulatorDestroy"));
    if (!Query || !Destroy) {
        m_error = "the library does not export FlashSimulatorQuery and FlashSimulatorDestroy";
        return false;
    }
    return true;
}
