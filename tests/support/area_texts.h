#pragma once

#include <functional>
#include <string>

namespace quillmere::test {

/// Calls `use` with the design texts of many areas: the samples of the gallery, the decks of
/// examples/, decks that were generated, whole ones and broken ones, and texts of loose tags. Each
/// has a name that tells where to find it again.
void forEachAreaText(
    const std::function<void(const std::string& name, const std::string& text)>& use);

} // namespace quillmere::test
