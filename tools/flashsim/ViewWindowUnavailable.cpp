// The live window where the reference host was built without SDL2.
#include <cstdio>

#include "ViewWindow.h"

int RunViewWindow(const ViewOptions&) {
    std::fprintf(stderr, "flashsim view: this flashsim was built without SDL2 (libsdl2-dev)\n");
    return 2;
}
