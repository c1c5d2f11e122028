// Stand-in of the role library's random-name request: recorded in the journal instead of reaching a server.
#include <string>

#include "RoleLib.h"
#include "hostlibs/HostEnv.h"

void CMsgRegisterNameRandomReq::CreateHead(bool bMale, int nReserved) {
    m_bMale = bMale;
    m_nReserved = nReserved;
}

bool CMsgRegisterNameRandomReq::Send() {
    host::Journal("role.namerandom",
                  {{"male", m_bMale ? "1" : "0"}, {"reserved", std::to_string(m_nReserved)}});
    return true;
}
