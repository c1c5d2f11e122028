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
