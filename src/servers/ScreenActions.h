// What the music, back and exit buttons and the version label of the login-scene screens do alike.
#pragma once

#include <string>

/// The player switched the music with a screen's check box: the simulator follows and the host is told.
void ReportMusicChoice(bool bOn);
/// Back: one step back in the login chain.
void StepBack();
/// Exit: the message box asks whether to leave the game.
void AskToLeave();
/// The version label's text for a version (string 3110000 filled with it).
std::string VersionLabelText(const char* szVersion);
