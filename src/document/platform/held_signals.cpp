// Held by files_test.cpp, which ends a program that is writing.

#include "document/platform/held_signals.h"

#include <csignal>

namespace quillmere {
namespace {

constexpr int kEndings[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGALRM, SIGXCPU};

thread_local int holders = 0;
thread_local sigset_t before{}; // the mask ahead of the first of them

} // namespace

HeldSignals::HeldSignals()
{
    if (holders++ > 0) return;
    sigset_t endings{};
    sigemptyset(&endings);
    for (const int signal : kEndings)
        sigaddset(&endings, signal);
    ::pthread_sigmask(SIG_BLOCK, &endings, &before);
}

HeldSignals::~HeldSignals()
{
    if (--holders == 0) ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

} // namespace quillmere
