#pragma once

#include <string>
#include <vector>

namespace quillmere::test {

struct RunResult {
    int status = -1; ///< exit status; -1 where the program did not end by itself
    std::string output;
    std::string errors;
};

/// Runs a program with a standard input and waits for its end.
[[nodiscard]] RunResult runProgram(const std::string& program,
    const std::vector<std::string>& arguments, const std::string& input = {});

} // namespace quillmere::test
