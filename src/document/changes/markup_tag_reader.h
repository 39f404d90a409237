#pragma once

#include "document/changes/markup_cursor.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace quillmere {

/// Reads the tags of markup with their attributes. The cursor must outlive it.
class MarkupTagReader {
public:
    explicit MarkupTagReader(MarkupCursor& in);
    /// Reads the tag at the cursor, which stands on its '<', and adds it to the document.
    void readTag();

private:
    /// One step within the tag; false at its end.
    bool readAttribute(MarkupToken::Kind kind, std::size_t tagBegin, std::string_view tag);
    std::string_view takeValue(const MarkupAttribute& attribute);
    std::string_view takeBare(const MarkupAttribute& attribute);
    std::string_view takeQuoted(char quote, const MarkupAttribute& attribute);
    [[nodiscard]] std::size_t quoteInTag(char quote, std::size_t from) const;
    void checkAttributes(const MarkupToken& token);

    MarkupCursor& in_;
    std::vector<std::string_view> names_;
};

} // namespace quillmere
