#pragma once

#include "support/scratch_folder.h"

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quillmere::test {

/// A screen without a machine's display, with a window manager and a person of its own: settings,
/// data and temporary files lie in `folder`. Programs on it are used from outside. Throws where the
/// tools that it needs are not installed (scripts/packages).
class Desktop {
public:
    Desktop();

    ScratchFolder folder;

    /// Starts a program; it is killed with the desktop at the latest.
    pid_t start(const std::vector<std::string>& words);
    /// Its exit status once it ends; -1 where it does not, or was killed.
    int waitForEnd(pid_t program);
    void kill(pid_t program);

    /// What xdotool answers; "" where it finds nothing.
    std::string tell(const std::string& arguments) const;
    /// The only window that is seen with this in its title, once it is there; throws after a while.
    std::string window(const std::string& title) const;
    /// How many windows are seen with this in their title.
    std::size_t windows(const std::string& title) const;
    static void waitUntil(const std::string& what, const std::function<bool()>& holds);
    /// Brings a window to the front and waits until it has the keyboard.
    void focus(const std::string& window) const;

private:
    /// What was started; the screen is the first to come and the last to go.
    struct Programs {
        std::vector<pid_t> ids;

        Programs() = default;
        Programs(const Programs&) = delete;
        Programs& operator=(const Programs&) = delete;
        Programs(Programs&&) = delete;
        Programs& operator=(Programs&&) = delete;
        ~Programs();
    };
    std::string display_;
    Programs programs_;
};

} // namespace quillmere::test
