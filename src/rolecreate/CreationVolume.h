// The sound rule of both creation screens: full volume while the screen shows, and on hiding the lights,
// camera, head store and sounds of the screen put away.
#pragma once

class CCreationVolume {
public:
    /// The volume a creation screen plays at.
    static constexpr int SOUND_VOLUME_SHOWN = 100;

    /// The screen was shown: the current volume is kept and the volume raised.
    void OnShown();
    /// The screen was hidden: lighting off, the camera object reset, the head configuration released, the
    /// kept volume back and every sound closed.
    void OnHidden();

private:
    int m_nSavedVolume = 0;
};
