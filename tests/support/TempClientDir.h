// A temporary client directory for one test, removed at the end, set as the host's client directory.
#pragma once

#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>

#include "hostlibs/HostEnv.h"

class TempClientDir {
public:
    TempClientDir() {
        static std::atomic<int> counter{0};
        m_path = std::filesystem::temp_directory_path() /
                 ("flashsim_client_" + std::to_string(::getpid()) + "_" + std::to_string(counter++));
        std::filesystem::create_directories(m_path);
        host::SetClientDir(m_path.string());
    }
    ~TempClientDir() {
        std::error_code ec;
        std::filesystem::remove_all(m_path, ec);
    }
    TempClientDir(const TempClientDir&) = delete;
    TempClientDir& operator=(const TempClientDir&) = delete;

    /// Writes a file below the directory, creating its folders.
    void Write(const std::string& relative, const std::string& content) const {
        const auto file = m_path / relative;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << content;
    }
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};
