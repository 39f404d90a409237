#pragma once

#include "document/text/edited_text.h"

#include <string>
#include <string_view>

// Repairs of paragraphs in the text of one area. Any tag that begins like a paragraph's counts as
// one, "<prev/>" as well. Searches ignore case; all work in place and throw Overflow, with the text
// unchanged, where it is or gets longer than positions can tell. Tags that are told empty stand
// nowhere.

namespace quillmere {

/// Gives text ahead of the first and behind the last paragraph of an area's WML its tags, and
/// removes doubled ends.
void RepairParagraphs(std::string& text);

/// Puts a paragraph around each element of the pair, which is not itself a paragraph, that stands
/// outside of one: "<img" with "</img". An element without its end stays as it is.
void WrapInParagraph(std::string& text, std::string_view openTag, std::string_view closeTag);
void WrapInParagraph(EditedText& text, const SearchKey& openTag, const SearchKey& closeTag);

/// Gives each paragraph its own pair where a format crosses paragraphs, and removes pairs without
/// text: "<p><b>x</p><p>y</b></p>" becomes "<p><b>x</b></p><p><b>y</b></p>". The tags are given
/// whole, such as "<b>" with "</b>". A picture is no text.
void SplitAtParagraphs(std::string& text, std::string_view openTag, std::string_view closeTag);
void SplitAtParagraphs(EditedText& text, const SearchKey& openTag, const SearchKey& closeTag);

} // namespace quillmere
