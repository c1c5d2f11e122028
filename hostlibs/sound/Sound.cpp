// Our sound library: plays nothing, records every request so that tests and the reference host can see it.
#include <string>

#include "Sound.h"
#include "hostlibs/HostEnv.h"

class ISound {};

namespace {
// One sound object stands for every playing effect; nothing is ever mixed on this platform.
ISound g_playingSound;

bool EndsWith(const std::string& s, const char* suffix) {
    const std::string t(suffix);
    return s.size() >= t.size() && s.compare(s.size() - t.size(), t.size(), t) == 0;
}
} // namespace

bool TestSoundFormat(const char* szName) {
    if (!szName) return false;
    const std::string name(szName);
    return EndsWith(name, ".wav") || EndsWith(name, ".ogg") || EndsWith(name, ".mp3");
}

ISound* DXPlaySound(const char* szName, std::int32_t, std::int32_t, std::int32_t, std::int32_t, const char*,
                    bool) {
    host::Journal("sound.play", {{"name", szName ? szName : ""}});
    return host::GetDataInt("sound.fail", 0) ? nullptr : &g_playingSound;
}

bool DXPlayMedia(const char* szName, int nRepeat, const char*, bool) {
    host::Journal("sound.media", {{"name", szName ? szName : ""}, {"repeat", std::to_string(nRepeat)}});
    return true;
}

void DXSetMusicVolume(int nVolume, const char* szSettingName) {
    host::Journal("sound.volume",
                  {{"setting", szSettingName ? szSettingName : ""}, {"volume", std::to_string(nVolume)}});
}

void ProcressSound() {
    host::Count("sound.process");
}

namespace {
constexpr int DEFAULT_SOUND_VOLUME = 60;
}

int DXGetSoundVolume() {
    return host::GetDataInt("volume", DEFAULT_SOUND_VOLUME);
}

void DXSetSoundVolume(int nVolume, const char* szSettingName) {
    host::SetData("volume", std::to_string(nVolume));
    host::Journal("sound.effectvolume",
                  {{"setting", szSettingName ? szSettingName : ""}, {"volume", std::to_string(nVolume)}});
}

void DXCloseAllSound(const char* szReason) {
    host::Journal("sound.closeall", {{"reason", szReason ? szReason : ""}});
}
