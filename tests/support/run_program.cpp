// The program's streams are files, so that neither side can wait for the other.

#include "support/run_program.h"

#include "support/temporary_directory.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere::test {

RunResult runProgram(
    const std::string& program, const std::vector<std::string>& arguments, const std::string& input)
{
    const TemporaryDirectory directory;
    const std::string in = directory.write("in", input);
    const std::string out = directory.path("out");
    const std::string err = directory.path("err");

    posix_spawn_file_actions_t files{};
    posix_spawn_file_actions_init(&files);
    constexpr int kNew = O_WRONLY | O_CREAT | O_TRUNC;
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, out.c_str(), kNew, 0600);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, err.c_str(), kNew, 0600);

    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> values;
    for (std::string& word : words)
        values.push_back(word.data());
    values.push_back(nullptr);

    pid_t child = 0;
    int state = 0;
    const bool started
        = posix_spawn(&child, program.c_str(), &files, nullptr, values.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&files);
    if (!started || waitpid(child, &state, 0) != child) return {};
    return {WIFEXITED(state) ? WEXITSTATUS(state) : -1, bytesOf(out), bytesOf(err)};
}

} // namespace quillmere::test
