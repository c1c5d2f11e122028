// The host side of our host libraries: what a game client (or a test) sets and reads around the system.
//
// Everything the system reads from the world comes from here: the virtual clock, the local calendar time, the
// client directory, the screen size, host data by key, and the sink that receives every log line.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "BaseLib.h"

namespace host {

// ---- log sink ------------------------------------------------------------------------------------

/// One line of any log: structured (INFO, WARN, ERROR), plain (MSG, DEBUG, LOCALERR, FAULT), or a
/// host-library record of an outward effect (HOST: a dialog registered, a sound played, an address opened
/// ...).
struct LogRecord {
    std::string level;
    std::string message;
    std::vector<std::pair<std::string, std::string>> keys;
    std::string file; ///< source file name of the caller, when known
    int line = 0;
};
using LogSink = std::function<void(const LogRecord&)>;

/// Replaces the sink (an empty function discards every line). Returns the previous sink.
LogSink SetLogSink(LogSink sink);
/// Hands a line to the sink.
void Emit(LogRecord record);
/// Records an outward effect of a host library: counted, and emitted as a HOST line.
void Journal(std::string_view what,
             std::initializer_list<std::pair<std::string_view, std::string>> keys = {});
/// Counts a per-frame call without a log line (Journal would flood the log).
void Count(std::string_view what);
/// How many times Journal or Count was called with this name since the last reset.
int JournalCount(std::string_view what);

// ---- environment ---------------------------------------------------------------------------------

/// The client directory that relative file names resolve against (default: the process's current directory).
void SetClientDir(const std::string& dir);
/// Advances the virtual millisecond clock behind TimeGet, timeGetTime and GetTickCount.
void AdvanceClock(DWORD ms);
void SetClock(DWORD ms);
/// Sets the local calendar time (seconds start at 0).
void SetLocalTime(const SLocalTime& t);
/// The screen (client area) size in pixels; 1024 x 768 by default.
void SetScreenSize(int nWidth, int nHeight);
void GetScreenSize(int& nWidth, int& nHeight);
/// Host data by key (language name, switches, role lists ...); see docs/HOSTDATA.md for the keys.
void SetData(const std::string& key, const std::string& value);
std::string GetData(const std::string& key, const std::string& fallback = {});
bool HasData(const std::string& key);
int GetDataInt(const std::string& key, int fallback = 0);
/// A number that changes whenever any host data is set: readers of large values parse them again only then.
std::uint64_t DataVersion();

/// The window system's input state that GetCursorPos and GetKeyState report: a host moves the cursor and
/// presses keys here before it forwards the matching window message (as the operating system would).
void SetCursor(int x, int y);
void SetKeyDown(int nVirtKey, bool bDown);

/// A value of a transcript line: backslash as \\, newline as \n, quotes and bytes outside printable ASCII as
/// \xHH.
std::string EscapeTranscriptText(std::string_view text);

/// Test-only: clock, calendar, screen, host data, journal counts and the sink back to their start values.
void ResetForTest();

} // namespace host
