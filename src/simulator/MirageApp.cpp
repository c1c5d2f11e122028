// The library's application object; it adds nothing to the framework's.
#include "simulator/MirageApp.h"

BOOL CMirageApp::InitInstance() {
    CWinApp::InitInstance();
    return TRUE;
}

CMirageApp& TheApp() {
    static CMirageApp app;
    return app;
}
