#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace quillmere::wml {

/// The entities that a deck may refer to: the five of XML; those of WML 1.1 where a document type
/// is named; those of its internal subset; any, where the document type is another than those of
/// the WAP Forum, whose file nobody reads here.
class DeckEntities {
public:
    /// `doctype` is the whole declaration, well-formed; "" for a deck without one.
    explicit DeckEntities(std::string_view doctype);
    [[nodiscard]] bool knows(std::string_view name) const;

private:
    void readSubset(std::string_view subset);

    bool hasDoctype_ = false;
    bool knowsAll_ = false;
    std::unordered_set<std::string> declared_;
};

/// The number of the character that an entity of HTML 4 names in Latin-1 text, such as "auml"; 0
/// for others. Authors write them although WML has none of them.
[[nodiscard]] unsigned htmlEntity(std::string_view name);

} // namespace quillmere::wml
