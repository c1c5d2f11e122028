// What the targets that drive whole screens share: their input read as steps, and a press on a control as
// the host delivers it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "hostlibs/HostEnv.h"
#include "platform/LuCtrl.h"
#include "platform/LuDialog.h"
#include "simulator/FlashSimulator.h"

namespace fuzzscreen {

/// Stops the run: an invariant of the screens does not hold.
inline void Trap(bool bFault) {
    if (bFault) __builtin_trap();
}

/// The simulator of an English client on the sample client directory, created once, sending its commands to
/// onCommand and showing a scene.
inline CFlashSimulator* CreateEnglishSimulator(FlashCallBack onCommand, ESceneType eScene) {
    host::SetClientDir(FLASHSIM_RES_DIR);
    host::SetData("language", "English");
    CFlashSimulator* sim = FlashSimQuery();
    sim->Create(0, 0, 0, true);
    sim->SetCallBack(onCommand);
    sim->SetSceneType(eScene);
    return sim;
}

/// One step of the input: an operation, an argument and up to 255 bytes of its own.
struct SStep {
    std::uint8_t op;
    std::uint8_t arg;
    std::string_view bytes;
};

/// Calls onStep for each step of (operation byte, argument byte, length byte, that many bytes); a length past
/// the end takes what is left.
template <typename OnStep> void ForEachStep(const std::uint8_t* data, std::size_t size, OnStep onStep) {
    std::size_t pos = 0;
    while (pos + 3 <= size) {
        const std::size_t length = std::min<std::size_t>(data[pos + 2], size - pos - 3);
        onStep(SStep{data[pos], data[pos + 1],
                     std::string_view(reinterpret_cast<const char*>(data + pos + 3), length)});
        pos += 3 + length;
    }
}

/// A left press and release at the centre of a visible control of a visible dialog; nothing otherwise.
inline void Click(CFlashSimulator& sim, LuGui::CLuDialog& dialog, UINT nId) {
    const LuGui::CLuBaseWindow* pCtrl = dialog.GetControl(nId);
    if (!pCtrl || !dialog.IsWindowVisible() || !pCtrl->IsWindowVisible()) return;
    const RECT rc = pCtrl->GetWindowRect();
    // NOTE: a main window of a huge stored size may put a dialog far out; the centre is taken in 64 bits.
    const auto x = static_cast<int>((std::int64_t{rc.left} + rc.right) / 2);
    const auto y = static_cast<int>((std::int64_t{rc.top} + rc.bottom) / 2);
    host::SetCursor(x, y);
    host::SetKeyDown(VK_LBUTTON, true);
    sim.WindowProc(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    host::SetKeyDown(VK_LBUTTON, false);
    sim.WindowProc(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

} // namespace fuzzscreen
