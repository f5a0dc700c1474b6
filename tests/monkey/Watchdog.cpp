#include "Watchdog.h"

#include <csignal>
#include <cstdlib>
#include <unistd.h>

namespace {

constexpr unsigned int patience = 20; // seconds

// Only what may be called in a signal's handler.
void bite(int /*signal*/)
{
    constexpr char message[] = "A step took longer than 20 seconds.\n";
    const ssize_t written = write(STDERR_FILENO, message, sizeof message - 1);
    static_cast<void>(written);
    std::abort();
}

} // namespace

void Watchdog::feed()
{
    std::signal(SIGALRM, bite);
    alarm(patience);
}

void Watchdog::calmDown()
{
    alarm(0);
}
