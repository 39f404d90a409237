#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

/// Searches names such as Wml0.htm, Wml1.htm, ... for the first that can be had. Names that were
/// found taken are not tried again until they are told to be released.
class WorkNames {
public:
    /// The first name of PREFIX0SUFFIX, PREFIX1SUFFIX, ... that `canBeHad`. Throws Overflow behind
    /// number 32767.
    [[nodiscard]] std::string first(std::string_view prefix, std::string_view suffix,
        const std::function<bool(const std::string&)>& canBeHad);
    /// A file of this name is gone.
    void release(std::string_view name);

private:
    struct Pattern {
        std::string prefix;
        std::string suffix;
        int lowest = 0; // all numbers below are taken
    };
    Pattern& pattern(std::string_view prefix, std::string_view suffix);

    std::vector<Pattern> patterns_;
};

} // namespace quillmere
