// The prolog comes first, since the document type tells which entities there are. Held by
// tests/document/wml/wml_mends_test.cpp.

#include "document/wml/token_pass.h"

#include "document/text/text_search.h"
#include "document/text/windows1252.h"
#include "document/wml/deck_ids.h"
#include "document/wml/prolog_mends.h"

#include <functional>
#include <unordered_set>

namespace quillmere::wml {

namespace {

using Kind = WmlToken::Kind;

bool isXmlDeclaration(const WmlToken& token)
{
    return token.kind == Kind::Instruction && equalIgnoringCase(token.name, "xml");
}

bool isDoctype(const WmlToken& token)
{
    return token.kind == Kind::Declaration && standsAt(token.source, 0, "<!doctype");
}

class TokenPass {
public:
    TokenPass(WmlTree& tree, const DeckBytes& deck)
        : tree_(tree)
        , deck_(deck)
    {
    }

    void run()
    {
        const auto doctype = mendProlog();
        const DeckEntities entities(doctype);
        const TokenMender mender(deck_, entities);
        for (std::uint32_t i = 0; i < tree_.tokens.size(); ++i) {
            WmlToken& token = tree_.tokens[i];
            follow(token);
            if (isXmlDeclaration(token) || isDoctype(token) || token.mended != kNotMended) continue;
            if (auto mended = mender.mend(token)) take(i, std::move(*mended));
            if (token.kind == Kind::Declaration) token.kind = Kind::Comment;
        }
        mendIds();
    }

private:
    /// Keeps the place in the text, for tokens that are not of it.
    void follow(const WmlToken& token) { offset_ = offsetIn(deck_, token).value_or(offset_); }

    void take(std::uint32_t i, MendedToken mended)
    {
        WmlToken& token = tree_.tokens[i];
        for (auto& fault : mended.faults)
            tree_.mends.push_back(
                {fault.rule, offset_, std::move(fault.before), std::move(fault.after)});
        if (mended.isWord) token.kind = Kind::Word;
        if (mended.text.empty()) token.kind = Kind::Space;
        if (token.kind == Kind::Space || token.kind == Kind::Word)
            token.element = WmlElement::Other;
        setText(tree_, i, std::move(mended.text));
    }

    void drop(std::uint32_t i)
    {
        const std::string source(tree_.tokens[i].source);
        take(i, {"", {{MendRule::BadDeclaration, source, ""}}, false});
    }

    /// The first declarations count, further ones go. Returns the document type.
    std::string_view mendProlog()
    {
        std::string_view doctype;
        bool hasDeclaration = false;
        bool isBeginning = true;
        for (std::uint32_t i = 0; i < tree_.tokens.size(); ++i) {
            const WmlToken token = tree_.tokens[i];
            follow(token);
            if (isXmlDeclaration(token)) {
                if (hasDeclaration)
                    drop(i);
                else if (auto mended = mendXmlDeclaration(token.source, deck_, isBeginning))
                    take(i, std::move(*mended));
                hasDeclaration = true;
            } else if (isDoctype(token)) {
                if (!doctype.empty())
                    drop(i);
                else if (auto mended = mendDoctype(token.source, deck_))
                    take(i, std::move(*mended));
                if (doctype.empty()) doctype = tree_.textOf(i);
            }
            isBeginning = isBeginning && token.kind == Kind::Space;
        }
        offset_ = 0;
        return doctype;
    }

    void mendIds()
    {
        std::unordered_set<std::string_view> seen;
        offset_ = 0;
        for (std::uint32_t i = 0; i < tree_.tokens.size(); ++i) {
            follow(tree_.tokens[i]);
            if (!tree_.tokens[i].hasId) continue;
            const auto id = attributeValue(tree_.textOf(i), "id");
            if (id && !id->empty() && !seen.insert(*id).second) rename(i, *id);
        }
    }

    void rename(std::uint32_t i, std::string_view id)
    {
        if (ids_.empty()) ids_ = idsOf(tree_);
        const auto text = tree_.textOf(i);
        const auto begin = static_cast<std::size_t>(id.data() - text.data());
        std::string renamed(text);
        renamed.replace(begin, id.size(), freeId(ids_, id));
        tree_.mends.push_back({MendRule::DoubledId, offset_, std::string(text), renamed});
        setText(tree_, i, std::move(renamed));
    }

    WmlTree& tree_;
    const DeckBytes& deck_;
    std::size_t offset_ = 0;
    DeckIds ids_; // once one is doubled
};

} // namespace

void mendTokens(WmlTree& tree, const DeckBytes& deck)
{
    TokenPass(tree, deck).run();
}

std::optional<std::size_t> offsetIn(const DeckBytes& deck, const WmlToken& token)
{
    const auto text = deck.text();
    const char* const begin = token.source.data();
    const std::less<> isAhead;
    if (isAhead(begin, text.data()) || !isAhead(begin, text.data() + text.size()))
        return std::nullopt;
    return static_cast<std::size_t>(begin - text.data());
}

void setText(WmlTree& tree, std::uint32_t token, std::string text)
{
    tree.tokens[token].mended = static_cast<std::uint32_t>(tree.texts.size());
    tree.texts.push_back(std::move(text)); // never in place of another: that one may be in use
}

} // namespace quillmere::wml
