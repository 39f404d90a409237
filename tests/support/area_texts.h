#pragma once

#include "document/text/output_rules.h"

#include <functional>
#include <string>

// Design texts that what holds for every text is tried on.

namespace quillmere::test {

using UseText = std::function<void(const std::string& text)>;

/// Calls `use` with the design texts of many areas: the samples of the gallery, the decks of
/// examples/, decks that were generated, whole ones and broken ones, and texts of loose tags. Each
/// has a name that tells where to find it again.
void forEachAreaText(
    const std::function<void(const std::string& name, const std::string& text)>& use);

/// Those by which a text is to be read: with an atom in it, those that lose nothing.
[[nodiscard]] OutputRules rulesOf(const std::string& text);

/// Cards without faults as they travel where nothing is lost: with atoms, anchors and groups.
void forEachFormText(const UseText& use);

/// The areas of generated decks with so many faults per element, 0 for none.
void forEachDeckText(double faults, const UseText& use);

/// Some thousand short texts of tags, markers, references and white space in any order, and all
/// short sequences of a few of them.
void forEachSoup(const UseText& use);

} // namespace quillmere::test
