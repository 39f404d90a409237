// Cutting the character behind the first of two brackets, again and again until no second one is
// left, cuts all from there through the last. In "<b<i>" the text between goes as well; this is
// wanted. Held by clean_passes_test.cpp.

#include "document/clean_brackets.h"

#include "document/text_search.h"

namespace quillmere {
namespace {

    void mergeBrackets(std::string& text, char bracket, char opposite)
    {
        Rewriter rewriter(text);
        std::size_t begin = 0;
        for (auto end = text.find(opposite); end != npos; end = text.find(opposite, begin)) {
            const auto piece = std::string_view(text).substr(begin, end - begin);
            const auto first = piece.find(bracket);
            const bool doubled = first != npos && piece.find(bracket, first + 1) != npos;
            if (doubled) rewriter.drop(begin + first, begin + piece.rfind(bracket));
            begin = end + 1;
        }
        if (rewriter.position() > 0) text = rewriter.take();
    }

} // namespace

void mergeDoubledBrackets(std::string& text)
{
    mergeBrackets(text, '<', '>');
    mergeBrackets(text, '>', '<');
}

} // namespace quillmere
