// The library's only two exports: obtain and destroy the simulator.
#include "flashsim/IFlashSimulator.h"
#include "simulator/FlashSimulator.h"

extern "C" {
FLASHSIM_EXPORT IFlashSimulator* FlashSimulatorQuery() {
    return FlashSimQuery();
}
FLASHSIM_EXPORT void FlashSimulatorDestroy() {
    FlashSimDestroy();
}
}
