#pragma once

#include "editor/elements/element_edit.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

struct LinkSettings {
    std::string caption; ///< its markup
    std::string target; ///< "#" and a card id, or a URL, as it stands between the quotes
};

/// The first link at or behind the position; its caption is the text outside of tags. nullopt where
/// there is none.
[[nodiscard]] std::optional<LinkSettings> GetLink(std::string_view text, int position);

/// A link that takes the place of something, "<a href="TARGET">CAPTION</a>", without the blank that
/// stands behind a new one: so "Wort." keeps its point.
[[nodiscard]] std::string linkMarkup(const LinkSettings& link);

/// The link that takes the place of marked text, with the formats round it that all of that text
/// has and nothing else, which the text would take with it: of "<b>Wort</b>" comes
/// "<b><a href="TARGET">Wort</a></b>".
[[nodiscard]] std::string linkInPlace(
    std::string_view text, SourceRange marked, const LinkSettings& link);

/// Whether what is marked can become a link: text of one paragraph, without line breaks, pictures,
/// options and other links, whose look would be lost.
[[nodiscard]] bool canBecomeLink(std::string_view text, SourceRange marked);

/// Puts a link in behind the first valid place at the position. A link on a line that is empty
/// otherwise, and that no <br> ends, gets "<br/> " behind it, so that one link after the other
/// makes a menu. Text ahead of it or behind it on the line keeps the line as it is. The caret
/// stands behind what was put in.
[[nodiscard]] ElementEdit SetLink(std::string_view text, int position, const LinkSettings& wanted);

/// Makes the first link at or behind the position what is wanted, in its place and with nothing put
/// in behind it. Its other attributes stay, and so do tags in it where the caption is the same to a
/// reader. Without a link the text stays as it is.
[[nodiscard]] ElementEdit ReplaceLink(
    std::string_view text, int position, const LinkSettings& wanted);

/// Takes out the first link at or behind the position with its caption; one without an end through
/// the first '>' behind its start. Without a link the text stays as it is.
[[nodiscard]] ElementEdit DeleteLink(std::string_view text, int position);

} // namespace quillmere
