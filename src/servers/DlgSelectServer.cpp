// The server screen: up to 15 servers of the chosen group with their load bars.
#include "servers/DlgSelectServer.h"

CDlgSelectServer::CDlgSelectServer() : CSimDialog(IDD) {
}

CDlgSelectServer::~CDlgSelectServer() = default;
