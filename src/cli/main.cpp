#include "cli/command_line.h"

#include <csignal>

int main(int count, char** values)
{
    // What cannot be written is told like any other failure and does not end the program at once.
    (void)std::signal(SIGPIPE, SIG_IGN);
    (void)std::signal(SIGXFSZ, SIG_IGN);
    return static_cast<int>(quillmere::cli::runCommandLine(count, values));
}
