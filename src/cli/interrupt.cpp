// SPDX-License-Identifier: MIT
#include "cli/interrupt.h"

#include <atomic>
#include <csignal>

namespace {

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may not wait");

std::atomic<bool>& noted()
{
    static std::atomic<bool> flag = false; // constant initialisation: nothing runs in the handler
    return flag;
}

void note(int /*signal*/)
{
    noted() = true;
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

} // namespace

void catchInterrupts()
{
    struct sigaction action = {};
    action.sa_handler = note;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

bool interrupted()
{
    return noted();
}
