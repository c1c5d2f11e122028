// The sound library's operations used by the system: sound-format test, effect and music playback, volume.
#pragma once

#include <cstdint>

#include "BaseLib.h"

/// A playing sound, owned by the sound library.
class ISound;

/// Whether the sound library can play a file of this name itself.
bool TestSoundFormat(const char* szName);
/// Plays a sound effect; returns the sound, or null when nothing plays.
ISound* DXPlaySound(const char* szName, std::int32_t n1, std::int32_t n2, std::int32_t n3, std::int32_t n4,
                    const char* szName2, bool bFlag);
/// Plays a music track nRepeat times (-1: endlessly); returns whether it started.
bool DXPlayMedia(const char* szName, int nRepeat, const char* szName2, bool bFlag);
/// Sets the music volume (0 to 100) under a setting name.
void DXSetMusicVolume(int nVolume, const char* szSettingName);
/// Advances the sound library by one frame.
void ProcressSound();
/// The sound-effect volume (0 to 100).
int DXGetSoundVolume();
/// Sets the sound-effect volume under a setting name.
void DXSetSoundVolume(int nVolume, const char* szSettingName);
/// Stops every playing sound; szReason names the caller's step.
void DXCloseAllSound(const char* szReason);
