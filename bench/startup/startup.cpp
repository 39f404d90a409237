// startup PROGRAM [ARGUMENT]... : starts a program on the present screen, and prints how long it
// took to paint its window, until when it was busy, its processor time and its memory.
//
// It looks from outside: at a pixel of the screen that only the main window covers (a splash is
// smaller), and at the process. Output: painted ms, settled ms, processor ms, PSS kB.

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr QPoint kFromCentre{-380, 290}; // within 960 by 700 and outside of the splash
constexpr auto kPatience = std::chrono::seconds(20);
constexpr auto kQuiet = std::chrono::milliseconds(300); // a caret blinks every half second

double ms(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

QRgb pixel(const QScreen& screen)
{
    const auto place = screen.geometry().center() + kFromCentre;
    return const_cast<QScreen&>(screen) // grabbing changes nothing
        .grabWindow(0, place.x(), place.y(), 1, 1)
        .toImage()
        .pixel(0, 0);
}

/// Processor time of all threads in clock ticks of the scheduler, nanoseconds.
long long busyNs(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/schedstat");
    long long ns = 0;
    file >> ns;
    return ns;
}

long pssKb(pid_t process)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/smaps_rollup");
    std::string word;
    long kb = 0;
    while (file >> word)
        if (word == "Pss:" && file >> kb) return kb;
    return 0;
}

/// When the process was last busy, once it has been quiet for a while.
Clock::time_point lastBusy(pid_t process)
{
    auto last = Clock::now();
    auto ns = busyNs(process);
    while (Clock::now() - last < kQuiet) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        const auto now = busyNs(process);
        if (now > ns + 200'000) last = Clock::now();
        ns = now;
    }
    return last;
}

int measure(char** arguments)
{
    const auto& screen = *QGuiApplication::primaryScreen();
    const auto ground = pixel(screen);
    const auto begun = Clock::now();
    const auto child = ::fork();
    if (child == 0) {
        ::execv(arguments[0], arguments);
        ::_exit(127);
    }
    while (pixel(screen) == ground) {
        if (Clock::now() - begun > kPatience) return 1;
        std::this_thread::sleep_for(std::chrono::microseconds(500));
    }
    const auto painted = Clock::now();
    const auto settled = lastBusy(child);
    const auto memory = pssKb(child);
    ::kill(child, SIGTERM);
    struct rusage used { };
    ::wait4(child, nullptr, 0, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_usec) / 1000;
    };
    std::printf("%.1f %.1f %.1f %ld\n", ms(painted - begun), ms(settled - begun),
        seconds(used.ru_utime) + seconds(used.ru_stime), memory);
    return 0;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount < 2) return 2;
    const QGuiApplication application(argumentCount, arguments);
    return measure(arguments + 1);
}
