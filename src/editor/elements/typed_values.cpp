// Held by tests/editor/dialogs/bad_input_test.cpp.

#include "editor/elements/typed_values.h"

#include "document/text/text_search.h"
#include "editor/page/character_entities.h"
#include "editor/page/typed_text.h"

namespace quillmere {

std::string captionMarkup(std::u16string_view typed)
{
    return typedText(typed, {}).markup;
}

std::string valueMarkup(std::u16string_view typed)
{
    std::string value;
    for (const char character : captionMarkup(typed))
        character == '"' ? value.append("&quot;") : value.append(1, character);
    return value;
}

std::u16string typedFrom(std::string_view markup)
{
    std::u16string typed;
    while (!markup.empty()) {
        const auto reference = shownReference(markup.front() == '&' ? markup : "&");
        const bool isReference
            = markup.front() == '&' && markup.substr(0, reference.length).ends_with(';');
        typed += isReference ? reference.shown : shownByte(markup.front());
        markup.remove_prefix(isReference ? reference.length : 1);
    }
    return typed;
}

} // namespace quillmere
