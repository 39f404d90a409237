#include "end_to_end/desktop.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace quillmere::test {
namespace {

constexpr auto kPatience = std::chrono::seconds(20);
constexpr auto kPause = std::chrono::milliseconds(30);

std::string outputOf(const std::string& command)
{
    std::string output;
    auto* pipe = ::popen(command.c_str(), "r"); // NOLINT(cert-env33-c): of the tests' own words
    if (pipe == nullptr) throw std::runtime_error("no shell");
    std::array<char, 4096> part{};
    for (std::size_t count = 0; (count = ::fread(part.data(), 1, part.size(), pipe)) > 0;)
        output.append(part.data(), count);
    ::pclose(pipe);
    return output;
}

void requireTools()
{
    for (const auto* tool : {"Xvfb", "openbox", "xdotool"})
        if (outputOf(std::string("command -v ") + tool).empty())
            throw std::runtime_error(std::string(tool) + " is missing: see scripts/packages");
}

std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

Desktop::Desktop()
{
    requireTools();
    const auto number = folder.path() + "display";
    (void)start({"/bin/sh", "-c",
        "exec Xvfb -displayfd 3 -screen 0 1280x900x24 -nolisten tcp -noreset 3>" + number
            + " 2>/dev/null"});
    waitUntil("a screen", [&] { return folder.get("display").ends_with('\n'); });
    display_ = ":" + linesOf(folder.get("display")).front();
    for (const auto* name : {"config", "data", "run", "tmp"})
        std::filesystem::create_directory(folder.path() + name);
    std::filesystem::permissions(folder.path() + "run", std::filesystem::perms::owner_all);
    (void)start({"/bin/sh", "-c", "exec openbox >/dev/null 2>&1"});
    waitUntil("window manager", [&] { return !tell("get_desktop").empty(); });
}

Desktop::Programs::~Programs()
{
    std::for_each(ids.rbegin(), ids.rend(), [](pid_t id) {
        ::kill(id, SIGKILL);
        ::waitpid(id, nullptr, 0);
    });
}

pid_t Desktop::start(const std::vector<std::string>& words)
{
    std::vector<std::string> copies = words;
    std::vector<char*> arguments;
    arguments.reserve(copies.size() + 1);
    for (auto& word : copies)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const auto child = ::fork();
    if (child == 0) {
        const auto give
            = [](const char* name, const std::string& value) { ::setenv(name, value.c_str(), 1); };
        give("DISPLAY", display_);
        give("QT_QPA_PLATFORM", "xcb");
        give("XDG_CONFIG_HOME", folder.path() + "config");
        give("XDG_DATA_HOME", folder.path() + "data");
        give("XDG_RUNTIME_DIR", folder.path() + "run");
        give("TMPDIR", folder.path() + "tmp");
        give("ASAN_OPTIONS", "detect_leaks=0"); // those of the desktop's own libraries
        ::execv(arguments.front(), arguments.data());
        ::_exit(127);
    }
    programs_.ids.push_back(child);
    return child;
}

int Desktop::waitForEnd(pid_t program)
{
    int status = -1;
    const auto until = std::chrono::steady_clock::now() + kPatience;
    while (::waitpid(program, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > until) return -1;
        std::this_thread::sleep_for(kPause);
    }
    std::erase(programs_.ids, program);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void Desktop::kill(pid_t program)
{
    ::kill(program, SIGKILL);
    ::waitpid(program, nullptr, 0);
    std::erase(programs_.ids, program);
}

std::string Desktop::tell(const std::string& arguments) const
{
    return outputOf("DISPLAY=" + display_ + " xdotool " + arguments + " 2>/dev/null");
}

std::size_t Desktop::windows(const std::string& title) const
{
    return linesOf(tell("search --onlyvisible --name '" + title + "'")).size();
}

std::string Desktop::window(const std::string& title) const
{
    waitUntil("a window " + title, [&] { return windows(title) == 1; });
    return linesOf(tell("search --onlyvisible --name '" + title + "'")).front();
}

void Desktop::waitUntil(const std::string& what, const std::function<bool()>& holds)
{
    const auto until = std::chrono::steady_clock::now() + kPatience;
    while (!holds()) {
        if (std::chrono::steady_clock::now() > until) throw std::runtime_error("no " + what);
        std::this_thread::sleep_for(kPause);
    }
}

void Desktop::focus(const std::string& window) const
{
    waitUntil("focus", [&] {
        (void)tell("windowactivate " + window);
        return linesOf(tell("getwindowfocus")) == std::vector{window};
    });
}

} // namespace quillmere::test
