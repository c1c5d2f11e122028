// The host API of the pre-game front end: the interface the game client drives and the two exported
// functions.
//
// Ownership: the simulator object belongs to the library. The host obtains it with FlashSimulatorQuery and
// ends it with FlashSimulatorDestroy (never `delete`). Texts passed in are copied before the call returns;
// texts returned stay valid as each operation states. No operation throws.
#pragma once

#include <cstdint>

#include "flashsim/Win32Types.h"

/// A host function receiving one command: its name and its argument text (both 8-bit, zero-terminated, never
/// null). Its result is ignored.
typedef void (*FlashCallBack)(const char* szCommand, const char* szArgument);

/// The two scenes of the front end.
enum ESceneType : std::int32_t {
    EST_LOGIN = 0,       ///< login, edition, group and server selection
    EST_ROLE_CREATE = 1, ///< character creation
};

/// The front end as the host sees it. Operations are listed in slot order; all run on the host's thread.
class IFlashSimulator {
public:
    /// 0. Initialises once: layout file, strings, server configuration, dialogs (when bRegister). Later calls
    /// do nothing.
    virtual void Create(std::uint64_t hHost, std::uint32_t nHostValue, std::int32_t nLanguage,
                        bool bRegister) = 0;
    /// 1. Installs the primary command callback; ignored before Create.
    virtual void SetCallBack(FlashCallBack pfn) = 0;
    /// 2. Installs the secondary command callback, at any time.
    virtual void SetCallBackEx(FlashCallBack pfn) = 0;
    /// 3. Sets a named variable (names compared without regard to case; each acts only in its own scene).
    virtual void SetVariable(const char* szName, const char* szValue) = 0;
    /// 4. Shows the message box with the text of string id nStrId.
    virtual void ShowMessage(std::uint32_t nStrId) = 0;
    /// 5. Reads a named variable; the text stays valid until the next GetVariable. Null when the name has no
    /// value.
    virtual const char* GetVariable(const char* szName) = 0;
    /// 6. First per-frame call: widget processing, hover tips, sound.
    virtual void Process() = 0;
    /// 7. Second per-frame call: drawing.
    virtual void Show() = 0;
    /// 8. Forwards a window message to the dialog manager; returns its result (0 without a manager).
    virtual LRESULT WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
    /// 9. Returns 1 while the web register dialog is hidden, else that dialog's answer for the message.
    virtual std::int32_t PreTranslateMessage(MSG* pMsg) = 0;
    /// 10. Whether the web register dialog is visible.
    virtual bool IsWebRegisterVisible() = 0;
    /// 11. Stores the scene (an ESceneType value) without any other effect.
    virtual void SetSceneType(std::int32_t eScene) = 0;
    /// 12. Text of a string id; valid until the next string reload. Never null.
    virtual const char* GetStr(std::uint32_t nId) = 0;
    /// 13. Text of a string id read as a decimal number (0 when missing).
    virtual std::int32_t GetStrInt(std::uint32_t nId) = 0;
    /// 14. Creation parameters of the current server; passed on to the profession dialogs.
    virtual void SetCreateRoleParam(std::int32_t nNewServer, std::int32_t nSwitchA, std::int32_t nSwitchB,
                                    std::int32_t nArcher, std::int32_t nForcedType, bool bSceneSelect,
                                    std::int32_t nExtra1, std::int32_t nExtra2) = 0;
    /// 15. Stores the classic login dialog's token-only flag.
    virtual void SetClassicTokenOnly(bool bOnly) = 0;
    /// 16. Stores platform mode A.
    virtual void SetPlatformModeA(bool bOn) = 0;
    /// 17. Stores platform mode B and passes it to the game data library.
    virtual void SetPlatformModeB(bool bOn) = 0;
    /// 18. Platform mode A.
    virtual bool IsPlatformModeA() = 0;
    /// 19. Whether the host has checked the chosen character name.
    virtual bool IsNameChecked() = 0;
    /// 20. Whether the role is ready to be registered.
    virtual bool IsRoleReady() = 0;
    /// 21. Reports the name check; may register the role (see the creation screens).
    virtual void SetNameCheck(bool bChecked, bool bReady, bool bUpdateReady) = 0;
    /// 22. Stores the chosen profession.
    virtual void SetProfession(std::int32_t nProfession) = 0;
    /// 23. The chosen profession.
    virtual std::int32_t GetProfession() = 0;
    /// 24. Stores the model face value.
    virtual void SetModelFace(std::int32_t nFace) = 0;
    /// 25. The model face value.
    virtual std::int32_t GetModelFace() = 0;
    /// 26. Stores the look value modulo 2.
    virtual void SetLookParity(std::int32_t nLook) = 0;
    /// 27. The look parity.
    virtual std::int32_t GetLookParity() = 0;
    /// 28. Stores the profession column's current index.
    virtual void SetBaseInfoIndex(std::int32_t nIndex) = 0;
    /// 29. The profession column's current index.
    virtual std::int32_t GetBaseInfoIndex() = 0;
    /// 30. Stores a host value that the dialogs do not read.
    virtual void SetLoginOption(std::int32_t nOption) = 0;
    /// 31. Reads back the login option.
    virtual std::int32_t GetLoginOption() = 0;
    /// 32. Stores (nValue > 0) as the name-suggestion switch and returns it.
    virtual bool SetNameSuggest(std::int32_t nValue) = 0;
    /// 33. The name-suggestion switch.
    virtual bool GetNameSuggest() = 0;
    /// 34. Makes the account field the main login dialog's current input field.
    virtual void FocusAccountField() = 0;
    /// 35. Puts a suggested name (text of nLength bytes) into the introduction panel's name field.
    virtual void SetRandomName(const char* szName, std::int32_t nLength) = 0;
    /// 36. Whether the name field still holds the suggested name.
    virtual bool IsNameUnchanged() = 0;
    /// 37. Starts the player-list download worker; returns its thread handle (owned by the host).
    virtual HANDLE StartPlayerListThread() = 0;
    /// 38. Reads the stored selection triple.
    virtual bool GetSelection(std::int32_t* pFirst, std::int32_t* pSecond) = 0;
    /// 39. Stores the selection triple.
    virtual void SetSelection(bool bSet, std::int32_t nFirst, std::int32_t nSecond) = 0;
    /// 40. Stores the argument handed to the player-list worker.
    virtual void SetPlayerListArg(std::int32_t nArg) = 0;
    /// 41. The player-list argument (1 at start).
    virtual std::int32_t GetPlayerListArg() = 0;
    /// 42. Enables and shows the language dialog.
    virtual void ShowSwitchLanguage() = 0;
    /// 43. Clears the string table and loads it again.
    virtual void ReloadStrings() = 0;
    /// 44. Hands every ranged string to the dialog manager, in key order.
    virtual void RegisterRangedStrings() = 0;
    /// 45. Forwards three host values to the dialog manager's further operation.
    virtual void ManagerCall(UINT uMsg, WPARAM wParam, LPARAM lParam) = 0;
    /// 46. Starts the role registration of the introduction panel.
    virtual void RegisterRole() = 0;

protected:
    // Not virtual and not public: the host releases the object through FlashSimulatorDestroy.
    ~IFlashSimulator() = default;
};

#if defined(_WIN32)
#define FLASHSIM_EXPORT __declspec(dllexport)
#else
#define FLASHSIM_EXPORT __attribute__((visibility("default")))
#endif

extern "C" {
/// Returns the single simulator, creating it (zero-filled, then constructed) on the first call; null if that
/// fails.
FLASHSIM_EXPORT IFlashSimulator* FlashSimulatorQuery();
/// Destroys the simulator and forgets it; does nothing when there is none.
FLASHSIM_EXPORT void FlashSimulatorDestroy();
}

/// Function types for hosts that load the library dynamically.
typedef IFlashSimulator* (*PFN_FlashSimulatorQuery)();
typedef void (*PFN_FlashSimulatorDestroy)();
