// Held by standard_road_test.cpp.

#include "document/standard_pictures.h"

#include "document/images.h"
#include "document/standard/shown_text.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "document/wml/deck_bytes.h"
#include "document/wml/wml_token.h"

namespace quillmere {

namespace {

constexpr std::string_view kScheme = "file://";

/// What the dialog of pictures reads from the entry.
void takeLayout(ImageEntry& entry, const DeckPicture& picture)
{
    if (picture.alignment) entry.alignment = trimBlanks(*picture.alignment);
    if (picture.heightPx) entry.heightPx = *picture.heightPx;
    if (picture.widthPx) entry.widthPx = *picture.widthPx;
    entry.hasLayout = picture.heightPx || picture.widthPx;
}

std::string showPicture(DocumentSession& session, std::size_t areaIndex, const DeckPicture& picture)
{
    auto& area = session.deck[areaIndex];
    const auto path = area.deckDir + std::string(trimBlanks(picture.source));
    auto display = RegisterImage(session, areaIndex, path, picture.alternativeText);
    if (display.empty()) return display;
    const auto* const known = area.imageIndex.find(area.images, path);
    if (known != nullptr)
        takeLayout(area.images[static_cast<std::size_t>(known - area.images.data())], picture);
    return display;
}

} // namespace

PictureRoads picturesOf(DocumentSession& session, std::size_t areaIndex)
{
    return {[&session, areaIndex](
                const DeckPicture& picture) { return showPicture(session, areaIndex, picture); },
        nullptr};
}

PictureRoads pictureNames(DisplayCopyIndex& pictures, const Deck& deck)
{
    const auto name = [&](std::string_view path) -> std::optional<std::string> {
        const auto scheme = findIgnoringCase(path, kScheme);
        if (scheme != npos) path.remove_prefix(scheme + kScheme.size());
        const auto& places = pictures.find(trimBlanks(path));
        if (places.empty()) return std::nullopt;
        return deck[places.back().area].images[places.back().entry].sourceFile;
    };
    return {nullptr, name};
}

std::vector<std::string> picturesIn(const std::string& file)
{
    const DeckBytes deck(file);
    std::vector<std::string> names;
    for (const auto& token : readWmlTokens(deck.text())) {
        if (token.element != WmlElement::Image || token.kind == WmlToken::Kind::EndTag) continue;
        const auto source = attributeValue(token.source, "src").value_or("");
        names.emplace_back(trimBlanks(plainValue(shownValue(deck.decoded(source)))));
    }
    return names;
}

} // namespace quillmere
