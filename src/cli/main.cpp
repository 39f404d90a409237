#include "cli/command_line.h"

int main(int count, char** values)
{
    return static_cast<int>(quillmere::cli::runCommandLine(count, values));
}
