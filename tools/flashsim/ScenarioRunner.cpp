// Executes scenario steps against the system library and writes the transcript.
//
// Index:
//   helpers          callbacks and log lines as transcript lines, ranges of step numbers
//   running          construction, the log sink, Run, errors
//   steps            one function per step
//   window messages  mouse, typed characters, keys and the control descriptions of "show"
#include "ScenarioRunner.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "Input.h"
#include "InterfaceCalls.h"
#include "StepValues.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "hostlibs/HostGui.h"

// ---- helpers ---------------------------------------------------------------------------------------

namespace {
Transcript* g_pTranscript = nullptr;

// The host's answers: variables it sets inside its primary callback when a command arrives ("answer").
struct SAnswer {
    std::string command;
    std::string name;
    std::string value;
};
std::vector<SAnswer> g_answers;
IFlashSimulator* g_pAnsweringSim = nullptr;

void PrintCommand(const char* prefix, const char* szCommand, const char* szArgument) {
    if (!g_pTranscript) return;
    g_pTranscript->Line(std::string(prefix) + " " + host::EscapeTranscriptText(szCommand ? szCommand : "") +
                        " \"" + host::EscapeTranscriptText(szArgument ? szArgument : "") + "\"");
}

void OnPrimaryCommand(const char* szCommand, const char* szArgument) {
    PrintCommand(">", szCommand, szArgument);
    if (!g_pAnsweringSim || !szCommand) return;
    // NOTE: answers re-enter the simulator from inside the command, as a host that answers at once does; a
    // copy is walked since an answer may send further commands.
    const std::vector<SAnswer> answers = g_answers;
    for (const SAnswer& answer : answers)
        if (answer.command == szCommand)
            g_pAnsweringSim->SetVariable(answer.name.c_str(), answer.value.c_str());
}
void OnSecondaryCommand(const char* szCommand, const char* szArgument) {
    PrintCommand(">>", szCommand, szArgument);
}

std::string LogValue(const std::string& value) {
    const std::string escaped = host::EscapeTranscriptText(value);
    if (escaped.empty() || escaped.find(' ') != std::string::npos) return "\"" + escaped + "\"";
    return escaped;
}

std::string FormatLogLine(const host::LogRecord& record) {
    std::string line = "! " + record.level + " " + host::EscapeTranscriptText(record.message);
    for (const auto& [key, value] : record.keys) line += " " + key + "=" + LogValue(value);
    return line;
}

// Ranges of step numbers: what the interface and the window messages can carry.
constexpr long long INT32_LOW = INT32_MIN, INT32_HIGH = INT32_MAX;
constexpr long long UINT32_HIGH = UINT32_MAX;
constexpr long long COORD_LOW = INT16_MIN, COORD_HIGH = INT16_MAX; // a mouse message packs 16 bits per side
constexpr long long MAX_FRAMES_PER_STEP = 1000000;
constexpr DWORD FRAME_MS = 16; // a frame at about 60 per second
constexpr long long MAX_VIRTUAL_KEY = 255;
// The reference host's window handle: any non-null value, as the system only hands it on (the browser
// library creates pages inside it).
constexpr std::uint64_t HOST_WINDOW = 1;
} // namespace

// ---- running ---------------------------------------------------------------------------------------

ScenarioRunner::ScenarioRunner(const RunOptions& options, Transcript& transcript)
    : m_options(options), m_transcript(transcript) {
    g_pTranscript = &m_transcript;
    host::SetClientDir(m_options.resDir);
    // Frames are drawn to pixels so that any of them can be written with "shot".
    host::UseCanvas(host::CanvasKind::Raster);
    host::EnableDrawingCheck(m_options.checkDrawing);
    InstallLogSink();
}

ScenarioRunner::~ScenarioRunner() {
    host::EnableDrawingCheck(false);
    host::SetLogSink({});
    g_pTranscript = nullptr;
    g_answers.clear();
    g_pAnsweringSim = nullptr;
    // A game client destroys the simulator before it exits; a scenario that left it alive gets that here,
    // after its transcript, so that no worker of the system (a browser page's thread) outlives the host
    // libraries' static state.
    if (m_pSim) m_library.Destroy();
    if (!m_strScratchDir.empty()) {
        std::error_code ec;
        std::filesystem::remove_all(m_strScratchDir, ec);
    }
}

void ScenarioRunner::InstallLogSink() {
    host::SetLogSink([this](const host::LogRecord& record) {
        if (m_eLog == ELogMode::Off) return;
        m_transcript.Line(FormatLogLine(record),
                          m_eLog == ELogMode::Strict ? ELineKind::RequiredLog : ELineKind::Log);
    });
}

bool ScenarioRunner::Start() {
    if (m_library.Load(m_options.libraryPath)) return true;
    m_transcript.Line("! error: " + m_library.Error());
    return false;
}

IFlashSimulator* ScenarioRunner::Simulator() {
    if (!m_pSim && m_library.Query) m_pSim = m_library.Query();
    g_pAnsweringSim = m_pSim;
    return m_pSim;
}

bool ScenarioRunner::Run(const std::vector<ScenarioStep>& steps) {
    if (!Start()) return false;
    for (const ScenarioStep& step : steps) Execute(step);
    return !m_bFailed;
}

void ScenarioRunner::Fail(const ScenarioStep& step, const std::string& why) {
    m_transcript.Line("! error: line " + std::to_string(step.nLine) + ": " + why);
    // The transcript of a check is not shown when it matches, so the error goes to standard error as well.
    std::fprintf(stderr, "flashsim: %s:%d: %s\n", m_options.scenarioPath.c_str(), step.nLine, why.c_str());
    m_bFailed = true;
}

std::optional<long long> ScenarioRunner::Number(const ScenarioStep& step, std::size_t nWord, long long nMin,
                                                long long nMax, const char* szUsage) {
    std::string reason;
    const auto value = ParseStepNumber(step.words[nWord], nMin, nMax, reason);
    if (!value) Fail(step, std::string(szUsage) + ": " + reason);
    return value;
}

bool ScenarioRunner::RequireSimulator(const ScenarioStep& step) {
    // Like a game client, any step that needs the simulator obtains it first; only "create" calls Create.
    if (!m_pSim) m_pSim = m_library.Query();
    g_pAnsweringSim = m_pSim;
    if (m_pSim) return true;
    Fail(step, "FlashSimulatorQuery returned null");
    return false;
}

void ScenarioRunner::Execute(const ScenarioStep& step) {
    const std::string& name = step.words[0];
    if (name == "dir") return StepDir(step);
    if (name == "create") return StepCreate(step);
    if (name == "callback") return StepCallback(step);
    if (name == "scene") return StepScene(step);
    if (name == "set") return StepSet(step);
    if (name == "get") return StepGet(step);
    if (name == "call") return StepCall(step);
    if (name == "frame") return StepFrame(step);
    if (name == "clock") return StepClock(step);
    if (name == "time") return StepTime(step);
    if (name == "host") return StepHost(step);
    if (name == "log") return StepLog(step);
    if (name == "destroy") return StepDestroy(step);
    if (name == "shot") return StepShot(step);
    if (name == "click") return StepClick(step);
    if (name == "move" || name == "down" || name == "up" || name == "rdown" || name == "rup")
        return StepMouse(step);
    if (name == "char") return StepChar(step);
    if (name == "key") return StepKey(step);
    if (name == "show") return StepShow(step);
    if (name == "send") return StepSend(step);
    if (name == "answer") return StepAnswer(step);
    if (name == "scratch") return StepScratch(step);
    if (name == "serve") return StepServe(step);
    if (name == "await") return StepAwait(step);
    if (name == "msg") return StepMsg(step);
    if (name == "ime") return StepIme(step);
    if (name == "browser") return StepBrowser(step);
    Fail(step, "unknown step \"" + host::EscapeTranscriptText(name) + "\"");
}

// ---- steps -----------------------------------------------------------------------------------------

void ScenarioRunner::StepDir(const ScenarioStep& step) {
    if (step.words.size() != 2) return Fail(step, "dir takes a path");
    namespace fs = std::filesystem;
    const fs::path base = fs::path(m_options.scenarioPath).parent_path();
    host::SetClientDir(fs::absolute(base / UnescapeValue(step.words[1])).lexically_normal().string());
}

void ScenarioRunner::StepScratch(const ScenarioStep& step) {
    // The files the system writes (QR pictures, the keyboard picture) go to a copy, never into res/.
    if (step.words.size() != 1) return Fail(step, "scratch takes nothing");
    if (!m_strScratchDir.empty()) return Fail(step, "scratch is made once per run");
    namespace fs = std::filesystem;
    std::error_code ec;
    std::string pattern = (fs::temp_directory_path(ec) / "flashsim_scratch_XXXXXX").string();
    if (!::mkdtemp(pattern.data())) return Fail(step, "cannot make a scratch directory");
    m_strScratchDir = pattern;
    fs::copy(GetClientDirectory(), m_strScratchDir, fs::copy_options::recursive, ec);
    if (ec) return Fail(step, "cannot copy the client directory: " + ec.message());
    for (const char* szFolder : {"data", "k7pack/data"})
        fs::create_directories(fs::path(m_strScratchDir) / szFolder, ec);
    host::SetClientDir(m_strScratchDir);
}

void ScenarioRunner::StepServe(const ScenarioStep& step) {
    if (step.words.size() != 2) return Fail(step, "serve takes a file");
    if (m_strScratchDir.empty())
        return Fail(step, "serve needs a scratch copy of the client directory first");
    if (m_pSite) return Fail(step, "serve is started once per run");
    namespace fs = std::filesystem;
    const fs::path base = fs::path(m_options.scenarioPath).parent_path();
    auto pSite = std::make_unique<LoopbackSite>();
    std::string error;
    if (!pSite->Start((base / UnescapeValue(step.words[1])).string(), m_strScratchDir, error))
        return Fail(step, error);
    m_pSite = std::move(pSite);
}

void ScenarioRunner::StepAwait(const ScenarioStep& step) {
    // NOTE: real time, not the virtual clock: a worker thread is downloading. The transcript stays the same
    // from run to run because it shows only that a message came, and the one frame that delivered it.
    constexpr const char* USAGE = "await takes [MS]";
    constexpr long long DEFAULT_WAIT_MS = 10000;
    if (step.words.size() > 2) return Fail(step, USAGE);
    long long ms = DEFAULT_WAIT_MS;
    if (step.words.size() == 2) {
        const auto value = Number(step, 1, 0, UINT32_HIGH, USAGE);
        if (!value) return;
        ms = *value;
    }
    if (!RequireSimulator(step)) return;
    if (!host::WaitForPostedMessage(static_cast<DWORD>(ms)))
        return Fail(step, "nothing was posted within " + std::to_string(ms) + " ms");
    RunFrame(FRAME_MS);
}

void ScenarioRunner::RunFrame(DWORD dwMilliseconds) {
    host::AdvanceClock(dwMilliseconds);
    m_pSim->Process();
    host::BeginFrame();
    m_pSim->Show();
    if (m_options.checkDrawing) ReportOverflows();
}

void ScenarioRunner::StepCreate(const ScenarioStep& step) {
    constexpr const char* USAGE = "create takes [LANG] [noregister]";
    long long language = 0;
    bool bRegister = true;
    if (step.words.size() > 3) return Fail(step, USAGE);
    for (std::size_t i = 1; i < step.words.size(); ++i) {
        if (step.words[i] == "noregister") {
            bRegister = false;
        } else if (i == 1) {
            const auto value = Number(step, i, INT32_LOW, INT32_HIGH, USAGE);
            if (!value) return;
            language = *value;
        } else {
            return Fail(step, USAGE);
        }
    }
    if (!RequireSimulator(step)) return;
    m_pSim->Create(HOST_WINDOW, 0, static_cast<std::int32_t>(language), bRegister);
}

void ScenarioRunner::StepCallback(const ScenarioStep& step) {
    if (!RequireSimulator(step)) return;
    if (step.words.size() == 2 && step.words[1] == "primary") return m_pSim->SetCallBack(&OnPrimaryCommand);
    if (step.words.size() == 2 && step.words[1] == "secondary")
        return m_pSim->SetCallBackEx(&OnSecondaryCommand);
    Fail(step, "callback takes primary or secondary");
}

void ScenarioRunner::StepScene(const ScenarioStep& step) {
    constexpr const char* USAGE = "scene takes login, create or a number";
    if (step.words.size() != 2) return Fail(step, USAGE);
    long long scene = 0;
    if (step.words[1] == "login") {
        scene = EST_LOGIN;
    } else if (step.words[1] == "create") {
        scene = EST_ROLE_CREATE;
    } else {
        const auto value = Number(step, 1, INT32_LOW, INT32_HIGH, USAGE);
        if (!value) return;
        scene = *value;
    }
    if (!RequireSimulator(step)) return;
    m_pSim->SetSceneType(static_cast<std::int32_t>(scene));
}

void ScenarioRunner::StepSet(const ScenarioStep& step) {
    if (!RequireSimulator(step)) return;
    if (step.words.size() < 2) return Fail(step, "set takes NAME [VALUE]");
    const std::string name = UnescapeValue(step.words[1]);
    const std::string value = step.words.size() > 2 ? UnescapeValue(step.RestAfter(2)) : std::string();
    m_pSim->SetVariable(name.c_str(), value.c_str());
}

void ScenarioRunner::StepGet(const ScenarioStep& step) {
    if (!RequireSimulator(step)) return;
    if (step.words.size() != 2) return Fail(step, "get takes NAME");
    const std::string name = UnescapeValue(step.words[1]);
    const char* value = m_pSim->GetVariable(name.c_str());
    m_transcript.Line("< " + host::EscapeTranscriptText(name) + " = " +
                      (value ? host::EscapeTranscriptText(value) : std::string("(null)")));
}

void ScenarioRunner::StepCall(const ScenarioStep& step) {
    if (!RequireSimulator(step)) return;
    if (step.words.size() < 2) return Fail(step, "call takes OP [ARG ...]");
    std::vector<std::string> args;
    for (std::size_t i = 2; i < step.words.size(); ++i) args.push_back(UnescapeValue(step.words[i]));
    const CallOutcome outcome = CallInterface(*m_pSim, step.words[1], args);
    if (!outcome.bKnown)
        return Fail(step, "no operation \"" + host::EscapeTranscriptText(step.words[1]) + "\"");
    if (!outcome.error.empty()) return Fail(step, outcome.error);
    if (outcome.result)
        m_transcript.Line("< " + step.words[1] + " = " + host::EscapeTranscriptText(*outcome.result));
}

void ScenarioRunner::StepFrame(const ScenarioStep& step) {
    constexpr const char* USAGE = "frame takes [N] [MS]";
    if (step.words.size() > 3) return Fail(step, USAGE);
    long long count = 1;
    long long ms = FRAME_MS;
    if (step.words.size() > 1) {
        const auto value = Number(step, 1, 0, MAX_FRAMES_PER_STEP, USAGE);
        if (!value) return;
        count = *value;
    }
    if (step.words.size() > 2) {
        const auto value = Number(step, 2, 0, UINT32_HIGH, USAGE);
        if (!value) return;
        ms = *value;
    }
    if (!RequireSimulator(step)) return;
    for (long long i = 0; i < count; ++i) RunFrame(static_cast<DWORD>(ms));
}

void ScenarioRunner::ReportOverflows() {
    for (const host::DrawOverflow& overflow : host::GetDrawOverflows()) {
        const std::string line = "! " + (overflow.clipped ? "" : std::string("drawn ")) + overflow.ToString();
        if (!m_reportedOverflows.insert(line).second) continue;
        m_transcript.Line(line);
        if (!overflow.clipped) m_bFailed = true;
    }
}

void ScenarioRunner::StepClock(const ScenarioStep& step) {
    constexpr const char* USAGE = "clock takes MS";
    if (step.words.size() != 2) return Fail(step, USAGE);
    if (const auto ms = Number(step, 1, 0, UINT32_HIGH, USAGE)) host::AdvanceClock(static_cast<DWORD>(*ms));
}

void ScenarioRunner::StepTime(const ScenarioStep& step) {
    constexpr const char* USAGE = "time takes YYYY-MM-DD HH:MM";
    if (step.words.size() != 3) return Fail(step, USAGE);
    std::string reason;
    const auto t = ParseStepTime(step.words[1], step.words[2], reason);
    if (!t) return Fail(step, std::string(USAGE) + ": " + reason);
    host::SetLocalTime(*t);
}

void ScenarioRunner::StepHost(const ScenarioStep& step) {
    if (step.words.size() < 2) return Fail(step, "host takes KEY VALUE");
    const std::string key = UnescapeValue(step.words[1]);
    const std::string value = step.words.size() > 2 ? UnescapeValue(step.RestAfter(2)) : std::string();
    if (key == "screen") {
        std::string reason;
        const auto size = ParseStepScreenSize(value, reason);
        if (!size) return Fail(step, "host screen takes WxH: " + reason);
        return host::SetScreenSize(size->cx, size->cy);
    }
    // NOTE: keys that hold one value per id ("roledata KEY ...", "action ID MS") are stored as KEY.ID, so
    // that a scenario can set several.
    if (key == "roledata" || key == "action") {
        const std::size_t blank = value.find(' ');
        if (blank == std::string::npos) return Fail(step, "host " + key + " takes ID VALUE");
        return host::SetData(key + "." + value.substr(0, blank), value.substr(blank + 1));
    }
    host::SetData(key, value);
}

void ScenarioRunner::StepLog(const ScenarioStep& step) {
    static const std::pair<const char*, ELogMode> MODES[] = {
        {"on", ELogMode::On}, {"off", ELogMode::Off}, {"strict", ELogMode::Strict}};
    if (step.words.size() == 2)
        for (const auto& [szName, eMode] : MODES)
            if (step.words[1] == szName) {
                m_eLog = eMode;
                return;
            }
    Fail(step, "log takes on, strict or off");
}

void ScenarioRunner::StepDestroy(const ScenarioStep& step) {
    if (step.words.size() != 1) return Fail(step, "destroy takes nothing");
    m_library.Destroy();
    m_pSim = nullptr;
    g_pAnsweringSim = nullptr;
}

void ScenarioRunner::StepShot(const ScenarioStep& step) {
    if (step.words.size() != 2) return Fail(step, "shot takes FILE");
    namespace fs = std::filesystem;
    const fs::path path = fs::path(m_options.outDir) / UnescapeValue(step.words[1]);
    std::error_code ec;
    if (path.has_parent_path()) fs::create_directories(path.parent_path(), ec);
    if (!host::WriteFramePng(path.string())) Fail(step, "cannot write " + path.string());
}

// ---- window messages -------------------------------------------------------------------------------

namespace {

// NOTE: the marked look of check-like buttons, which keep no state of their own.
constexpr const char* CHECKED_LOOK = "NewLogin_HookPic";

// Keys whose press also types a character (the window's message loop translates them).
int TypedCharOfKey(int vk) {
    return vk == VK_BACK || vk == VK_TAB || vk == VK_RETURN || vk == VK_ESCAPE ? vk : 0;
}

bool ParseKey(const std::string& word, int& vk) {
    static const std::pair<const char*, int> NAMES[] = {
        {"BACK", VK_BACK},     {"TAB", VK_TAB},      {"RETURN", VK_RETURN},   {"ENTER", VK_RETURN},
        {"ESCAPE", VK_ESCAPE}, {"SHIFT", VK_SHIFT},  {"CONTROL", VK_CONTROL}, {"END", VK_END},
        {"HOME", VK_HOME},     {"LEFT", VK_LEFT},    {"UP", VK_UP},           {"RIGHT", VK_RIGHT},
        {"DOWN", VK_DOWN},     {"DELETE", VK_DELETE}};
    for (const auto& [name, code] : NAMES)
        if (word == name) {
            vk = code;
            return true;
        }
    std::string ignored;
    const auto n = ParseStepNumber(word, 0, MAX_VIRTUAL_KEY, ignored);
    if (!n) return false;
    vk = static_cast<int>(*n);
    return true;
}

// UTF-8 to UTF-16 code units, as the window receives typed characters; bytes that are no UTF-8 pass alone.
std::vector<UINT> Utf16Units(const std::string& text) {
    std::vector<UINT> units;
    for (std::size_t i = 0; i < text.size();) {
        const unsigned char c = static_cast<unsigned char>(text[i]);
        const int nLen = c < 0x80 ? 1 : (c >> 5) == 6 ? 2 : (c >> 4) == 14 ? 3 : (c >> 3) == 30 ? 4 : 1;
        if (i + static_cast<std::size_t>(nLen) > text.size() || nLen == 1) {
            units.push_back(c);
            ++i;
            continue;
        }
        UINT cp = c & (0x7F >> nLen);
        for (int k = 1; k < nLen; ++k) cp = (cp << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        if (cp >= 0x10000) {
            cp -= 0x10000;
            units.push_back(0xD800 + (cp >> 10));
            units.push_back(0xDC00 + (cp & 0x3FF));
        } else {
            units.push_back(cp);
        }
        i += static_cast<std::size_t>(nLen);
    }
    return units;
}

} // namespace

void ScenarioRunner::SendToWindow(UINT uMsg, WPARAM wParam, LPARAM lParam, bool bPreTranslate) {
    if (bPreTranslate) {
        MSG msg{nullptr, uMsg, wParam, lParam, TimeGet(), POINT{0, 0}};
        GetCursorPos(&msg.pt);
        // NOTE: like the game client, the window procedure runs whatever PreTranslateMessage answers.
        m_pSim->PreTranslateMessage(&msg);
    }
    m_pSim->WindowProc(nullptr, uMsg, wParam, lParam);
}

void ScenarioRunner::SendMouse(UINT uMsg, int x, int y) {
    host::SetCursor(x, y);
    if (uMsg == WM_LBUTTONDOWN || uMsg == WM_LBUTTONUP) host::SetKeyDown(VK_LBUTTON, uMsg == WM_LBUTTONDOWN);
    if (uMsg == WM_RBUTTONDOWN || uMsg == WM_RBUTTONUP) host::SetKeyDown(VK_RBUTTON, uMsg == WM_RBUTTONDOWN);
    WPARAM keys = 0;
    if (GetKeyState(VK_LBUTTON) & 0x8000) keys |= MK_LBUTTON;
    if (GetKeyState(VK_RBUTTON) & 0x8000) keys |= MK_RBUTTON;
    SendToWindow(uMsg, keys, MAKELPARAM(x, y), false);
}

void ScenarioRunner::StepClick(const ScenarioStep& step) {
    constexpr const char* USAGE = "click takes DIALOG CONTROL";
    if (step.words.size() != 3) return Fail(step, USAGE);
    const auto nDialog = Number(step, 1, 0, UINT32_HIGH, USAGE);
    const auto nControl = nDialog ? Number(step, 2, 0, UINT32_HIGH, USAGE) : std::nullopt;
    if (!nControl || !RequireSimulator(step)) return;
    host::WindowState state;
    if (!host::DescribeControl(static_cast<UINT>(*nDialog), static_cast<UINT>(*nControl), state) ||
        !state.shown) {
        m_transcript.Line("! no such visible control");
        return;
    }
    // NOTE: summed in 64 bits: a host may place a window anywhere an int reaches.
    const int x = static_cast<int>((static_cast<std::int64_t>(state.rect.left) + state.rect.right) / 2);
    const int y = static_cast<int>((static_cast<std::int64_t>(state.rect.top) + state.rect.bottom) / 2);
    SendMouse(WM_LBUTTONDOWN, x, y);
    SendMouse(WM_LBUTTONUP, x, y);
}

void ScenarioRunner::StepMouse(const ScenarioStep& step) {
    const std::string usage = step.words[0] + " takes X Y";
    if (step.words.size() != 3) return Fail(step, usage);
    const auto x = Number(step, 1, COORD_LOW, COORD_HIGH, usage.c_str());
    const auto y = x ? Number(step, 2, COORD_LOW, COORD_HIGH, usage.c_str()) : std::nullopt;
    if (!y || !RequireSimulator(step)) return;
    const std::string& name = step.words[0];
    const UINT uMsg = name == "move"    ? WM_MOUSEMOVE
                      : name == "down"  ? WM_LBUTTONDOWN
                      : name == "up"    ? WM_LBUTTONUP
                      : name == "rdown" ? WM_RBUTTONDOWN
                                        : WM_RBUTTONUP;
    SendMouse(uMsg, static_cast<int>(*x), static_cast<int>(*y));
}

void ScenarioRunner::StepChar(const ScenarioStep& step) {
    if (!RequireSimulator(step)) return;
    if (step.words.size() < 2) return Fail(step, "char takes TEXT");
    for (UINT unit : Utf16Units(UnescapeValue(step.RestAfter(1)))) SendToWindow(WM_CHAR, unit, 1, true);
}

void ScenarioRunner::StepKey(const ScenarioStep& step) {
    int vk = 0;
    if (step.words.size() != 2 || !ParseKey(step.words[1], vk))
        return Fail(step, "key takes VK (a name or a number from 0 to 255)");
    if (!RequireSimulator(step)) return;
    host::SetKeyDown(vk, true);
    SendToWindow(WM_KEYDOWN, static_cast<WPARAM>(vk), 1, true);
    if (const int ch = TypedCharOfKey(vk)) SendToWindow(WM_CHAR, static_cast<WPARAM>(ch), 1, true);
    host::SetKeyDown(vk, false);
    SendToWindow(WM_KEYUP, static_cast<WPARAM>(vk), 1, true);
}

void ScenarioRunner::StepShow(const ScenarioStep& step) {
    constexpr const char* USAGE = "show takes DIALOG [CONTROL]";
    if (step.words.size() < 2 || step.words.size() > 3) return Fail(step, USAGE);
    const bool bControl = step.words.size() == 3;
    const auto nDialog = Number(step, 1, 0, UINT32_HIGH, USAGE);
    if (!nDialog) return;
    std::optional<long long> nControl = 0;
    if (bControl && !(nControl = Number(step, 2, 0, UINT32_HIGH, USAGE))) return;
    if (!RequireSimulator(step)) return;
    host::WindowState state;
    const bool bFound =
        bControl ? host::DescribeControl(static_cast<UINT>(*nDialog), static_cast<UINT>(*nControl), state)
                 : host::DescribeDialog(static_cast<UINT>(*nDialog), state);
    if (!bFound) {
        m_transcript.Line(bControl ? "! no such control" : "! no such dialog");
        return;
    }
    if (state.kind == "Button" && state.bg == CHECKED_LOOK) state.checked = true;
    const std::string name = step.words[1] + (bControl ? "." + step.words[2] : std::string());
    m_transcript.Line("= " + name + " " + state.Describe());
}

void ScenarioRunner::StepSend(const ScenarioStep& step) {
    constexpr const char* USAGE = "send takes DIALOG MSG WPARAM LPARAM";
    if (step.words.size() != 5) return Fail(step, USAGE);
    const auto nDialog = Number(step, 1, 0, UINT32_HIGH, USAGE);
    const auto uMsg = nDialog ? Number(step, 2, 0, UINT32_HIGH, USAGE) : std::nullopt;
    const auto wParam = uMsg ? Number(step, 3, 0, UINT32_HIGH, USAGE) : std::nullopt;
    const auto lParam = wParam ? Number(step, 4, INT32_LOW, INT32_HIGH, USAGE) : std::nullopt;
    if (!lParam || !RequireSimulator(step)) return;
    if (!host::SendDialogMessage(static_cast<UINT>(*nDialog), static_cast<UINT>(*uMsg),
                                 static_cast<WPARAM>(*wParam), static_cast<LPARAM>(*lParam)))
        m_transcript.Line("! no such dialog");
}

void ScenarioRunner::StepAnswer(const ScenarioStep& step) {
    if (step.words.size() < 3) return Fail(step, "answer takes COMMAND NAME [VALUE]");
    if (!RequireSimulator(step)) return;
    g_answers.push_back(SAnswer{UnescapeValue(step.words[1]), UnescapeValue(step.words[2]),
                                step.words.size() > 3 ? UnescapeValue(step.RestAfter(3)) : std::string()});
}
