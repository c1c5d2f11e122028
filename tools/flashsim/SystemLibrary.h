// Loads the system library at run time and finds its two exports, as a game client does.
#pragma once

#include <string>

#include "flashsim/IFlashSimulator.h"

class SystemLibrary {
public:
    SystemLibrary() = default;
    ~SystemLibrary();
    SystemLibrary(const SystemLibrary&) = delete;
    SystemLibrary& operator=(const SystemLibrary&) = delete;

    /// Loads the library; false with a reason in Error() when it or one of the exports is missing.
    bool Load(const std::string& path);
    const std::string& Error() const { return m_error; }

    PFN_FlashSimulatorQuery Query = nullptr;
    PFN_FlashSimulatorDestroy Destroy = nullptr;

private:
    void* m_handle = nullptr;
    std::string m_error;
};
