// The animation library: animations (titled sequences of frames) read from animation index files by file and
// title.
//
// An animation file such as "ani/Control.ani" is resolved below the client directory, without regard to the
// case of its path. The library owns every animation and caches the parsed files; callers borrow an animation
// for one draw and Release() it afterwards (never keep the pointer past the frame). Missing files or titles
// give null.
#pragma once

#include "BaseLib.h"

/// One animation: its frames and how to draw them. Owned by the animation library.
class CMyAni {
public:
    /// Number of frames (at least 1 for every animation the library hands out).
    virtual int GetFrameAmount() const = 0;
    /// Natural size of frame nFrame (0 x 0 for an unknown frame or a frame whose picture is missing).
    virtual SIZE GetSize(int nFrame = 0) const = 0;
    /// Milliseconds per frame when the animation plays by itself (FrameByTime).
    virtual int GetInterval() const = 0;
    /// The frame that plays at the host clock's time (TimeGet), looping.
    virtual int FrameByTime() const = 0;
    /// Draws frame nFrame with its top-left corner at (x, y), scaled by fScaleX and fScaleY (1.0 natural),
    /// with the opacity nAlpha (0..255). Returns false when nothing could be drawn (unknown frame, missing
    /// picture).
    virtual bool Show(int nFrame, int x, int y, float fScaleX = 1.0f, float fScaleY = 1.0f,
                      int nAlpha = 255) = 0;
    /// Draws frame nFrame stretched over rcDest (right and bottom excluded).
    virtual bool ShowStretch(int nFrame, const RECT& rcDest, int nAlpha = 255) = 0;
    /// Ends the borrow; the pointer must not be used afterwards.
    virtual void Release() = 0;

    /// The index file and title this animation came from.
    virtual const char* GetFile() const = 0;
    virtual const char* GetTitle() const = 0;

protected:
    virtual ~CMyAni() = default;
};

/// The animation manager of the animation library.
class IMyAniMgr {
public:
    /// The animation titled szTitle in the animation file szFile; null when the file or the title does not
    /// exist.
    virtual CMyAni* QueryAni(const char* szFile, const char* szTitle) = 0;
    /// Whether szFile has the title (reads the file through the cache).
    virtual bool HasAni(const char* szFile, const char* szTitle) = 0;

protected:
    virtual ~IMyAniMgr() = default;
};

/// The process-wide animation manager (never null).
IMyAniMgr* QueryMyAniMgr();
