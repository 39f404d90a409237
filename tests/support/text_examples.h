#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

// Examples of what an operation makes of a text.

namespace quillmere::test {

struct Example {
    const char* name;
    std::string (*apply)(std::string);
    std::string before;
    std::string after;
};

inline void expectAll(std::initializer_list<Example> examples)
{
    for (const Example& example : examples) {
        SCOPED_TRACE(example.name);
        EXPECT_EQ(example.apply(example.before), example.after) << example.before;
    }
}

/// Makes a function of an operation that works in place.
template <void (*operation)(std::string&)> std::string applied(std::string text)
{
    operation(text);
    return text;
}

} // namespace quillmere::test
