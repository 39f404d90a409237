#pragma once

#include "document/text/output_rules.h"

#include <string>
#include <string_view>

namespace quillmere {

/// The design text without the do block of its jump, or else without its first do block: from
/// "<!--do" through the '>' of the next "<!--/do", in any case. Without such a block, or without
/// its end, it stays as it is.
[[nodiscard]] std::string withoutDoBlock(
    std::string_view text, const OutputRules& rules = OutputRules());

/// The text with all that leads to the card `oldId` leading to `newId`: attribute values in double
/// quotes that are "#" and the id, where nothing is lost in single ones as well, and the addresses
/// of temporary radio buttons.
[[nodiscard]] std::string withTargetsRenamed(std::string_view text, std::string_view oldId,
    std::string_view newId, const OutputRules& rules = OutputRules());

/// The same for a state of an area that an undo may bring back, with the card's own id changed as
/// well: so an undo does not part an area from what leads to it.
[[nodiscard]] std::string stateWithIdRenamed(std::string_view state, std::string_view oldId,
    std::string_view newId, const OutputRules& rules = OutputRules());

/// Whether anything in the text leads to the card `id`: a value in quotes that is "#" and it.
[[nodiscard]] bool leadsTo(std::string_view text, std::string_view id);

/// What keeps a text from being a card's id, which other cards lead to by "#" and this id.
enum class CardIdFault { None, Empty, BadCharacter, BadBegin };

/// An id is made of letters (ä, ö, ü and ß as well), digits, "_", "-" and ".", and begins
/// with a letter or "_", for it is a name in XML. What else an id may
/// hold in WML would be changed by saving, or ends an attribute.
[[nodiscard]] CardIdFault cardIdFault(std::string_view id);

} // namespace quillmere
