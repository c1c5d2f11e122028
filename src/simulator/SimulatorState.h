// The values the host and the screens set on the simulator, kept apart from its operations so that the
// variable protocol and the scene driver share one record.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "flashsim/IFlashSimulator.h"
#include "platform/ZrString.h"
#include "resources/ServerTypes.h"
#include "screen/ScreenContext.h"

struct SSimulatorState {
    bool m_bCreated = false;
    FlashCallBack m_pfnCallBack = nullptr;
    FlashCallBack m_pfnCallBackEx = nullptr;
    ESceneType m_eSceneType = EST_LOGIN;
    std::int32_t m_nLanguage = 0;

    // Selection and the login chain (group and server 0-based).
    std::int32_t m_nModel = 0;
    std::int32_t m_nGroup = -1;
    std::int32_t m_nServer = -1;
    std::int32_t m_nLoginStep = LOGIN_STEP_START;
    std::vector<SQuickEntry> m_vecQuickEntry;
    std::vector<CZrString> m_vecRecAccount;
    std::string m_strVersion;
    bool m_bMusicOn = false;
    bool m_bRegisterOpen = false;
    bool m_bTokenEnabled = true;
    bool m_bDarkKnight = false;
    std::int32_t m_nMainPathWidth = 0;
    std::int32_t m_nMainPathHeight = 0;

    // Host switches and creation parameters.
    bool m_bClassicTokenOnly = false;
    bool m_bPlatformModeA = false;
    bool m_bPlatformModeB = false;
    bool m_bNameChecked = false;
    bool m_bRoleReady = false;
    bool m_bNameSuggest = false;
    bool m_bSceneSelectOption = false;
    std::int32_t m_nProfession = 0;
    std::int32_t m_nModelFace = 0;
    std::int32_t m_nLookParity = 0;
    std::int32_t m_nBaseInfoIndex = 0;
    std::int32_t m_nLoginOption = 0;
    std::int32_t m_nNewServer = 0;
    std::int32_t m_nSwitchA = 0;
    std::int32_t m_nSwitchB = 0;
    std::int32_t m_nForcedType = 0;
    std::int32_t m_nExtra1 = 0;
    std::int32_t m_nExtra2 = 0;
    SCreateRoleParam m_createRoleParam; ///< the same facts as stored, as the creation screens read them
    bool m_bSelSet = false;
    std::int32_t m_nSelFirst = 0;
    std::int32_t m_nSelSecond = 0;
    std::int32_t m_nPlayerListArg = 1;
};
