// Stand-in of the role library's data-array message: host data "datamsg" "fail" makes its creation fail;
// a sent message is recorded in the journal.
#include <string>

#include "RoleLib.h"
#include "hostlibs/HostEnv.h"

bool CMsgDataArray::Create(int nType) {
    m_nType = nType;
    m_bCreated = host::GetData("datamsg", "ok") != "fail";
    return m_bCreated;
}

bool CMsgDataArray::Send() {
    if (!m_bCreated) return false;
    host::Journal("role.dataarray", {{"type", std::to_string(m_nType)}});
    return true;
}
