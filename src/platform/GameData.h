// The game data library's data objects used by the system: sounds by name, settings, language, English-only
// mode.
#pragma once

#include <cstdint>

#include "BaseLib.h"
#include "ZrString.h"

/// A creation record of the game data: what a profession and sex look like in the creation preview.
struct SRoleCreateRecord {
    static constexpr int PART_COUNT = 8;
    int nLook = 0;
    int nParts[PART_COUNT] = {};
    int nScalePercent = 100;
    CZrString strDescription;
};

/// The role data object (`RoleDataQuery`).
class IRoleData {
public:
    /// Plays a sound the sound library cannot play itself, by its game-data name.
    virtual void PlaySoundByName(const char* szName) = 0;
    /// The creation record of key profession + sex; false when there is none.
    virtual bool GetCreateRecord(int nKey, SRoleCreateRecord& record) = 0;

protected:
    ~IRoleData() = default;
};
IRoleData* RoleDataQuery();

/// The settings data object (`RoleDataQueryEn`).
class IRoleDataEn {
public:
    /// Passes the platform mode B flag to the game data.
    virtual void SetPlatformModeB(WORD wOn) = 0;
    /// Reads an integer setting of the settings store; fallback when absent.
    virtual int GetSetting(const char* szKey, int nFallback) = 0;
    /// Stores an integer setting.
    virtual void SetSetting(const char* szKey, int nValue) = 0;
    /// The game data's input flag: while it is set, the host is told that no login field has the focus.
    virtual bool IsInputFlagSet() = 0;
    /// The web-page switch: 1 while the registration page is shown, 0 after.
    virtual void SetWebPageSwitch(int nOn) = 0;

protected:
    ~IRoleDataEn() = default;
};
IRoleDataEn* RoleDataQueryEn();

/// The language data object (`RoleDataQueryEx`).
class IRoleDataEx {
public:
    /// The client's language name ("English", ...); never null.
    virtual const char* GetLanguageName() = 0;
    /// Whether texts must be shown with English characters only.
    virtual bool IsEnglishOnly() = 0;
    /// The font to draw with for a font name of the graphics library (the client maps it per language).
    virtual const char* MapFontName(const char* szFont) = 0;
    /// Entry nId of the game data's string resources (web address formats, switches); empty when absent.
    virtual const char* GetStrRes(std::uint32_t nId) = 0;
    /// Whether the game data marks the server of that name as new.
    virtual bool IsNewServer(const char* szServerName) = 0;
    /// The switch that routes web pages to the embedded browser instead of the system's.
    virtual void SetEmbeddedBrowser(bool bOn) = 0;
    virtual bool IsEmbeddedBrowser() = 0;
    /// The QR-login switch: the classic login offers its QR page and the tabs to it.
    virtual bool IsQRLoginEnabled() = 0;
    /// The WeChat switch: the classic login offers its external-login row.
    virtual bool IsWeChatLoginEnabled() = 0;
    /// Text nId of the role data's text table (layout numbers of the international dialogs); empty when
    /// absent.
    virtual const char* GetRoleText(std::uint32_t nId) = 0;
    /// The value the game logic knows the logged-in account by.
    virtual std::int64_t GetAccountValue() = 0;

protected:
    ~IRoleDataEx() = default;
};
IRoleDataEx* RoleDataQueryEx();

/// The role library's game-data interface (`MyGameDataEnQuery`).
class IMyGameDataEn {
public:
    /// The integer the account-creation address is formatted with.
    virtual int GetRegisterArg() = 0;
    /// Whether the client uses nationalities.
    virtual bool IsNationalityUsed() = 0;
    /// The picture name of the current nationality's record; false when there is no such record.
    virtual bool GetNationalityPicture(CZrString& strPicture) = 0;

protected:
    ~IMyGameDataEn() = default;
};
IMyGameDataEn* MyGameDataEnQuery();

/// The game data library's window records (`MyGameDataQuery`): places and sizes the client keeps per window
/// number.
class IMyGameData {
public:
    /// Window record nId (its screen rectangle); false when the game data has no such record.
    virtual bool GetWindowRecord(int nId, RECT& rcOut) = 0;

protected:
    ~IMyGameData() = default;
};
IMyGameData* MyGameDataQuery();
