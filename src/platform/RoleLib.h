// The role library's operations used by the system: the server player-list downloader.
#pragma once

#include "BaseLib.h"

/// Fetches the player list of the servers from an address; what it does with the list is the role library's.
class CHttpGetSvrPlayerList {
public:
    CHttpGetSvrPlayerList();
    ~CHttpGetSvrPlayerList();
    CHttpGetSvrPlayerList(const CHttpGetSvrPlayerList&) = delete;
    CHttpGetSvrPlayerList& operator=(const CHttpGetSvrPlayerList&) = delete;

    /// Downloads from szAddress with the number and the caller's argument; returns whether it succeeded.
    bool DownloadFile(const char* szAddress, int nNumber, int nArg);
};

/// The role library's request for a random name suggestion; the server's answer reaches the host, which hands
/// it on as a suggested name.
class CMsgRegisterNameRandomReq {
public:
    /// The request head: whether the name is for a male role, and a reserved value.
    void CreateHead(bool bMale, int nReserved);
    /// Sends the request to the game server; returns whether it left.
    bool Send();

private:
    bool m_bMale = true;
    int m_nReserved = 0;
};

/// The role library's data-array message (30037 asks the server whether Chinese input is allowed).
class CMsgDataArray {
public:
    /// Builds the message of a type; false when the library cannot build it (nothing may be sent then).
    bool Create(int nType);
    bool Send();

private:
    int m_nType = 0;
    bool m_bCreated = false;
};
