// The framework's application class: remembers the module of the last application object constructed.
#include "AppFramework.h"

namespace {
HINSTANCE g_hLastInstance = nullptr;
// A stand-in handle value: this platform has no module handles, yet the dialog manager receives one.
HINSTANCE NextInstanceHandle() {
    static std::intptr_t next = 0x10000;
    return reinterpret_cast<HINSTANCE>(next++);
}
} // namespace

CWinApp::CWinApp() : m_hInstance(NextInstanceHandle()) {
    g_hLastInstance = m_hInstance;
}
CWinApp::~CWinApp() = default;
BOOL CWinApp::InitInstance() {
    return TRUE;
}
HINSTANCE AfxGetInstanceHandle() {
    return g_hLastInstance;
}
