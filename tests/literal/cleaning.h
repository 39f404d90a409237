#pragma once

#include <span>
#include <string>

// The slow version of the cleaning of design HTML, pass by pass in the order in which they run. It
// shares nothing with the fast one. Limits of length are not looked at.

namespace quillmere::literal {

struct Pass {
    const char* name;
    std::string (*apply)(std::string);
};

/// All passes up to the doubled brackets; a name begins with the pass's number. Pass 3 throws
/// std::runtime_error for options without any end of their list.
[[nodiscard]] std::span<const Pass> cleanPasses();

// The passes that follow, 23 to 25.
void TransliterateGerman(std::string& text);
void cutBlankGaps(std::string& text);
void cutBlanksAheadOfTags(std::string& text);

/// All of it.
void CleanDesignHtml(std::string& text);

} // namespace quillmere::literal
