// The role library's 3D figure (CRole) and the host shell notification the creation screens use.
#pragma once

#include <memory>

#include "BaseLib.h"

/// Action ids of a figure that the creation preview plays.
enum ERoleAction : int {
    ROLE_ACTION_NONE = 0,
    ROLE_ACTION_SHOW = 98,  ///< played when a profession or sex has just been applied
    ROLE_ACTION_LEAVE = 99, ///< played before a figure is replaced
    ROLE_ACTION_IDLE = 100, ///< played right after the figure is built; loops
};

/// A 3D figure. The role library owns its look and body; the caller asks it to play, process and draw.
class CRole {
public:
    CRole();
    ~CRole();
    CRole(const CRole&) = delete;
    CRole& operator=(const CRole&) = delete;

    /// Builds the figure of a look; its body exists afterwards. Returns whether it was built.
    bool Create(int nLook, int nKind, bool bFlag, int nReserved);
    /// Marks the figure as the player's own.
    void SetHeroSelf(int nSelf);
    /// Forgets the figure's action bookkeeping (what was playing and its frame).
    void ResetActionData(bool bKeepAction, bool bKeepFrame);
    /// Plays an action from its first frame; the remaining arguments are the library's play options.
    void PlayAction(int nAction, int nLoop, int n2, int n3, int n4, int n5, int n6, int n7, int n8, int n9);
    /// Advances the figure's animation to the library clock (an ended action falls back to idle).
    void Process(int nReserved);
    /// The action playing now, 0 when the figure has none.
    int GetCurAction() const;
    /// The frame of the action playing now.
    int GetFrameIndex() const;

    // ---- the body (the figure's drawable part; none before Create) --------------------------------
    bool HasBody() const;
    void SetBodyPart(int nPart, int nValue);
    /// Placement: position, direction and scale.
    void PlaceBody(int x, int y, int z, int nDir, double dScale);
    /// The action and frame the body shows when drawn; the other arguments are the library's draw options.
    void SetBodyAction(int nAction, int n1, int n2, int n3, int n4, int n5, int n6);
    void SetBodyLight(int nMode, double dX, double dY, double dZ, double dA, double dR, double dG, double dB);
    /// Draws the body with the graphics library's 3D camera.
    void DrawBody(int x, int y);

    struct SImpl;

private:
    std::unique_ptr<SImpl> m_pImpl;
};

/// Asks the host shell to act on a message (6754: open the nationality choice); pData may be null.
void NotifyMyShell(int nMsg, int nParam, void* pData, int nSize);
