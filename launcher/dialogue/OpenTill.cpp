// SPDX-License-Identifier: MIT
#include "launcher/dialogue/OpenTill.h"

#include "base/Handle.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>
#include <vector>

#include <xcb/xcb_ewmh.h>

namespace OpenTill {
namespace {
using Connection = Handle<xcb_connection_t, xcb_disconnect>;

/// The X screen, with the names that window managers agreed on.
class Screen
{
public:
    Screen()
        : connection_(xcb_connect(nullptr, &number_))
    {
        isThere_ = xcb_connection_has_error(connection_.get()) == 0
            && xcb_ewmh_init_atoms_replies(
                   &hints_, xcb_ewmh_init_atoms(connection_.get(), &hints_), nullptr)
                != 0;
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    Screen(Screen&&) = delete;
    Screen& operator=(Screen&&) = delete;
    ~Screen()
    {
        if (isThere_) {
            xcb_ewmh_connection_wipe(&hints_);
        }
    }

    explicit operator bool() const { return isThere_; }

    /// The windows of \a process, the topmost last.
    std::vector<xcb_window_t> windowsOf(pid_t process)
    {
        std::vector<xcb_window_t> found;
        xcb_ewmh_get_windows_reply_t all{};
        if (xcb_ewmh_get_client_list_stacking_reply(
                &hints_, xcb_ewmh_get_client_list_stacking(&hints_, number_), &all, nullptr)
            == 0) {
            return found;
        }
        std::copy_if(all.windows, all.windows + all.windows_len, std::back_inserter(found),
            [&](xcb_window_t window) { return ownerOf(window) == process; });
        xcb_ewmh_get_windows_reply_wipe(&all);
        return found;
    }

    /// Asks as a taskbar does, whose wish a window manager takes for the user's.
    void activate(xcb_window_t window)
    {
        xcb_ewmh_request_change_active_window(&hints_, number_, window,
            XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER, XCB_CURRENT_TIME, XCB_WINDOW_NONE);
        xcb_flush(connection_.get());
    }

    xcb_window_t active()
    {
        xcb_window_t window = XCB_WINDOW_NONE;
        xcb_ewmh_get_active_window_reply(
            &hints_, xcb_ewmh_get_active_window(&hints_, number_), &window, nullptr);
        return window;
    }

private:
    pid_t ownerOf(xcb_window_t window)
    {
        std::uint32_t owner = 0;
        xcb_ewmh_get_wm_pid_reply(&hints_, xcb_ewmh_get_wm_pid(&hints_, window), &owner, nullptr);
        return static_cast<pid_t>(owner);
    }

    int number_ = 0;
    Connection connection_;
    xcb_ewmh_connection_t hints_{};
    bool isThere_ = false;
};
} // namespace

bool bringToFront(pid_t till)
{
    constexpr int looks = 100;
    constexpr std::chrono::milliseconds pause(20);
    Screen screen;
    if (!screen) {
        return false;
    }
    const auto windows = screen.windowsOf(till);
    if (windows.empty()) {
        return false;
    }
    for (const xcb_window_t window : windows) {
        screen.activate(window);
    }
    for (int look = 0; look < looks; ++look) {
        if (std::find(windows.begin(), windows.end(), screen.active()) != windows.end()) {
            return true;
        }
        std::this_thread::sleep_for(pause);
    }
    return false;
}
} // namespace OpenTill
