// Held by markup_document_test.cpp.

#include "document/changes/doctype_head.h"

#include <algorithm>

namespace quillmere {

namespace {

bool passWord(MarkupCursor& in, std::string_view word)
{
    in.skipSpace();
    if (!in.text.substr(in.at).starts_with(word)) return false;
    in.at += word.size();
    return true;
}

bool passLiteral(MarkupCursor& in)
{
    if (!isMarkupSpace(in.peek())) return false;
    in.skipSpace();
    const char quote = in.peek();
    const auto end = in.text.find(quote, std::min(in.at + 1, in.text.size()));
    if ((quote != '"' && quote != '\'') || end == std::string_view::npos) return false;
    in.at = end + 1;
    return true;
}

} // namespace

bool passDoctypeHead(MarkupCursor& in)
{
    if (!isMarkupSpace(in.peek())) return false;
    in.skipSpace();
    if (in.takeName().empty()) return false;
    const int literals = passWord(in, "PUBLIC") ? 2 : passWord(in, "SYSTEM") ? 1 : 0;
    for (int i = 0; i < literals; ++i) {
        if (!passLiteral(in)) return false;
    }
    in.skipSpace();
    return true;
}

} // namespace quillmere
