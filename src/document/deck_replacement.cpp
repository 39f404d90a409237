// Held by deck_store_test.cpp.

#include "document/deck_replacement.h"

#include <algorithm>
#include <utility>

namespace quillmere {
namespace {

/// Calls `action` with the path of each work file that the deck names.
template <class Action> void forEachFile(const Deck& deck, const Action& action)
{
    const auto tell = [&](const std::string& directory, const std::string& file) {
        if (!file.empty()) action(directory + file);
    };
    for (const auto& area : deck) {
        tell(area.designDir, area.designFile);
        tell(area.spareDesignDir, area.spareDesignFile);
        tell(area.wmlDir, area.wmlFile);
        tell(area.pristineDir, area.pristineFile);
        for (const auto& image : area.images)
            tell(image.displayDir, image.displayFile);
    }
}

} // namespace

DeckReplacement::DeckReplacement(DocumentSession& session)
    : session_(session)
    , old_(std::exchange(session.deck, {}))
    , oldImageColour_(session.imageColour)
{
}

DeckReplacement::~DeckReplacement()
{
    if (isCommitted_) return;
    removeFilesOf(session_.deck, old_);
    session_.deck = std::move(old_);
    session_.imageColour = oldImageColour_;
}

void DeckReplacement::commit()
{
    isCommitted_ = true;
    removeFilesOf(old_, session_.deck);
}

void DeckReplacement::removeFilesOf(const Deck& gone, const Deck& other)
{
    if (gone.empty()) return;
    forEachFile(other, [&](std::string path) { kept_.insert(std::move(path)); });
    forEachFile(gone, [&](const std::string& path) {
        if (!kept_.contains(path)) session_.workFiles.remove(path);
    });
}

} // namespace quillmere
