// The application framework's application class that a library's single application object derives from.
#pragma once

#include "BaseLib.h"

class CWinApp {
public:
    CWinApp();
    virtual ~CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    /// Runs when the library is loaded; true to go on.
    virtual BOOL InitInstance();
    /// The module instance handle of the library that owns the application object.
    HINSTANCE m_hInstance = nullptr;
};

/// The instance handle of the module whose application object was constructed last (null before).
HINSTANCE AfxGetInstanceHandle();
