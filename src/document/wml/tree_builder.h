#pragma once

#include "document/wml/deck_ids.h"
#include "document/wml/open_elements.h"
#include "document/wml/tag_partners.h"
#include "document/wml/wml_tree.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere::wml {

/// Hangs the tokens of a tree, mended in themselves, into it, one by one from left to right. White
/// space waits until it is known on which side of an end that is mended in it stands.
class TreeBuilder {
public:
    TreeBuilder(WmlTree& tree, const DeckBytes& deck);
    void build();

private:
    // the tokens (tree_builder.cpp)
    void add(std::uint32_t i);
    void addText(std::uint32_t i);
    void addStart(std::uint32_t i);
    void addElement(std::uint32_t i);
    void addEnd(std::uint32_t i);
    void finish();

    // the nodes
    std::uint32_t addNode(WmlNode::Kind kind, WmlElement element, std::uint32_t token);
    void addLeaf(WmlNode::Kind kind, std::uint32_t token);
    void open(std::uint32_t i);
    void openMendedIn(WmlElement element, std::uint32_t token, bool isOfFile);
    void close(std::uint32_t endToken);
    void closeWithoutTag();
    void flushSpace();
    [[nodiscard]] bool spaceHasLineEnd() const;
    std::uint32_t addToken(WmlToken::Kind kind, std::string text);
    std::uint32_t addStartTag(WmlElement element, std::string text);
    void note(MendRule rule, std::string before, std::string after);

    // what holds content (mended_places.cpp)
    void openPlaceFor(std::uint32_t i, WmlElement element, bool isText);
    void openDeck();
    void openCard();
    void openParagraph();
    void closeMendedFor(std::uint32_t i, WmlElement element);
    void openDeckWith(std::uint32_t token, bool isOfFile);
    [[nodiscard]] bool holdsBlock(std::uint32_t i, bool ofCards) const;

    // what is not well-formed (broken_tags.cpp)
    void addBrokenStart(std::uint32_t i);
    void addBrokenEnd(std::uint32_t i);
    void startDeck(std::uint32_t i);
    void startCard(std::uint32_t i);
    void endDeck(std::uint32_t i);
    void endCard(std::uint32_t i);
    void endPartnered(std::uint32_t i, std::optional<std::size_t> position);
    void strayEnd(std::uint32_t i);
    void closeDownTo(std::size_t position);
    void closeLooseFor(WmlElement element, bool isText);
    void closeOverlappingFormats(std::uint32_t i);
    void reopenFormats(std::uint32_t i);
    void reopen(std::uint32_t format);
    void keepForReopening(const OpenElement& format);
    void noteUnended(const OpenElement& element);
    void readBrokenDeck();
    void hoistXmlDeclaration();

    WmlTree& tree_;
    const DeckBytes& deck_;
    ElementNumbers numbers_;
    TagPartners partners_;
    OpenElements open_;
    std::vector<std::uint32_t> reopened_; ///< start tags of formats to be opened anew
    DeckIds ids_; ///< once a card was mended in
    std::uint32_t space_ = kNoToken; ///< that waits
    std::uint32_t now_ = 0; ///< the token that is added
    std::size_t offset_ = 0; ///< of it
    std::size_t deckPosition_ = 0; ///< of <wml> among the open elements; 0: it is not open
    bool hasDeck_ = false;
    std::uint32_t deckToken_ = kNoToken; ///< the first <wml> of a broken deck
    std::uint32_t doctype_ = kNoToken; ///< the one that is still to come
    std::uint32_t hoisted_ = kNoToken; ///< the XML declaration that stood behind something
    std::uint32_t lastContent_ = 0; ///< behind it </wml> may stand
};

} // namespace quillmere::wml
