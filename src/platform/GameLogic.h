// The role library's game logic (role lists per account and server, server ids, the international client's
// page hooks), its profession names, and the game base library's account-name hook.
#pragma once

#include <cstdint>

/// One role of an account on a server, as the game logic lists it.
struct SServerRole {
    std::int32_t nReserved = 0;
    std::int32_t nProCode = 0; ///< the profession id is ten times the code
    std::int32_t nPower = 0;
    std::int32_t nLevel = 0;
    const char* szName = ""; ///< UTF-8
};

/// One role of the player's own list: where it lives.
struct SMineRole {
    std::int32_t nGroup = 0;    ///< 1-based group number
    std::int32_t nServerId = 0; ///< the server's id, not its index
};

/// The game logic (`GameLogicGet`).
class IGameLogic {
public:
    /// Key of the role list of an account on a 1-based group and server; 0 when the account is unknown.
    virtual std::int64_t GetRoleListKey(std::int64_t nAccount, int nGroup, int nServer, bool bCreate) = 0;

protected:
    ~IGameLogic() = default;
};
IGameLogic* GameLogicGet();

/// Whether the game logic allows Chinese input in name boxes.
bool IsChineseInputAllowed();

/// The international client's game logic (`GameLogicEnGet`).
class IGameLogicEn {
public:
    /// Told when the registration page opens.
    virtual void OnRegisterPageOpen() = 0;
    /// Told each frame where the registration dialog's centre is on the screen.
    virtual void SetRegisterPageCentre(int x, int y) = 0;
    /// The roles of a key on a 1-based group (nCount entries, valid until the next call); null when the game
    /// logic cannot give a list.
    virtual const SServerRole* GetRoleList(int nGroup, std::int64_t nKey, int& nCount) = 0;
    /// The player's roles over every server (nCount entries, valid until the next call); null when none can
    /// be given.
    virtual const SMineRole* GetMineList(int& nCount) = 0;
    /// The 0-based index of the server with an id in a 1-based group, for an account value; -1 when unknown.
    virtual int MapServerId(int nGroup, int nServerId, std::int64_t nAccount) = 0;

protected:
    ~IGameLogicEn() = default;
};
IGameLogicEn* GameLogicEnGet();

/// The role library's player object.
class CPlayer {
public:
    /// The profession's name of a profession id; never null.
    static const char* GetProfessionStr(int nProfession);
};

/// The game base library's hook for an account the player has just registered.
void SetAccountName(const char* szAccount);
