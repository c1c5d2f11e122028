// The live window's debug overlay: kept lines and their drawing over the frame.
#include "DebugOverlay.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>

#include "Graphics.h"
#include "hostlibs/HostEnv.h"
#include "hostlibs/HostGui.h"

namespace {

// NOTE: the password and every security token or code the host hands over; their values never reach a screen.
constexpr std::array<std::string_view, 4> SECRET_VARIABLES = {
    "VAR_LOGINPASS", "VAR_LOGINHELMSAFE", "VAR_LOGINHELMSAFE_WEIXIN", "VAR_LOGINHELMSAFE_WARD"};
constexpr int FONT_SIZE = 12;
constexpr int LINE_HEIGHT = 14;
constexpr int MARGIN = 6;
constexpr int PANEL_WIDTH = 460;
constexpr DWORD PANEL_COLOUR = 0xC0101018;
constexpr DWORD TEXT_COLOUR = 0xFFE8E8E8;
constexpr DWORD HEADING_COLOUR = 0xFFFFD24A;
constexpr DWORD HOVER_COLOUR = 0xFFFF40FF;
// Longer lines are cut: the panel is for reading at a glance.
constexpr std::size_t MAX_LINE_BYTES = 72;

bool EqualNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

void Keep(std::deque<std::string>& lines, std::string line) {
    lines.push_back(std::move(line));
    while (lines.size() > DebugOverlay::MAX_KEPT) lines.pop_front();
}

std::string RectText(const RECT& rc) {
    return std::to_string(rc.left) + "," + std::to_string(rc.top) + " " + std::to_string(rc.right - rc.left) +
           "x" + std::to_string(rc.bottom - rc.top);
}

std::string Micros(long long us) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f ms", static_cast<double>(us) / 1000.0);
    return text;
}

bool IsHeading(const std::string& line) {
    return !line.empty() && line.back() == ':';
}

// Cuts a line at a character boundary.
std::string Cut(const std::string& line) {
    if (line.size() <= MAX_LINE_BYTES) return line;
    std::size_t end = MAX_LINE_BYTES;
    while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0) == 0x80) --end;
    return line.substr(0, end) + "...";
}

} // namespace

bool DebugOverlay::IsSecret(std::string_view name) {
    return std::any_of(SECRET_VARIABLES.begin(), SECRET_VARIABLES.end(),
                       [&](std::string_view secret) { return EqualNoCase(name, secret); });
}

void DebugOverlay::NoteVariable(std::string_view name, std::string_view value) {
    Keep(m_variables, std::string(name) + " = " + (IsSecret(name) ? std::string(MASK) : std::string(value)));
}

void DebugOverlay::NoteCommand(std::string_view line) {
    Keep(m_commands, std::string(line));
}

void DebugOverlay::NoteFrameTimes(long long processUs, long long showUs) {
    m_processUs = processUs;
    m_showUs = showUs;
}

std::vector<std::string> DebugOverlay::Lines(int x, int y) const {
    std::vector<std::string> lines{"variables set (last " + std::to_string(MAX_KEPT) + "):"};
    for (auto it = m_variables.rbegin(); it != m_variables.rend(); ++it) lines.push_back("  " + *it);
    lines.push_back("commands sent (last " + std::to_string(MAX_KEPT) + "):");
    for (auto it = m_commands.rbegin(); it != m_commands.rend(); ++it) lines.push_back("  " + *it);
    lines.push_back("dialogs (top-most first):");
    for (UINT nDialog : host::ListDialogs()) {
        host::WindowState state;
        if (host::DescribeDialog(nDialog, state) && state.shown)
            lines.push_back("  " + std::to_string(nDialog) + " " + RectText(state.rect));
    }
    lines.push_back("under the cursor " + std::to_string(x) + "," + std::to_string(y) + ":");
    UINT nDialog = 0, nControl = 0;
    host::WindowState state;
    if (!host::WindowAt(x, y, nDialog, nControl))
        lines.push_back("  nothing");
    else if (nControl == 0 && host::DescribeDialog(nDialog, state))
        lines.push_back("  dialog " + std::to_string(nDialog) + " " + RectText(state.rect));
    else if (host::DescribeControl(nDialog, nControl, state))
        lines.push_back("  " + std::to_string(nDialog) + "." + std::to_string(nControl) + " " + state.kind +
                        " " + RectText(state.rect));
    if (!m_composition.empty()) lines.push_back("composing: " + m_composition);
    lines.push_back("Process " + Micros(m_processUs) + "  Show " + Micros(m_showUs));
    return lines;
}

void DebugOverlay::Draw(int x, int y) const {
    const std::vector<std::string> lines = Lines(x, y);
    CMyBitmap::SetClipRect(nullptr); // the frame may end with a control's clip
    // The panel keeps to the right edge: the screens' own controls start at the left.
    int nScreenWidth = 0, nScreenHeight = 0;
    host::GetScreenSize(nScreenWidth, nScreenHeight);
    const int nLeft = std::max(0, nScreenWidth - PANEL_WIDTH);
    const int nHeight = static_cast<int>(lines.size()) * LINE_HEIGHT + 2 * MARGIN;
    CMyBitmap::ShowBlock(RECT{nLeft, 0, nLeft + PANEL_WIDTH, nHeight}, PANEL_COLOUR);
    int nTop = MARGIN;
    for (const std::string& line : lines) {
        CMyBitmap::ShowString(nLeft + MARGIN, nTop, IsHeading(line) ? HEADING_COLOUR : TEXT_COLOUR,
                              Cut(line).c_str(), nullptr, FONT_SIZE);
        nTop += LINE_HEIGHT;
    }
    // The control under the cursor is outlined where it is.
    UINT nDialog = 0, nControl = 0;
    host::WindowState state;
    if (host::WindowAt(x, y, nDialog, nControl) &&
        (nControl ? host::DescribeControl(nDialog, nControl, state) : host::DescribeDialog(nDialog, state)))
        CMyBitmap::ShowRect(state.rect, HOVER_COLOUR);
}
