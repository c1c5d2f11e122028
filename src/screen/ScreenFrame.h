// The decorations the login-scene screens share: music check, back, exit, version label, logo and panels,
// bound, handled and kept current with the host's music and version in one place.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "controls/SimButton.h"
#include "controls/SimCheck.h"
#include "controls/SimDialog.h"
#include "controls/SimStatic.h"
#include "screen/ScreenContext.h"

/// Control ids of a screen's decorations; 0 where the screen has no such control.
struct SScreenFrameIds {
    static constexpr std::size_t MAX_PANELS = 4;

    UINT nSound = 0;
    UINT nBack = 0;
    UINT nExit = 0;
    UINT nVersion = 0;
    UINT nLogo = 0;
    std::array<UINT, MAX_PANELS> panels{};
};

class CScreenFrame final : public IScreenListener {
public:
    static constexpr std::uint32_t STR_VERSION_FORMAT = 3110000;

    CScreenFrame(CSimDialog& owner, const SScreenFrameIds& ids);
    ~CScreenFrame();
    CScreenFrame(const CScreenFrame&) = delete;
    CScreenFrame& operator=(const CScreenFrame&) = delete;

    /// From the owner's DoDataExchange.
    void Bind(LuGui::CDataExchange* pDX);
    /// From the owner's MessageMap: the music, back and exit handlers.
    void MapHandlers();
    /// From the owner's OnInitDialog: the music check and version label from the simulator, and from then on
    /// the host's changes while the owner is visible.
    void OnOpen();
    /// Back and exit.
    void EnableNavigation(bool bEnable);
    /// While the test answers true, the music, back and exit handlers do nothing.
    void SetLockedTest(std::function<bool()> isLocked) { m_isLocked = std::move(isLocked); }
    /// Runs before the back step (e.g. to close a screen the owner opened).
    void SetBeforeBack(std::function<void()> beforeBack) { m_beforeBack = std::move(beforeBack); }
    /// String 3110000 filled with the version; nothing when there is no version.
    void SetVersionText(const char* szVersion);
    /// How a screen fills string 3110000 with the version; null restores VersionLabelText.
    using VersionFormatter = std::string (*)(IScreenContext& context, const char* szVersion);
    void SetVersionFormatter(VersionFormatter pfnFormat) {
        m_pfnVersionText = pfnFormat ? pfnFormat : &VersionLabelText;
    }

    const CSimCheck& GetMusicCheck() const { return m_chkSound; }
    /// For screens whose own layouts move or hide the back and exit buttons.
    CSimButton& GetBackButton() { return m_btnBack; }
    CSimButton& GetExitButton() { return m_btnExit; }
    const CSimStatic& GetVersionLabel() const { return m_staVersion; }

    /// The version label's text for a version.
    static std::string VersionLabelText(IScreenContext& context, const char* szVersion);

private:
    void OnSound();
    void OnBack();
    void OnExit();
    bool IsLocked() const { return m_isLocked && m_isLocked(); }

    void OnMusicChanged(bool bOn) override;
    void OnVersionChanged(const char* szVersion) override;

    CSimDialog& m_owner;
    SScreenFrameIds m_ids;
    IScreenContext* m_pSubscribedTo = nullptr;
    std::function<bool()> m_isLocked;
    std::function<void()> m_beforeBack;
    VersionFormatter m_pfnVersionText = &VersionLabelText;

    CSimCheck m_chkSound;
    CSimButton m_btnBack;
    CSimButton m_btnExit;
    CSimStatic m_staVersion;
    CSimStatic m_staLogo;
    std::array<CSimStatic, SScreenFrameIds::MAX_PANELS> m_staPanels;
};
