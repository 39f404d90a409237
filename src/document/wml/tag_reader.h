#pragma once

#include "document/wml/wml_token.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillmere::wml {

/// Reads one tag from left to right: its name at once, an attribute with each call of next(), its
/// end with the call that finds none. It reads the tag's own slice just as it reads the tag in the
/// text around it.
class TagReader {
public:
    /// `begin` is the offset of the '<', at which beginsMarkup() holds.
    TagReader(std::string_view text, std::size_t begin);

    [[nodiscard]] std::optional<WmlAttribute> next();

    [[nodiscard]] std::string_view name() const { return name_; }
    [[nodiscard]] WmlElement element() const { return element_; }
    [[nodiscard]] bool isEnd() const { return isEnd_; }
    /// What is known once next() has found the end.
    [[nodiscard]] bool isEmpty() const { return isEmpty_; }
    [[nodiscard]] std::size_t end() const { return at_; } ///< behind the '>'
    [[nodiscard]] bool isFaulty() const { return isFaulty_; }
    [[nodiscard]] bool needsLook() const;
    [[nodiscard]] bool hasId() const { return hasId_; }

private:
    [[nodiscard]] bool isText();
    [[nodiscard]] std::size_t nextBracket() const;
    [[nodiscard]] std::size_t behindValue(std::size_t equals) const;
    [[nodiscard]] bool findAttribute();
    [[nodiscard]] bool endsHere(std::size_t behindLast);
    [[nodiscard]] bool endsWithSlash();
    std::string_view takeName();
    void takeValue(WmlAttribute& attribute);
    void takeBareValue(WmlAttribute& attribute);
    void takeQuotedValue(WmlAttribute& attribute);
    bool passServerCode();
    void takeUnendedValue(WmlAttribute& attribute, std::size_t begin, std::size_t end);
    void noteName(std::string_view name);
    void skipSpace();

    std::string_view text_;
    std::size_t at_;
    std::string_view name_;
    WmlElement element_ = WmlElement::Other;
    std::array<std::string_view, 8> names_; ///< of the first attributes
    std::size_t attributes_ = 0;
    std::size_t bracket_ = 0; ///< the next one, once it was looked for
    std::uint8_t nameKinds_ = 0;
    std::uint8_t valueKinds_ = 0;
    bool isEnd_ = false;
    bool isEmpty_ = false;
    bool isFaulty_ = false;
    bool hasId_ = false;
};

} // namespace quillmere::wml
