// The account registration web page hosted in the client.
#include "login/DlgWebRegisterEn.h"

CDlgWebRegisterEn::CDlgWebRegisterEn() : CSimDialog(IDD) {
}

CDlgWebRegisterEn::~CDlgWebRegisterEn() = default;
