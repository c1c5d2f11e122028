// The animated 3D figure of character creation on its ground effect, filmed by the camera object of the sex;
// one class for the standard creation dialog and the English preview dialog.
#pragma once

#include <cstdint>

#include "platform/GameBase.h"
#include "platform/Role.h"

class CRolePreview {
public:
    /// Which professions a layout builds and whether its figure is the player's own.
    struct SOptions {
        bool bBuildsSword = false; ///< profession 100 (English layout only)
        bool bHeroSelf = false;    ///< CRole::SetHeroSelf(1) after each build (standard layout)
        bool bMapCall = false;     ///< the map library is asked before the figure is drawn (English layout)
    };
    enum EState : std::int32_t {
        STATE_NOT_STARTED = 0,
        STATE_SHOWING = 1, ///< show action playing
        STATE_FREE = 2,
        STATE_LEAVING = 3, ///< leave action playing; the new figure is built when it ends
    };
    static constexpr std::int32_t CAMERA_MALE = 11;
    static constexpr std::int32_t CAMERA_FEMALE = 12;
    static constexpr double CAMERA_FRAME_MS = 33.0;
    static constexpr const char* GROUND_EFFECT = "create_role_ground";

    explicit CRolePreview(SOptions options);

    /// Profession 100, sex 1, scale 100, camera start 0.
    void Reset();
    /// The ground: cleared, not oblique, "create_role_ground", scale 1.
    void InitGround();
    /// Applies a profession and sex: the camera restarts on a sex change unless forced; a change while the
    /// figure is idle first plays the leave action. Returns whether anything changed.
    bool SetProfessionAndSex(std::int32_t nProfession, std::int32_t nSex, bool bForced);
    /// The English preview's single changes: nothing when the value is the current one.
    void SetProfession(std::int32_t nProfession);
    void SetSex(std::int32_t nSex);
    /// Builds the figure of the current choice and plays the show action (English initialisation).
    void BuildAndShow();
    /// Plays an action on the current figure from its start (the English action buttons).
    void PlayAction(int nAction);
    /// The per-frame camera, ground and figure; the camera is back at the screen centre afterwards.
    void Show();
    /// The camera object back to 0 (the creation screen closes).
    static void ResetCamera();

    std::int32_t GetProfession() const { return m_nProfession; }
    std::int32_t GetSex() const { return m_nSex; }
    std::int32_t GetScalePercent() const { return m_nScalePercent; }
    std::int32_t GetCameraObj() const { return m_nCameraObj; }
    DWORD GetCameraStart() const { return m_dwCameraStart; }
    std::int32_t GetState() const { return m_nPreviewState; }
    /// The camera frame at a time: (now - start) / 33.0 + 0.5, truncated.
    static int CameraFrameAt(DWORD dwStart, DWORD dwNow);

private:
    /// Whether this layout builds a figure for the profession and sex.
    bool Builds(std::int32_t nProfession, std::int32_t nSex) const;
    /// Builds the figure of (profession, sex) when it has a record; the old figure stays otherwise.
    void Build();
    void Play(int nAction);
    /// Leave first when idle and not forced; else rebuild at once and show.
    void Replace(bool bForced);
    /// Tracks the figure's action and chooses what to draw; returns false in state 0.
    bool ChooseDrawn(int& nAction, int& nFrame, bool& bRebuild);
    void DrawFigure(int nAction, int nFrame);

    SOptions m_options;
    CRole m_role;
    CMyGame3DEffectEx m_ground{false};
    std::int32_t m_nProfession = 100;
    std::int32_t m_nSex = 1;
    std::int32_t m_nScalePercent = 100;
    std::int32_t m_nCameraObj = CAMERA_MALE;
    DWORD m_dwCameraStart = 0;
    std::int32_t m_nPreviewState = STATE_NOT_STARTED;
    std::int32_t m_nLastAction = 0;
    std::int32_t m_nLastFrame = 0;
    std::int32_t m_nPrevAction = 0;
    std::int32_t m_nPrevFrame = 0;
};
