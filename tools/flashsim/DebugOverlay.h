// The live window's debug overlay (F12): what the host set, what the library sent, the dialog stack, the
// control under the cursor and the frame's times, drawn by the host over the library's frame.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

class DebugOverlay {
public:
    static constexpr std::size_t MAX_KEPT = 20; ///< variables and commands shown
    static constexpr const char* MASK = "******";

    /// A variable the host set; the values of the password and the security tokens are kept masked.
    void NoteVariable(std::string_view name, std::string_view value);
    /// A command the library sent, as its transcript line.
    void NoteCommand(std::string_view line);
    /// The last frame's Process and Show times in microseconds.
    void NoteFrameTimes(long long processUs, long long showUs);
    /// The IME composition in progress (empty when none).
    void NoteComposition(std::string_view text) { m_composition = text; }

    /// The overlay's text lines for a cursor at (x, y): variables, commands, the dialog stack top-most first,
    /// the control under the cursor, the times.
    std::vector<std::string> Lines(int x, int y) const;
    /// Draws the lines on the current canvas over the frame.
    void Draw(int x, int y) const;

    /// Whether the value of a variable of this name is a secret (matched without regard to case).
    static bool IsSecret(std::string_view name);

private:
    std::deque<std::string> m_variables;
    std::deque<std::string> m_commands;
    std::string m_composition;
    long long m_processUs = 0;
    long long m_showUs = 0;
};
