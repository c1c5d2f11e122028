// The library's application object; it adds nothing to the framework's.
#pragma once

#include "platform/AppFramework.h"

class CMirageApp : public CWinApp {
public:
    BOOL InitInstance() override;
};

/// The library's single application object.
CMirageApp& TheApp();
