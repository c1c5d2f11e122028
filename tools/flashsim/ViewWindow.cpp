// The live window of the reference host on SDL2: events in as window messages, the raster canvas out,
// scenario steps from a script and from the terminal.
#include "ViewWindow.h"

#include <SDL.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "DebugOverlay.h"
#include "Graphics.h"
#include "Input.h"
#include "ScenarioRunner.h"
#include "Transcript.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"

namespace {

// Window messages a Windows host hands on that the shared vocabulary does not name.
constexpr UINT WM_SETFOCUS_MSG = 0x0007;
constexpr UINT WM_KILLFOCUS_MSG = 0x0008;
constexpr UINT WM_IME_STARTCOMPOSITION_MSG = 0x010D;
constexpr UINT WM_IME_ENDCOMPOSITION_MSG = 0x010E;
constexpr UINT WM_IME_COMPOSITION_MSG = 0x010F;
constexpr LPARAM GCS_COMPSTR_FLAG = 0x0008;
constexpr int WHEEL_DELTA_UNIT = 120;
constexpr int VK_F1_CODE = 0x70;
constexpr DWORD MESSAGE_COLOUR = 0xFFFFFFFF;
constexpr DWORD BACKDROP_COLOUR = 0xFF202028;
// A frame never advances the virtual clock by more than this, so a stopped debugger does not fast-forward.
constexpr DWORD MAX_FRAME_MS = 250;
constexpr std::size_t CONSOLE_READ_BYTES = 4096;
constexpr int DEFAULT_REFRESH_HZ = 60;

// Keys of the game client's window: SDL's key to the virtual key the library expects; 0 for none.
int VirtualKeyOf(SDL_Keycode key) {
    if (key >= SDLK_a && key <= SDLK_z) return 'A' + (key - SDLK_a);
    if (key >= SDLK_0 && key <= SDLK_9) return '0' + (key - SDLK_0);
    if (key >= SDLK_F1 && key <= SDLK_F12) return VK_F1_CODE + (key - SDLK_F1);
    switch (key) {
    case SDLK_BACKSPACE:
        return VK_BACK;
    case SDLK_TAB:
        return VK_TAB;
    case SDLK_RETURN:
    case SDLK_KP_ENTER:
        return VK_RETURN;
    case SDLK_ESCAPE:
        return VK_ESCAPE;
    case SDLK_LSHIFT:
    case SDLK_RSHIFT:
        return VK_SHIFT;
    case SDLK_LCTRL:
    case SDLK_RCTRL:
        return VK_CONTROL;
    case SDLK_END:
        return VK_END;
    case SDLK_HOME:
        return VK_HOME;
    case SDLK_LEFT:
        return VK_LEFT;
    case SDLK_UP:
        return VK_UP;
    case SDLK_RIGHT:
        return VK_RIGHT;
    case SDLK_DOWN:
        return VK_DOWN;
    case SDLK_DELETE:
        return VK_DELETE;
    case SDLK_SPACE:
        return ' ';
    default:
        return 0;
    }
}

// Keys whose press also types a character; SDL's text input leaves them out.
bool TypesControlCharacter(int vk) {
    return vk == VK_BACK || vk == VK_TAB || vk == VK_RETURN || vk == VK_ESCAPE;
}

// Text as the value of a step: backslashes doubled, so that it is typed byte for byte.
std::string StepValue(std::string_view text) {
    std::string value;
    for (char c : text) {
        if (c == '\\') value += '\\';
        value += c;
    }
    return value;
}

class ViewWindow {
public:
    explicit ViewWindow(const ViewOptions& options)
        : m_options(options), m_transcript(true), m_runner(MakeRunOptions(options), m_transcript) {}
    ~ViewWindow() { CloseWindow(); }
    ViewWindow(const ViewWindow&) = delete;
    ViewWindow& operator=(const ViewWindow&) = delete;

    int Run();

private:
    static RunOptions MakeRunOptions(const ViewOptions& options);
    bool HasLayoutFile() const;
    bool OpenWindow();
    void CloseWindow();
    /// One scenario line from the script, the terminal or the start; the window's own commands first.
    void RunLine(const std::string& line, int nLine);
    void PollConsole();
    void HandleEvent(const SDL_Event& event);
    void HandleKey(const SDL_KeyboardEvent& key, bool bDown);
    void HandleComposition(const char* szText);
    void Frame();
    void DrawMessage(const std::string& text);
    void Present();
    void NoteNewCommands();
    /// Waits out the rest of a display refresh when presenting did not (no vertical sync, as under Xvfb).
    void KeepRefreshRate(std::chrono::steady_clock::time_point frameStart) const;

    ViewOptions m_options;
    Transcript m_transcript;
    ScenarioRunner m_runner;
    DebugOverlay m_overlay;
    SDL_Window* m_pWindow = nullptr;
    SDL_Renderer* m_pRenderer = nullptr;
    SDL_Texture* m_pTexture = nullptr;
    int m_nWidth = 0, m_nHeight = 0;
    bool m_bLibrary = false;
    bool m_bOverlay = false;
    bool m_bPaused = false;
    bool m_bQuit = false;
    bool m_bComposing = false;
    bool m_bConsoleOpen = true;
    std::string m_consoleBuffer;
    int m_nConsoleLine = 0;
    std::size_t m_nTranscriptSeen = 0;
    std::string m_message; ///< shown instead of the library's frame (no layout file)
    std::chrono::steady_clock::time_point m_lastFrame;
    std::chrono::microseconds m_refreshInterval{1000000 / DEFAULT_REFRESH_HZ};
};

RunOptions ViewWindow::MakeRunOptions(const ViewOptions& options) {
    RunOptions run;
    run.scenarioPath = options.scriptPath.empty()
                           ? (std::filesystem::path(options.clientDir) / "view").string()
                           : options.scriptPath;
    run.libraryPath = options.libraryPath;
    run.resDir = options.clientDir;
    run.outDir = ".";
    return run;
}

bool ViewWindow::HasLayoutFile() const {
    namespace fs = std::filesystem;
    std::error_code ec;
    const std::string name =
        m_options.language < 1 ? "FlashGui.ini" : "FlashGui_" + std::to_string(m_options.language) + ".ini";
    return fs::is_regular_file(fs::path(m_options.clientDir) / name, ec) ||
           fs::is_regular_file(fs::path(m_options.clientDir) / "FlashGui.ini", ec);
}

bool ViewWindow::OpenWindow() {
    host::GetScreenSize(m_nWidth, m_nHeight);
    const std::string title = "flashsim view - " + m_options.clientDir;
    m_pWindow = SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, m_nWidth,
                                 m_nHeight, SDL_WINDOW_SHOWN);
    if (!m_pWindow) return false;
    m_pRenderer = SDL_CreateRenderer(m_pWindow, -1, SDL_RENDERER_PRESENTVSYNC);
    if (!m_pRenderer) m_pRenderer = SDL_CreateRenderer(m_pWindow, -1, SDL_RENDERER_SOFTWARE);
    if (!m_pRenderer) return false;
    // Mouse coordinates arrive in canvas pixels whatever the window's size.
    SDL_RenderSetLogicalSize(m_pRenderer, m_nWidth, m_nHeight);
    SDL_DisplayMode mode{};
    if (SDL_GetCurrentDisplayMode(SDL_GetWindowDisplayIndex(m_pWindow), &mode) == 0 && mode.refresh_rate > 0)
        m_refreshInterval = std::chrono::microseconds(1000000 / mode.refresh_rate);
    m_pTexture = SDL_CreateTexture(m_pRenderer, SDL_PIXELFORMAT_RGBA32, SDL_TEXTUREACCESS_STREAMING, m_nWidth,
                                   m_nHeight);
    SDL_StartTextInput();
    return m_pTexture != nullptr;
}

void ViewWindow::CloseWindow() {
    if (m_pTexture) SDL_DestroyTexture(m_pTexture);
    if (m_pRenderer) SDL_DestroyRenderer(m_pRenderer);
    if (m_pWindow) SDL_DestroyWindow(m_pWindow);
    m_pTexture = nullptr;
    m_pRenderer = nullptr;
    m_pWindow = nullptr;
}

void ViewWindow::RunLine(const std::string& line, int nLine) {
    const std::optional<ScenarioStep> step = ParseStepLine(line, nLine);
    if (!step) return;
    const std::string& name = step->words[0];
    if (name == "quit") {
        m_bQuit = true;
        return;
    }
    if (name == "pause" || name == "resume") {
        m_bPaused = name == "pause";
        return;
    }
    if (name == "overlay" && step->words.size() == 2) {
        m_bOverlay = step->words[1] == "on";
        return;
    }
    if (!m_bLibrary) {
        std::fprintf(stderr, "flashsim view: %s\n", m_message.c_str());
        return;
    }
    if (name == "set" && step->words.size() >= 2)
        m_overlay.NoteVariable(UnescapeValue(step->words[1]),
                               step->words.size() > 2 ? UnescapeValue(step->RestAfter(2)) : std::string());
    m_runner.Step(*step);
    NoteNewCommands();
}

void ViewWindow::PollConsole() {
    if (!m_bConsoleOpen) return;
    pollfd fd{STDIN_FILENO, POLLIN, 0};
    while (::poll(&fd, 1, 0) > 0 && (fd.revents & (POLLIN | POLLHUP))) {
        char buffer[CONSOLE_READ_BYTES];
        const ssize_t n = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (n <= 0) {
            m_bConsoleOpen = false; // the terminal closed; the window stays
            break;
        }
        m_consoleBuffer.append(buffer, static_cast<std::size_t>(n));
        for (std::size_t end; (end = m_consoleBuffer.find('\n')) != std::string::npos;) {
            const std::string line = m_consoleBuffer.substr(0, end);
            m_consoleBuffer.erase(0, end + 1);
            RunLine(line, ++m_nConsoleLine);
        }
    }
}

void ViewWindow::NoteNewCommands() {
    const auto& lines = m_transcript.Lines();
    for (; m_nTranscriptSeen < lines.size(); ++m_nTranscriptSeen)
        if (lines[m_nTranscriptSeen].text.starts_with(">"))
            m_overlay.NoteCommand(lines[m_nTranscriptSeen].text);
}

void ViewWindow::HandleKey(const SDL_KeyboardEvent& key, bool bDown) {
    if (key.keysym.sym == SDLK_F12) {
        if (bDown && !key.repeat) m_bOverlay = !m_bOverlay;
        return; // the host's own key
    }
    const int vk = VirtualKeyOf(key.keysym.sym);
    if (vk == 0 || !m_bLibrary) return;
    host::SetKeyDown(vk, bDown);
    m_runner.SendToWindow(bDown ? WM_KEYDOWN : WM_KEYUP, static_cast<WPARAM>(vk), 1, true);
    if (bDown && TypesControlCharacter(vk)) m_runner.SendToWindow(WM_CHAR, static_cast<WPARAM>(vk), 1, true);
}

void ViewWindow::HandleComposition(const char* szText) {
    // NOTE: as a Windows host: start, one composition message per change, end; the result is typed as
    // characters (SDL_TEXTINPUT), the composition itself is the input method's to show.
    const std::string text = szText ? szText : "";
    if (!m_bComposing && !text.empty()) {
        m_bComposing = true;
        m_runner.SendToWindow(WM_IME_STARTCOMPOSITION_MSG, 0, 0, true);
    }
    if (m_bComposing) m_runner.SendToWindow(WM_IME_COMPOSITION_MSG, 0, GCS_COMPSTR_FLAG, true);
    if (m_bComposing && text.empty()) {
        m_bComposing = false;
        m_runner.SendToWindow(WM_IME_ENDCOMPOSITION_MSG, 0, 0, true);
    }
    m_overlay.NoteComposition(text);
}

void ViewWindow::HandleEvent(const SDL_Event& event) {
    if (event.type == SDL_QUIT) {
        m_bQuit = true;
        return;
    }
    if (event.type == SDL_KEYDOWN || event.type == SDL_KEYUP)
        return HandleKey(event.key, event.type == SDL_KEYDOWN);
    if (!m_bLibrary) return;
    switch (event.type) {
    case SDL_MOUSEMOTION:
        m_runner.SendMouse(WM_MOUSEMOVE, event.motion.x, event.motion.y);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: {
        const bool bDown = event.type == SDL_MOUSEBUTTONDOWN;
        if (event.button.button == SDL_BUTTON_LEFT)
            m_runner.SendMouse(bDown ? WM_LBUTTONDOWN : WM_LBUTTONUP, event.button.x, event.button.y);
        else if (event.button.button == SDL_BUTTON_RIGHT)
            m_runner.SendMouse(bDown ? WM_RBUTTONDOWN : WM_RBUTTONUP, event.button.x, event.button.y);
        break;
    }
    case SDL_MOUSEWHEEL: {
        POINT pt{0, 0};
        GetCursorPos(&pt);
        const WPARAM wParam = static_cast<WPARAM>(static_cast<WORD>(event.wheel.y * WHEEL_DELTA_UNIT)) << 16;
        m_runner.SendToWindow(WM_MOUSEWHEEL, wParam, MAKELPARAM(pt.x, pt.y), false);
        break;
    }
    case SDL_TEXTINPUT:
        RunLine("char " + StepValue(event.text.text), 0);
        break;
    case SDL_TEXTEDITING:
        HandleComposition(event.edit.text);
        break;
    case SDL_WINDOWEVENT:
        if (event.window.event == SDL_WINDOWEVENT_FOCUS_GAINED)
            m_runner.SendToWindow(WM_SETFOCUS_MSG, 0, 0, false);
        else if (event.window.event == SDL_WINDOWEVENT_FOCUS_LOST)
            m_runner.SendToWindow(WM_KILLFOCUS_MSG, 0, 0, false);
        break;
    default:
        break;
    }
    NoteNewCommands();
}

void ViewWindow::DrawMessage(const std::string& text) {
    host::BeginFrame(BACKDROP_COLOUR);
    CMyBitmap::ShowString(20, 20, MESSAGE_COLOUR, text.c_str());
}

void ViewWindow::Frame() {
    const auto now = std::chrono::steady_clock::now();
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(now - m_lastFrame).count();
    m_lastFrame = now;
    if (m_bPaused) return;
    if (!m_bLibrary) return DrawMessage(m_message);
    IFlashSimulator* pSim = m_runner.Simulator();
    if (!pSim) return;
    host::AdvanceClock(static_cast<DWORD>(std::min<long long>(elapsed, MAX_FRAME_MS)));
    const auto t0 = std::chrono::steady_clock::now();
    pSim->Process();
    const auto t1 = std::chrono::steady_clock::now();
    host::BeginFrame();
    pSim->Show();
    const auto t2 = std::chrono::steady_clock::now();
    using std::chrono::microseconds;
    m_overlay.NoteFrameTimes(std::chrono::duration_cast<microseconds>(t1 - t0).count(),
                             std::chrono::duration_cast<microseconds>(t2 - t1).count());
    NoteNewCommands();
    if (m_bOverlay) {
        POINT pt{0, 0};
        GetCursorPos(&pt);
        m_overlay.Draw(pt.x, pt.y);
    }
}

void ViewWindow::KeepRefreshRate(std::chrono::steady_clock::time_point frameStart) const {
    const auto spent = std::chrono::steady_clock::now() - frameStart;
    if (spent < m_refreshInterval)
        SDL_Delay(static_cast<Uint32>(
            std::chrono::duration_cast<std::chrono::milliseconds>(m_refreshInterval - spent).count()));
}

void ViewWindow::Present() {
    int nWidth = 0, nHeight = 0;
    const std::vector<std::uint8_t> pixels = host::GetRasterPixels(nWidth, nHeight);
    if (nWidth == m_nWidth && nHeight == m_nHeight && !pixels.empty())
        SDL_UpdateTexture(m_pTexture, nullptr, pixels.data(), nWidth * 4);
    SDL_RenderClear(m_pRenderer);
    SDL_RenderCopy(m_pRenderer, m_pTexture, nullptr, nullptr);
    SDL_RenderPresent(m_pRenderer);
}

int ViewWindow::Run() {
    host::UseCanvas(host::CanvasKind::Raster);
    m_bLibrary = HasLayoutFile();
    if (!m_bLibrary) {
        m_message = "No layout file (FlashGui.ini) in " + m_options.clientDir + ": nothing to show.";
        std::fprintf(stderr, "flashsim view: %s\n", m_message.c_str());
    } else if (!m_runner.Start()) {
        m_message = "The library cannot be loaded: " + m_transcript.Text();
        m_bLibrary = false;
    }
    if (m_bLibrary) {
        int nLine = 0;
        for (const std::string& line :
             {"host language " + m_options.languageName, "create " + std::to_string(m_options.language),
              std::string("callback primary"), std::string("callback secondary"), "scene " + m_options.scene})
            RunLine(line, --nLine);
        std::vector<ScenarioStep> steps;
        if (!m_options.scriptPath.empty() && !ReadScenario(m_options.scriptPath, steps)) {
            std::fprintf(stderr, "flashsim view: cannot read %s\n", m_options.scriptPath.c_str());
            return 2;
        }
        for (const ScenarioStep& step : steps) RunLine(step.raw, step.nLine);
    }
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        std::fprintf(stderr, "flashsim view: no display: %s\n", SDL_GetError());
        return 2;
    }
    if (!OpenWindow()) {
        std::fprintf(stderr, "flashsim view: cannot open the window: %s\n", SDL_GetError());
        SDL_Quit();
        return 2;
    }
    std::printf("! view: window %u open; steps from the terminal, F12 the overlay\n",
                SDL_GetWindowID(m_pWindow));
    std::fflush(stdout);
    m_lastFrame = std::chrono::steady_clock::now();
    while (!m_bQuit) {
        const auto frameStart = std::chrono::steady_clock::now();
        SDL_Event event;
        while (SDL_PollEvent(&event)) HandleEvent(event);
        PollConsole();
        Frame();
        Present();
        KeepRefreshRate(frameStart);
    }
    if (m_bLibrary && m_runner.Simulator()) RunLine("destroy", 0);
    CloseWindow();
    SDL_Quit();
    return m_runner.Failed() ? 1 : 0;
}

} // namespace

int RunViewWindow(const ViewOptions& options) {
    ViewWindow window(options);
    return window.Run();
}
