#pragma once

#include <string>
#include <string_view>

namespace quillmere {

/// Gives text ahead of the first and behind the last paragraph of an area's WML its tags, and
/// removes doubled ends. In place.
void RepairParagraphs(std::string& text);

/// Puts a paragraph around each element of the pair, such as "<img" with "</img", that stands
/// outside of one. In place.
void WrapInParagraph(std::string& text, std::string_view openTag, std::string_view closeTag);

/// Gives each paragraph its own pair where a format crosses paragraphs, and removes pairs without
/// text. In place.
void SplitAtParagraphs(std::string& text, std::string_view openTag, std::string_view closeTag);

} // namespace quillmere
