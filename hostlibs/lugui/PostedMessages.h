// The queue of messages posted to windows from any thread, delivered by the dialog manager on the host's
// thread.
#pragma once

#include <cstddef>

#include "LuBaseWindow.h"

namespace LuGui {

class ILuGuiMgr;

class CPostedMessages {
public:
    struct SPosted {
        CLuBaseWindow* pWnd;
        UINT uMsg;
        WPARAM wParam;
        LPARAM lParam;
    };

    /// Any thread.
    static void Post(const SPosted& msg);
    /// Host's thread: how many messages are queued now.
    static std::size_t Count();
    /// Host's thread: takes the oldest queued message of a window of that manager; false when there is none.
    static bool TakeOneFor(const ILuGuiMgr* pMgr, SPosted& out);
    /// Host's thread, from a window's destructor.
    static void Drop(const CLuBaseWindow* pWnd);
    /// Waits until something is queued or the time is up; true when something is queued.
    static bool Wait(DWORD dwMilliseconds);
};

} // namespace LuGui
