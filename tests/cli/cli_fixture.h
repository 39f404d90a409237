#pragma once

#include "support/run_program.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace quillmere::test {

using Call = std::vector<std::string>;

inline constexpr const char* kDeck
    = "<?xml version=\"1.0\"?>\n<wml>\n<card id=\"a\" title=\"Eins\">\n"
      "<do type=\"accept\" label=\"Weiter\"><go href=\"#b\"/></do>\n"
      "<p>Gr\xFC\xDF\x65</p>\n</card>\n<card id=\"b\" title=\"Zw\tei\">\n"
      "<p>x</p>\n</card>\n</wml>\n";

/// Runs the program on files of a folder of the test.
class Cli : public testing::Test {
protected:
    /// A word that begins with "@" is a file of the folder.
    RunResult cli(Call call, const std::string& input = {})
    {
        for (auto& word : call)
            if (word.starts_with('@')) word.replace(0, 1, folder.path());
        return runProgram(QUILLMERE_CLI, call, input);
    }
    ScratchFolder folder;
};

} // namespace quillmere::test
