// The embedded web browser that the web registration dialog hosts.
#include "controls/WebBrowserEn.h"

CWebBrowserEn::CWebBrowserEn() = default;
CWebBrowserEn::~CWebBrowserEn() = default;
