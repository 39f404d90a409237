#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillmere::wml {

/// The entities that a deck may refer to: the five of XML; those of WML 1.1 where the document type
/// names a file, since a mere `<!DOCTYPE wml>` declares none; those of its internal subset; any,
/// where the document type is another than those of the WAP Forum, whose file nobody reads here.
class DeckEntities {
public:
    /// `doctype` is the whole declaration, well-formed; "" for a deck without one.
    explicit DeckEntities(std::string_view doctype = {});
    [[nodiscard]] bool knows(std::string_view name) const;

    /// What an entity of the internal subset stands for, as it is declared: references in it are
    /// not followed, and an entity in a file is what names the file, `SYSTEM "x.ent"`. nullopt for
    /// the others.
    [[nodiscard]] std::optional<std::string_view> meaningOf(std::string_view name) const;
    [[nodiscard]] bool declaresAny() const { return !declared_.empty(); }

private:
    void readSubset(std::string_view subset);
    void readEntity(std::string_view declaration);

    bool hasFile_ = false;
    bool knowsAll_ = false;
    std::unordered_map<std::string, std::string> declared_; ///< the meanings by the names
};

/// The name of the reference that a text begins with, "auml" of "&auml;b"; "" where it begins with
/// none, or with one of a number.
[[nodiscard]] std::string_view entityAtBegin(std::string_view text);

/// The number of the character that an entity of HTML 4 names in Latin-1 text, such as "auml"; 0
/// for others. Authors write them although WML has none of them.
[[nodiscard]] unsigned htmlEntity(std::string_view name);

} // namespace quillmere::wml
