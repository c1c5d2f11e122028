// A dialog that records the completion messages posted to it, on a dialog manager that delivers them.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>
#include <vector>

#include "TempClientDir.h"
#include "hostlibs/HostGui.h"
#include "platform/LuDialog.h"
#include "platform/LuGui.h"
#include "resources/HttpImgDown.h"

class DownloadTarget : public LuGui::CLuDialog {
public:
    static constexpr UINT IDD = 2100;
    DownloadTarget() : LuGui::CLuDialog(IDD) {}
    LRESULT WindowProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override {
        if (uMsg == CHttpImgDown::WM_IMG_DOWNLOADED)
            results.push_back(static_cast<int>(wParam) + 10 * lParam);
        return LuGui::CLuDialog::WindowProc(uMsg, wParam, lParam);
    }
    /// First parameter of each completion message (plus ten times the second, which must stay 0).
    std::vector<int> results;
};

class DownloadFixture : public testing::Test {
protected:
    void SetUp() override {
        m_dir.Write("FlashGui.ini", "");
        m_dir.Write("data/.keep", "");
        m_mgr = LuGui::CreateNewGuiMgr();
        m_mgr->Init(nullptr, 0, 0, "FlashGui.ini");
        ASSERT_TRUE(m_mgr->RegisterDialog(&m_target, 0, 0));
    }
    void TearDown() override { m_mgr->Release(); }

    /// A host frame: delivers what was posted.
    void Frame() { m_mgr->Process(); }
    /// Runs frames until n completion messages arrived or ten seconds passed, waiting as a message loop
    /// does.
    void WaitForResults(std::size_t n) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (m_target.results.size() < n && std::chrono::steady_clock::now() < deadline) {
            host::WaitForPostedMessage(100);
            Frame();
        }
    }
    std::string Downloaded() const {
        std::ifstream in(m_dir.Path() / CHttpImgDown::FILE_NAME, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }

    TempClientDir m_dir;
    LuGui::ILuGuiMgr* m_mgr = nullptr;
    DownloadTarget m_target;
};
