// The game base library's GUI effects: named effects that a window plays over or under itself.
//
// An effect is drawn as the animation of the same title in the effect index "ani/Gui3DEffect.ani", centred in
// the effect object's show rectangle moved to the point given to Show; an effect without an animation is
// drawn as a thin outline of that rectangle, so that screenshots show where it plays.
#pragma once

#include "BaseLib.h"

/// The effect index file.
inline constexpr const char* GUI_EFFECT_ANI_FILE = "ani/Gui3DEffect.ani";

/// A set of named effects. Created by GameCreateGui3DEffect; owned by the window that created it, which ends
/// it with Release().
class CGui3DEffect {
public:
    /// Play count for EverPlay: loop for ever.
    static constexpr int PLAY_FOREVER = -1;

    /// Adds the effect szName (no effect when it is already present or the name is empty), starting at the
    /// host clock's time; it plays nPlayCount times (at least once). nReserved is the client's layer
    /// argument, unused. Returns whether the effect is present afterwards.
    virtual bool Add(const char* szName, int nPlayCount = 1, int nReserved = 1) = 0;
    /// Removes the effect szName; returns whether it was present.
    virtual bool Delete(const char* szName) = 0;
    /// Removes every effect.
    virtual void Clear() = 0;
    /// Whether the effect szName is present (played out or not; only Delete and Clear remove effects).
    virtual bool TestEffect(const char* szName) const = 0;
    /// Sets the play count of every present effect (PLAY_FOREVER: loop).
    virtual void EverPlay(int nPlayCount) = 0;
    /// The rectangle the effects play in; its size is kept, its position is replaced by the point given to
    /// Show.
    virtual void SetShowRect(const RECT& rc) = 0;
    virtual RECT GetShowRect() const = 0;
    /// Draws every effect that is still playing with the show rectangle's top-left corner at (x, y).
    virtual void Show(int x, int y) = 0;
    /// Number of effects present.
    virtual int GetAmount() const = 0;
    /// Ends the object; the pointer is invalid afterwards.
    virtual void Release() = 0;

protected:
    virtual ~CGui3DEffect() = default;
};

/// A new, empty effect object owned by the caller (Release). Never null.
CGui3DEffect* GameCreateGui3DEffect();
