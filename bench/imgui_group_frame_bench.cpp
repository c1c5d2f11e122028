// The group-selection frame side by side: ours (80 group buttons, 40 marked, the tip of the group under the
// cursor, on the recording canvas) and the same screen built with Dear ImGui's null backend (fixed display
// size, manual clock, NewFrame ... Render into its draw lists). Prints both and the ratio ours / Dear ImGui.
#include <benchmark/benchmark.h>
#include <imgui.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "GroupScreen.h"

namespace {

constexpr int GROUPS = SGroupScreen::GROUPS;
constexpr int SCREEN_WIDTH = 1024;
constexpr int SCREEN_HEIGHT = 768;
constexpr float FRAME_SECONDS = 1.0f / 60.0f;
constexpr DWORD FRAME_MS = 16;
constexpr const char* GROUP_TIP = "The oldest servers, open since the first day.";
constexpr const char* OURS = "BM_GroupFrame_Ours";
constexpr const char* IMGUI = "BM_GroupFrame_DearImGui";

void BM_GroupFrame_Ours(benchmark::State& state) {
    SGroupScreen screen(GROUP_TIP);
    for (auto _ : state) {
        host::AdvanceClock(FRAME_MS);
        host::BeginFrame();
        screen.pSim->Process();
        screen.pSim->Show();
    }
    state.counters["draw_ops"] = static_cast<double>(host::GetRecordedOps().size());
}
BENCHMARK(BM_GroupFrame_Ours);

ImVec2 Pos(const RECT& rc) {
    return ImVec2(static_cast<float>(rc.left), static_cast<float>(rc.top));
}
ImVec2 Size(const RECT& rc) {
    return ImVec2(static_cast<float>(rc.right - rc.left), static_cast<float>(rc.bottom - rc.top));
}

// The same screen as Dear ImGui builds it: a panel at the dialog's place, 80 buttons at our buttons' places
// with a mark on every other one, the tip of the hovered group, a title, back and exit.
void BuildImGuiGroupScreen(const SGroupScreen& screen, const std::vector<std::string>& labels) {
    ImGui::SetNextWindowPos(Pos(screen.dialog));
    ImGui::SetNextWindowSize(Size(screen.dialog));
    ImGui::Begin("groups", nullptr, ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove);
    ImGui::TextUnformatted("Select a group");
    ImDrawList* pDraw = ImGui::GetWindowDrawList();
    for (int i = 0; i < GROUPS; ++i) {
        const RECT& rc = screen.buttons[static_cast<std::size_t>(i)];
        ImGui::SetCursorScreenPos(Pos(rc));
        ImGui::Button(labels[static_cast<std::size_t>(i)].c_str(), Size(rc));
        if (ImGui::IsItemHovered()) ImGui::SetTooltip("%s", GROUP_TIP);
        if (i % 2 == 0) {
            const ImVec2 corner(static_cast<float>(rc.right - 14), static_cast<float>(rc.top + 2));
            pDraw->AddRectFilled(corner, ImVec2(corner.x + 12, corner.y + 12), IM_COL32(208, 128, 32, 255));
            pDraw->AddText(ImVec2(corner.x + 3, corner.y - 1), IM_COL32_WHITE, "!");
        }
    }
    ImGui::SetCursorScreenPos(
        ImVec2(static_cast<float>(screen.dialog.right - 200), static_cast<float>(screen.dialog.bottom - 40)));
    ImGui::Button("Back", ImVec2(80, 28));
    ImGui::SameLine();
    ImGui::Button("Exit", ImVec2(80, 28));
    ImGui::End();
}

void BM_GroupFrame_DearImGui(benchmark::State& state) {
    const SGroupScreen screen(GROUP_TIP);
    std::vector<std::string> labels;
    for (int i = 0; i < GROUPS; ++i) labels.push_back("Group " + std::to_string(i + 1));
    ImGui::CreateContext();
    ImGuiIO& io = ImGui::GetIO();
    io.DisplaySize = ImVec2(SCREEN_WIDTH, SCREEN_HEIGHT);
    io.IniFilename = nullptr;
    unsigned char* pPixels = nullptr;
    int nWidth = 0, nHeight = 0;
    io.Fonts->GetTexDataAsRGBA32(&pPixels, &nWidth, &nHeight); // the null backend's font texture
    io.MousePos =
        ImVec2(static_cast<float>(screen.buttons[0].left + 5), static_cast<float>(screen.buttons[0].top + 5));
    std::size_t nVertices = 0;
    for (auto _ : state) {
        io.DeltaTime = FRAME_SECONDS;
        ImGui::NewFrame();
        BuildImGuiGroupScreen(screen, labels);
        ImGui::Render();
        nVertices = static_cast<std::size_t>(ImGui::GetDrawData()->TotalVtxCount);
        benchmark::DoNotOptimize(ImGui::GetDrawData());
    }
    state.counters["vertices"] = static_cast<double>(nVertices);
    ImGui::DestroyContext();
}
BENCHMARK(BM_GroupFrame_DearImGui);

// The console report, and each benchmark's CPU time per frame kept for the ratio.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration)
                m_times[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
    void PrintRatio() const {
        const auto ours = m_times.find(OURS);
        const auto imgui = m_times.find(IMGUI);
        if (ours == m_times.end() || imgui == m_times.end() || imgui->second <= 0) return;
        std::printf(
            "group-selection frame: ours %.0f ns, Dear ImGui %.0f ns, ratio ours / Dear ImGui = %.2f\n",
            ours->second, imgui->second, ours->second / imgui->second);
    }

private:
    std::map<std::string, double> m_times;
};

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatio();
    benchmark::Shutdown();
    return 0;
}
