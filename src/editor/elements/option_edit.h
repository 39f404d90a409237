#pragma once

#include "editor/elements/element_edit.h"

#include <optional>
#include <string>
#include <string_view>

// The entries of selection lists: <!--select--><!--option onpick="TARGET"-->CAPTION<!--/option-->
// ... <!--/select--><br/>; where nothing is lost no <br/> is put behind a new list. After each edit
// all radio buttons of the area are numbered anew.

namespace quillmere {

struct OptionSettings {
    std::string caption; ///< its markup; may be empty
    std::string target; ///< "#" and a card id, or a URL, as it stands between the quotes
};

/// The first option at or behind the position; its caption is the text outside of tags. nullopt
/// where there is none.
[[nodiscard]] std::optional<OptionSettings> GetOption(std::string_view text, int position);

/// Puts an option in behind the position where that is the one of a found option. Else it joins a
/// list of the area as its last option: the list around the position, or the next one behind it, or
/// the last one ahead. In an area without a list it makes one, behind the first valid place at the
/// position and with the formats there ended ahead of it and begun again behind it. The caret
/// stands behind the list.
[[nodiscard]] ElementEdit SetOption(std::string_view text, int position, bool optionFound,
    const OptionSettings& wanted, const OutputRules& rules = OutputRules());

/// Where a new option goes in while the caret stands in the first one at or behind the position:
/// ahead of that one; where nothing is lost behind it if the caret stands behind its caption, as it
/// does behind a list that ends its line.
[[nodiscard]] int newOptionPosition(
    std::string_view text, int position, std::size_t caret, const OutputRules& rules);

/// Makes the first option at or behind the position what is wanted, as DeleteOption with `Replace`
/// and SetOption at the same place would: so by the default the list of an only option is a new
/// one, with one more <br/> behind it. Where nothing is lost no <br/> comes, other attributes of
/// the option stay, and so do tags in it where the caption is the same to a reader. The caret
/// stands behind its caption. Without an option the text stays as it is.
[[nodiscard]] ElementEdit ReplaceOption(std::string_view text, int position,
    const OptionSettings& wanted, const OutputRules& rules = OutputRules());

/// Takes out the first option at or behind the position, and with the only option of a list the
/// list, but not the <br/> behind it; where nothing is lost with the only option of a group the
/// group. `Replace` leaves the radio buttons as they are, since another edit follows. Without an
/// option the text stays as it is.
[[nodiscard]] ElementEdit DeleteOption(
    std::string_view text, int position, bool Replace, const OutputRules& rules = OutputRules());

/// Ends all formats that enclose the list at offset `list` ahead of it and begins them again behind
/// it and the <br/> that follows, all at once so that they stay nested; a pair that then holds
/// nothing is left out, by the default such pairs elsewhere as well.
/// "<b>x<!--select-->...<!--/select--><br/>y</b>" becomes
/// "<b>x</b><!--select-->...<!--/select--><br/><b>y</b>".
[[nodiscard]] std::string MoveFormatTagsOutOfSelect(
    std::string_view text, std::size_t list, const OutputRules& rules = OutputRules());

} // namespace quillmere
