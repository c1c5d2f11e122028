// Our role library's player-list downloader: no network on this platform, so each request is recorded.
#include <string>

#include "RoleLib.h"
#include "hostlibs/HostEnv.h"

CHttpGetSvrPlayerList::CHttpGetSvrPlayerList() = default;
CHttpGetSvrPlayerList::~CHttpGetSvrPlayerList() = default;

bool CHttpGetSvrPlayerList::DownloadFile(const char* szAddress, int nNumber, int nArg) {
    if (host::GetDataInt("playerlist.throw", 0)) throw std::string("player list failure");
    host::Journal("role.playerlist", {{"address", szAddress ? szAddress : ""},
                                      {"number", std::to_string(nNumber)},
                                      {"arg", std::to_string(nArg)}});
    return true;
}
