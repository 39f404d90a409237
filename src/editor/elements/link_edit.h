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
/// there is none. Of links in one another it is, where nothing is lost, the one that ends first.
[[nodiscard]] std::optional<LinkSettings> GetLink(
    std::string_view text, int position, const OutputRules& rules = OutputRules());

// By the default a blank is written behind each link that is new or changed. Where nothing is lost
// a link is "<a href="TARGET">CAPTION</a>" alone, so that "Wort." keeps its point.

/// The link that takes the place of marked text, with the formats round it that all of that text
/// has and nothing else, which the text would take with it: of "<b>Wort</b>" comes
/// "<b><a href="TARGET">Wort</a></b>".
[[nodiscard]] std::string linkInPlace(std::string_view text, SourceRange marked,
    const LinkSettings& link, const OutputRules& rules = OutputRules());

/// Whether what is marked can become a link: text of one paragraph, without line breaks, pictures,
/// options and other links, whose look would be lost. Where nothing is lost no text of a list
/// either.
[[nodiscard]] bool canBecomeLink(
    std::string_view text, SourceRange marked, const OutputRules& rules = OutputRules());

/// Puts a link in behind the first valid place at the position, so that one link after the other
/// makes a menu: by the default a link on a line that is empty otherwise, and that no <br> ends,
/// gets "<br/> " behind it; where nothing is lost "<br/>" goes in between two links that have the
/// line for themselves, and none stands behind the last. Text ahead of it or behind it on the line
/// keeps the line as it is. The caret stands behind what was put in.
[[nodiscard]] ElementEdit SetLink(std::string_view text, int position, const LinkSettings& wanted,
    const OutputRules& rules = OutputRules());

/// Makes the first link at or behind the position what is wanted, in its place. By the default that
/// is a new link, with the line break and the blank of one. Where nothing is lost nothing is put in
/// behind it, its other attributes stay, and so do tags in it where the caption is the same to a
/// reader. Without a link the text stays as it is.
[[nodiscard]] ElementEdit ReplaceLink(std::string_view text, int position,
    const LinkSettings& wanted, const OutputRules& rules = OutputRules());

/// Takes out the first link at or behind the position with its caption; one without an end through
/// the first '>' behind its start. Without a link the text stays as it is.
[[nodiscard]] ElementEdit DeleteLink(
    std::string_view text, int position, const OutputRules& rules = OutputRules());

} // namespace quillmere
