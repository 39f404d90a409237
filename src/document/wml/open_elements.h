#pragma once

#include "document/wml/tag_partners.h"
#include "document/wml/wml_tree.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillmere::wml {

/// An element that has no end yet.
struct OpenElement {
    WmlElement element = WmlElement::Other;
    std::uint32_t node = 0;
    std::uint32_t token = kNoToken; ///< its start tag; none: it was mended in
    std::uint32_t partner = kNoPartner; ///< its end tag, if that is sure
    std::uint32_t number = 0; ///< of its name
    std::uint32_t lastChild = kNoNode;

    [[nodiscard]] bool isMendedIn() const { return token == kNoToken; }
    [[nodiscard]] bool isFormat() const { return ruleOf(element).isFormat; }
    /// Whether it may be closed where its content ends by the look of it.
    [[nodiscard]] bool isLoose() const { return partner == kNoPartner; }
};

/// The elements that are open, the document itself the first of them. Each question is answered
/// without a walk.
class OpenElements {
public:
    OpenElements();
    void push(const OpenElement& element);
    void pop();

    [[nodiscard]] OpenElement& top() { return elements_.back(); }
    [[nodiscard]] const OpenElement& at(std::size_t position) const { return elements_[position]; }
    [[nodiscard]] std::size_t size() const { return elements_.size(); }
    /// The position of the last one that is no format.
    [[nodiscard]] std::size_t holder() const { return holders_.back(); }
    /// That of the one that is no format ahead of the position of another such one, 0 for none.
    [[nodiscard]] std::size_t holderAhead(std::size_t position) const;
    /// The position of the last one that is no format and has a sure end: a stray end of another
    /// name does not reach beyond.
    [[nodiscard]] std::size_t barrier() const { return barriers_.back(); }
    /// The position of the last one with a name.
    [[nodiscard]] std::optional<std::size_t> last(std::uint32_t number) const;

private:
    std::vector<OpenElement> elements_;
    std::vector<std::size_t> holders_;
    std::vector<std::size_t> barriers_;
    std::vector<std::vector<std::size_t>> places_; ///< by number
};

} // namespace quillmere::wml
