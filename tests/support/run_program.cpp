// The program's streams are files, so that neither side can wait for the other.

#include "support/run_program.h"

#include "support/scratch_folder.h"

#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

namespace quillmere::test {

RunResult runProgram(
    const std::string& program, const std::vector<std::string>& arguments, const std::string& input)
{
    const ScratchFolder folder;
    folder.put("in", input);
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> values;
    values.reserve(words.size() + 1);
    for (std::string& word : words)
        values.push_back(word.data());
    values.push_back(nullptr);

    const pid_t child = ::fork();
    if (child == 0) {
        const bool redirected = std::freopen((folder.path() + "in").c_str(), "rb", stdin) != nullptr
            && std::freopen((folder.path() + "out").c_str(), "wb", stdout) != nullptr
            && std::freopen((folder.path() + "err").c_str(), "wb", stderr) != nullptr;
        if (redirected) ::execv(program.c_str(), values.data());
        ::_exit(127);
    }
    int state = 0;
    if (::waitpid(child, &state, 0) != child) return {};
    return {WIFEXITED(state) ? WEXITSTATUS(state) : -1, folder.get("out"), folder.get("err")};
}

} // namespace quillmere::test
