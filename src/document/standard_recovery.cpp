// The design texts name their pictures by the paths of display copies, which lie among the work
// files of the run that left them. Held by standard_road_test.cpp and recovery_test.cpp.

#include "document/standard_recovery.h"

#include "document/deck_loading.h"
#include "document/images.h"
#include "document/platform/files.h"
#include "document/standard/shown_text.h"
#include "document/standard_pictures.h"
#include "document/text/text_search.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

namespace quillmere {

namespace {

/// Takes the display copies of a deck among the work files of a session. One that is gone stays
/// named, so that its picture is known.
class PictureMove {
public:
    explicit PictureMove(DocumentSession& session)
        : session_(session)
    {
    }
    void move(ImageEntry& image);
    /// A design text with the new paths of what was moved.
    [[nodiscard]] std::string renamed(std::string_view design) const;

private:
    using Names = std::map<std::string, std::string, std::less<>>;

    DocumentSession& session_;
    std::map<std::string, Names> names_; ///< the new names by the old ones, by their directories
};

void PictureMove::move(ImageEntry& image)
{
    const auto path = image.displayDir + image.displayFile;
    if (image.displayFile.empty() || !regularFileExists(path)) return;
    auto& files = session_.workFiles;
    auto& name = names_[image.displayDir][image.displayFile];
    if (name.empty()) {
        name = FindFreeBmpName(session_);
        files.write(files.directory() + name, readFile(path));
    }
    image.displayFile = name;
    image.displayDir = files.directory();
}

std::string PictureMove::renamed(std::string_view design) const
{
    std::string text(design);
    for (const auto& [directory, names] : names_) {
        const auto written = shownValue(directory);
        const auto here = shownValue(session_.workFiles.directory());
        const std::string_view source = text;
        Rewriter result(source);
        for (auto at = source.find(written); at != npos; at = source.find(written, at + 1)) {
            const auto begin = at + written.size();
            const auto end = std::min(source.find_first_of("\"'<> ", begin), source.size());
            const auto name = names.find(source.substr(begin, end - begin));
            if (name == names.end()) continue;
            result.drop(at, end);
            result.append(here + name->second);
        }
        text = result.take();
    }
    return text;
}

void takeAreas(DocumentSession& session, std::vector<LeftArea> areas)
{
    PictureMove pictures(session);
    for (std::size_t i = 0; i < areas.size(); ++i) {
        if (i > 0) useSpareRecord(session);
        auto& record = session.deck[i];
        for (auto& image : areas[i].images)
            pictures.move(image);
        record.images = std::move(areas[i].images);
        record.images.emplace_back(); // the spare one
    }
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const auto& record = session.deck[i];
        session.workFiles.write(
            record.designDir + record.designFile, pictures.renamed(areas[i].design));
    }
}

/// The pictures' sizes stay as they were left.
void tieToCard(DocumentSession& session, std::size_t area, std::uint32_t card)
{
    auto& record = session.deck[area];
    record.origin.index = card;
    if (card >= record.origin.deck->cardCount()) return;
    const auto left = record.images;
    const auto roads = picturesOf(session, area);
    record.origin.card = std::make_shared<const OpenedCard>(record.origin.deck->open(card, roads));
    std::copy(left.begin(), left.end() - 1, record.images.begin());
}

} // namespace

std::uint32_t cardOf(const DeckRecord& area)
{
    return area.origin.card ? area.origin.index : kNoCard;
}

void reopenDeck(DocumentSession& session, LeftDeck left)
{
    const auto deck = left.opened ? std::make_shared<const StandardDeck>(*left.opened)
                                  : std::make_shared<const StandardDeck>();
    std::vector<std::uint32_t> cards;
    for (const auto& area : left.areas)
        cards.push_back(area.card);
    DeckReplacement replacement(session);
    auto& first = beginDeck(session, left.location, 0);
    first.origin.deck = deck;
    nameWmlFile(session, replacement, left.location, deck->file());
    if (left.opened) {
        first.pristineFile = writeWorkCopy(session.workFiles, std::move(*left.opened));
        first.pristineDir = session.workFiles.directory();
    }
    takeAreas(session, std::move(left.areas));
    for (std::size_t i = 0; i < cards.size(); ++i)
        tieToCard(session, i, cards[i]);
    replacement.commit();
}

} // namespace quillmere
