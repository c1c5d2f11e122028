// The client-directory check: runs the screen walks on a copy of the directory and turns what the library and
// the host libraries fell back on into findings.
#include "ClientLint.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

#include "LintWalks.h"
#include "ScenarioRunner.h"
#include "ServerCfgCheck.h"
#include "hostlibs/HostCanvas.h"
#include "hostlibs/HostEnv.h"
#include "hostlibs/HostGui.h"
#include "hostlibs/HostMisses.h"
#include "text/IniDocument.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* STRING_TABLE = "ini/FlashString.ini";
constexpr const char* DEFAULT_LAYOUT = "FlashGui.ini";
constexpr const char* CLIENT_FILES = "client files";
constexpr const char* SERVER_CONFIGURATION = "server configuration";
constexpr const char* MISSING_STRING_MARK = "NOSTR ";
// Client files are small; a checker never reads more of one than this.
constexpr std::uintmax_t MAX_CHECKED_FILE_BYTES = 64u * 1024u * 1024u;

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

// The client's text files: what the library and the host libraries read.
bool IsClientTextFile(const fs::path& path) {
    std::string ext = path.extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return std::tolower(c); });
    return ext == ".ini" || ext == ".ani";
}

// The whole file, or nothing when it cannot be read.
std::optional<std::string> ReadWhole(const fs::path& path) {
    std::error_code ec;
    if (!fs::is_regular_file(path, ec)) return std::nullopt;
    const std::uintmax_t size = fs::file_size(path, ec);
    if (ec || size > MAX_CHECKED_FILE_BYTES) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!in || !in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
    return bytes;
}

// "layout FILE, line N: what" and "animation index FILE, line N: what" as file, line and what.
std::optional<LintFinding> FileLineFinding(const std::string& message, const std::string& prefix) {
    if (message.rfind(prefix, 0) != 0) return std::nullopt;
    static const std::regex FILE_LINE(R"(^(.+?), line (\d+): (.*)$)");
    std::smatch m;
    const std::string rest = message.substr(prefix.size());
    if (!std::regex_match(rest, m, FILE_LINE)) return std::nullopt;
    return LintFinding{m[1].str(), std::stoi(m[2].str()), m[3].str()};
}

// The finding a log line of the library or the host libraries stands for, when it stands for one.
std::optional<LintFinding> FindingOfLog(const std::string& level, const std::string& message,
                                        const std::string& fileKey) {
    static const std::regex INDEX_MISSING(R"(^animation index (.+) missing$)");
    static const std::regex LAYOUT_MISSING(R"(^layout (\S+) missing$)");
    static const std::regex PICTURE_BROKEN(R"(^picture (.+) cannot be decoded: (.*)$)");
    static const std::regex BOUND_AS(R"(^layout (\S+): (.*)$)");
    std::smatch m;
    if (level == "MSG") {
        if (auto f = FileLineFinding(message, "layout ")) return f;
        if (auto f = FileLineFinding(message, "animation index ")) return f;
        if (std::regex_match(message, m, INDEX_MISSING))
            return LintFinding{m[1].str(), 0, "animation file missing"};
        if (std::regex_match(message, m, LAYOUT_MISSING))
            return LintFinding{m[1].str(), 0, "layout file missing"};
        if (std::regex_match(message, m, PICTURE_BROKEN))
            return LintFinding{m[1].str(), 0, "picture cannot be decoded: " + m[2].str()};
        if (std::regex_match(message, m, BOUND_AS))
            return LintFinding{"", 0, "[" + m[1].str() + "] " + m[2].str()};
    }
    if (level == "ERROR" && message == "open file failed" && !fileKey.empty())
        return LintFinding{fileKey, 0, "cannot be opened"};
    return std::nullopt;
}

std::string ScreenName(const std::string& walk, int nLanguage) {
    return walk + " (language " + std::to_string(nLanguage) + ")";
}

} // namespace

ClientLint::ClientLint(LintOptions options) : m_options(std::move(options)) {
}

std::optional<std::string> ClientLint::UnreadableInput() const {
    std::error_code ec;
    if (!fs::is_directory(m_options.clientDir, ec)) return m_options.clientDir + ": no such directory";
    fs::recursive_directory_iterator it(m_options.clientDir, fs::directory_options::skip_permission_denied,
                                        ec);
    if (ec) return m_options.clientDir + ": cannot be listed: " + ec.message();
    for (; it != fs::recursive_directory_iterator(); it.increment(ec)) {
        if (ec) return m_options.clientDir + ": cannot be listed: " + ec.message();
        if (!IsClientTextFile(it->path())) continue;
        const std::string name = fs::relative(it->path(), m_options.clientDir, ec).generic_string();
        const auto bytes = ReadWhole(it->path());
        if (!bytes) return name + ": cannot be read";
        if (EqualNoCase(name, STRING_TABLE) && bytes->find('\0') != std::string::npos)
            return name + ": binary, not a string table (a NUL byte)";
    }
    return std::nullopt;
}

std::vector<int> ClientLint::Languages() const {
    std::vector<int> languages{0};
    // Language indices from 1 to 99: the layout file the library names for each.
    static const std::regex LANGUAGE_LAYOUT(R"(^flashgui_([1-9][0-9]?)\.ini$)", std::regex::icase);
    std::error_code ec;
    for (const auto& entry : fs::directory_iterator(m_options.clientDir, ec)) {
        std::smatch m;
        const std::string name = entry.path().filename().string();
        if (std::regex_match(name, m, LANGUAGE_LAYOUT)) languages.push_back(std::stoi(m[1].str()));
    }
    std::sort(languages.begin(), languages.end());
    return languages;
}

std::string ClientLint::LayoutFile(int nLanguage) const {
    if (nLanguage < 1) return DEFAULT_LAYOUT;
    return "FlashGui_" + std::to_string(nLanguage) + ".ini";
}

void ClientLint::Add(const std::string& screen, LintFinding finding) {
    const std::string line = finding.ToString();
    if (!m_seen.insert(line).second) return;
    if (!m_findings.count(screen)) m_screenOrder.push_back(screen);
    m_findings[screen].push_back(line);
}

void ClientLint::CheckRequiredFiles() {
    host::SetClientDir(m_options.clientDir);
    for (const char* szFile : {DEFAULT_LAYOUT, STRING_TABLE, ServerCfgCheck::FILE_NAME})
        if (!txt::IniDocument::ReadClientFile(szFile, 1))
            Add(CLIENT_FILES, LintFinding{szFile, 0, "missing"});
}

void ClientLint::CheckServerCfg() {
    host::SetClientDir(m_options.clientDir);
    const auto ini = txt::IniDocument::Load(ServerCfgCheck::FILE_NAME, txt::PROFILE_RULES);
    if (!ini) return; // reported with the client files
    for (LintFinding& finding : ServerCfgCheck::Check(*ini)) Add(SERVER_CONFIGURATION, std::move(finding));
}

void ClientLint::CollectMissingStrings(const std::string& screen) {
    static const std::regex MISSING_ID(R"(NOSTR (-?[0-9]+))");
    const auto report = [&](const std::string& text, const std::string& place) {
        for (auto it = std::sregex_iterator(text.begin(), text.end(), MISSING_ID);
             it != std::sregex_iterator(); ++it)
            Add(screen,
                LintFinding{STRING_TABLE, 0, "string " + (*it)[1].str() + " missing (" + place + ")"});
    };
    for (UINT nDialog : host::ListDialogs()) {
        host::WindowState state;
        if (host::DescribeDialog(nDialog, state) && state.text.find(MISSING_STRING_MARK) != std::string::npos)
            report(state.text, "dialog " + std::to_string(nDialog));
        for (UINT nControl : host::ListControls(nDialog))
            if (host::DescribeControl(nDialog, nControl, state) &&
                state.text.find(MISSING_STRING_MARK) != std::string::npos)
                report(state.text, "control " + std::to_string(nDialog) + "." + std::to_string(nControl));
    }
    for (const host::DrawOp& op : host::GetRecordedOps())
        if (op.kind == "text" && op.text.find(MISSING_STRING_MARK) != std::string::npos)
            report(op.text, "drawn at " + std::to_string(op.x) + "," + std::to_string(op.y));
}

void ClientLint::Collect(const std::string& screen, int nLanguage) {
    for (const host::ResourceMiss& miss : host::TakeMisses()) {
        if (miss.kind == "dialog-layout" || miss.kind == "control-layout") {
            static const std::regex SECTION(R"(^Dialog([0-9]+)(?:\.([0-9]+))?$)");
            std::smatch m;
            if (std::regex_match(miss.name, m, SECTION))
                m_layoutMisses.push_back(
                    SLayoutMiss{miss.name, static_cast<UINT>(std::stoul(m[1].str())),
                                m[2].matched ? static_cast<UINT>(std::stoul(m[2].str())) : 0});
        } else if (miss.kind == "animation")
            Add(screen, LintFinding{miss.where, 0, "no animation title " + miss.name});
        else if (miss.kind == "picture")
            Add(screen, LintFinding{miss.name, 0, "picture missing"});
    }
    std::vector<SLogLine> lines;
    {
        std::lock_guard lock(m_logMutex);
        lines.swap(m_pendingLog);
    }
    for (const SLogLine& line : lines)
        if (auto finding = FindingOfLog(line.level, line.message, line.fileKey)) {
            if (finding->file.empty()) finding->file = LayoutFile(nLanguage);
            Add(screen, std::move(*finding));
        }
    ReportShownLayoutMisses(screen, nLanguage);
    CollectMissingStrings(screen);
}

void ClientLint::ReportShownLayoutMisses(const std::string& screen, int nLanguage) {
    std::erase_if(m_layoutMisses, [&](const SLayoutMiss& miss) {
        host::WindowState state;
        const bool bFound = miss.nControl ? host::DescribeControl(miss.nDialog, miss.nControl, state)
                                          : host::DescribeDialog(miss.nDialog, state);
        if (!bFound || !state.shown) return false;
        Add(screen, LintFinding{LayoutFile(nLanguage), 0, "no layout record [" + miss.section + "]"});
        return true;
    });
}

bool ClientLint::WalkScreens(ScenarioRunner& runner, int nLanguage) {
    int nLine = 0;
    for (const LintWalk& walk : LintWalks()) {
        const std::string screen = ScreenName(walk.name, nLanguage);
        std::string steps = "host language " + m_options.languageName + "\n" + walk.steps;
        for (std::size_t pos = 0; (pos = steps.find("LANG", pos)) != std::string::npos;)
            steps.replace(pos, 4, std::to_string(nLanguage));
        std::size_t start = 0;
        while (start < steps.size()) {
            const std::size_t end = std::min(steps.find('\n', start), steps.size());
            if (auto step = ParseStepLine(steps.substr(start, end - start), ++nLine)) {
                runner.Step(*step);
                Collect(screen, nLanguage);
            }
            start = end + 1;
        }
        m_layoutMisses.clear(); // the walk destroyed its windows
    }
    return !runner.Failed();
}

int ClientLint::Run(std::FILE* out) {
    if (const auto why = UnreadableInput()) {
        std::fprintf(stderr, "flashsim lint: %s\n", why->c_str());
        return EXIT_UNREADABLE;
    }
    CheckRequiredFiles();
    Transcript transcript(false);
    RunOptions runOptions;
    runOptions.scenarioPath = (fs::path(m_options.clientDir) / "lint").string();
    runOptions.libraryPath = m_options.libraryPath;
    runOptions.resDir = m_options.clientDir;
    bool bWalked = true;
    {
        ScenarioRunner runner(runOptions, transcript);
        // Texts are searched in the recorded frame; files the library writes go to a copy of the directory.
        host::UseCanvas(host::CanvasKind::Recording);
        host::SetLogSink([this](const host::LogRecord& record) {
            std::string fileKey;
            for (const auto& [key, value] : record.keys)
                if (key == "file_name") fileKey = value;
            std::lock_guard lock(m_logMutex);
            m_pendingLog.push_back(SLogLine{record.level, record.message, fileKey});
        });
        host::NoteMisses(true);
        if (!runner.Start()) {
            std::fprintf(stderr, "flashsim lint: %s\n", transcript.Text().c_str());
            return EXIT_UNREADABLE;
        }
        if (auto scratch = ParseStepLine("scratch", 0)) runner.Step(*scratch);
        for (int nLanguage : Languages()) bWalked = WalkScreens(runner, nLanguage) && bWalked;
        host::NoteMisses(false);
    }
    CheckServerCfg();
    if (!bWalked) std::fprintf(stderr, "flashsim lint: a screen walk failed:\n%s", transcript.Text().c_str());
    std::size_t nCount = 0;
    for (const std::string& screen : m_screenOrder) {
        std::fprintf(out, "== %s\n", screen.c_str());
        for (const std::string& line : m_findings[screen]) std::fprintf(out, "%s\n", line.c_str());
        nCount += m_findings[screen].size();
    }
    // The count goes with the messages, so that standard output holds only groups and findings.
    if (nCount > 0) std::fprintf(stderr, "flashsim lint: %zu finding%s\n", nCount, nCount == 1 ? "" : "s");
    return nCount > 0 ? EXIT_FINDINGS : EXIT_CLEAN;
}
