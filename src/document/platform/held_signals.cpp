// Held by files_test.cpp, which ends a program that is writing.

#include "document/platform/held_signals.h"

namespace quillmere {
namespace {

constexpr int kEndings[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGALRM, SIGXCPU};

} // namespace

HeldSignals::HeldSignals()
{
    sigset_t endings{};
    sigemptyset(&endings);
    for (const int signal : kEndings)
        sigaddset(&endings, signal);
    ::pthread_sigmask(SIG_BLOCK, &endings, &before_);
}

HeldSignals::~HeldSignals()
{
    ::pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

} // namespace quillmere
