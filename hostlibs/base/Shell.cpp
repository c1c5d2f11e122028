// Shell and socket start-up of the base library: recorded, since this platform opens no pages and needs no
// Winsock.
#include <string>

#include "BaseLib.h"
#include "hostlibs/HostEnv.h"

HINSTANCE ShellExecuteA(HWND, const char* szOperation, const char* szFile, const char* szParameters,
                        const char*, int nShowCmd) {
    host::Journal("shell.open", {{"op", szOperation ? szOperation : ""},
                                 {"file", szFile ? szFile : ""},
                                 {"params", szParameters ? szParameters : ""},
                                 {"show", std::to_string(nShowCmd)}});
    return reinterpret_cast<HINSTANCE>(static_cast<std::intptr_t>(33));
}

int WSAStartup(WORD wVersionRequested, WSADATA* pData) {
    if (pData) {
        pData->wVersion = wVersionRequested;
        pData->wHighVersion = 0x0202;
    }
    return host::GetDataInt("wsa.fail", 0);
}

int WSACleanup() {
    return 0;
}
