// A created simulator on a temporary client directory, with a recording command callback.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "LogCapture.h"
#include "TempClientDir.h"
#include "resources/MyString.h"
#include "simulator/DialogSet.h"
#include "simulator/FlashSimulator.h"

class SimulatorFixture : public testing::Test {
protected:
    /// Commands received, as "NAME ARG".
    static std::vector<std::string>& Commands() {
        static std::vector<std::string> commands;
        return commands;
    }
    static void Record(const char* cmd, const char* arg) {
        Commands().push_back(std::string(cmd) + " " + arg);
    }

    /// Writes the client files first (strings and server configuration), then creates the simulator.
    void Create(int nLanguage = 0, const std::string& strings = "8000102=Tick the agreement.\n",
                const std::string& serverCfg = "", std::uint64_t hHostWindow = 0) {
        m_dir.Write("ini/FlashString.ini", strings);
        if (!serverCfg.empty()) m_dir.Write("ini/ServerCfg.ini", serverCfg);
        m_sim = FlashSimQuery();
        m_sim->Create(hHostWindow, 0, nLanguage, true);
        m_sim->SetCallBack(&Record);
        Commands().clear();
    }
    void TearDown() override { FlashSimDestroy(); }
    void Set(const char* name, const char* value) { m_sim->SetVariable(name, value); }
    std::vector<std::string> TakeCommands() {
        std::vector<std::string> taken;
        taken.swap(Commands());
        return taken;
    }

    TempClientDir m_dir;
    CFlashSimulator* m_sim = nullptr;
};
