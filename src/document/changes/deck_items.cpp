// Ends find their starts by name, the last open one of that name, whatever else is open: so in
// "<b><i></b></i>" both elements are whole. Held by deck_changes_test.cpp.

#include "document/changes/deck_items.h"

#include "document/changes/character_references.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace quillmere {

namespace {

using Kind = MarkupToken::Kind;

class ItemReader {
public:
    explicit ItemReader(DeckItems& deck)
        : deck_(deck)
    {
    }

    void read()
    {
        deck_.items.reserve(2 * deck_.document.tokens.size());
        closed_.reserve(2 * deck_.document.tokens.size());
        for (token_ = 0; token_ < deck_.document.tokens.size(); ++token_)
            readToken(deck_.document.tokens[token_]);
    }

private:
    void readToken(const MarkupToken& token)
    {
        switch (token.kind) {
        case Kind::Start:
            return addStart(token);
        case Kind::Empty:
            return addStart(token), addEnd(token);
        case Kind::End:
            return addEnd(token);
        case Kind::Text:
        case Kind::Section:
            return addWords(token);
        case Kind::Comment:
            return addText(DeckItem::Kind::Comment, token);
        case Kind::Doctype:
            return addText(DeckItem::Kind::Doctype, token);
        case Kind::Instruction:
            if (!equalIgnoringCase(token.name, "xml")) addText(DeckItem::Kind::Instruction, token);
            return;
        }
    }

    DeckItem& add(DeckItem::Kind kind, std::size_t offset, std::string name)
    {
        while (!open_.empty() && closed_[open_.back()])
            open_.pop_back();
        DeckItem item{kind, offset, token_, std::move(name)};
        if (!open_.empty()) item.parent = open_.back();
        deck_.items.push_back(std::move(item));
        closed_.push_back(false);
        return deck_.items.back();
    }

    void addStart(const MarkupToken& token)
    {
        const auto at = deck_.items.size();
        const auto& item = add(DeckItem::Kind::Start, token.begin, lowerCase(token.name));
        openByName_[item.name].push_back(at);
        open_.push_back(at);
    }

    void addEnd(const MarkupToken& token)
    {
        const auto at = deck_.items.size();
        auto& item = add(DeckItem::Kind::End, token.begin, lowerCase(token.name));
        auto& starts = openByName_[item.name];
        if (starts.empty()) return;
        item.partner = starts.back();
        deck_.items[item.partner].partner = at;
        closed_[item.partner] = true;
        starts.pop_back();
    }

    void addText(DeckItem::Kind kind, const MarkupToken& token)
    {
        std::string words;
        for (const char character : token.content) {
            if (!isMarkupSpace(character)) {
                words += character;
            } else if (!words.empty() && words.back() != ' ') {
                words += ' ';
            }
        }
        if (words.ends_with(' ')) words.pop_back();
        if (kind == DeckItem::Kind::Instruction) words.insert(0, std::string(token.name) + " ");
        add(kind, token.begin, std::move(words));
    }

    void addWords(const MarkupToken& token)
    {
        const auto begin = static_cast<std::size_t>(token.content.data() - deck_.text.data());
        std::string word;
        std::size_t wordBegin = 0;
        for (std::size_t at = 0; at < token.content.size();) {
            auto character = token.kind == Kind::Section
                ? DecodedCharacter{{}, 1, std::string(1, token.content[at])}
                : decodeCharacter(token.content, at);
            if (isMarkupSpace(character.text.front())) {
                finishWord(word, begin + wordBegin);
                behindWord_ = false;
            } else {
                if (word.empty()) wordBegin = at;
                word += character.text;
            }
            at += character.length;
        }
        finishWord(word, begin + wordBegin);
    }

    void finishWord(std::string& word, std::size_t offset)
    {
        if (word.empty()) return;
        add(DeckItem::Kind::Word, offset, std::exchange(word, {})).joined = behindWord_;
        behindWord_ = true;
    }

    DeckItems& deck_;
    std::size_t token_ = 0;
    bool behindWord_ = false;
    std::vector<std::size_t> open_; // may hold closed ones below the last
    std::vector<bool> closed_; // by item
    std::unordered_map<std::string, std::vector<std::size_t>> openByName_;
};

} // namespace

DeckItems::DeckItems(std::string_view deckText)
    : text(deckText)
    , document(readMarkup(deckText))
{
    ItemReader(*this).read();
}

std::string DeckItems::key(const DeckItem& item) const
{
    if (item.kind != DeckItem::Kind::Start) return item.name;
    std::vector<std::string> attributes;
    for (const auto& attribute : document.attributesOf(document.tokens[item.token]))
        attributes.push_back(' ' + lowerCase(attribute.name) + '\0' + plainValue(attribute));
    std::sort(attributes.begin(), attributes.end());
    std::string key = item.name;
    for (const auto& attribute : attributes)
        key += attribute + '\0';
    return key;
}

std::string_view DeckItems::source(const DeckItem& item) const
{
    const auto& token = document.tokens[item.token];
    return text.substr(token.begin, token.end - token.begin);
}

std::string DeckItems::parentName(const DeckItem& item) const
{
    return item.parent == kNoItem ? std::string() : items[item.parent].name;
}

std::string plainValue(const MarkupAttribute& attribute)
{
    std::string value = decodeReferences(attribute.value);
    std::replace_if(value.begin(), value.end(), isMarkupSpace, ' ');
    const auto isDouble = [](char a, char b) { return a == ' ' && b == ' '; };
    value.erase(std::unique(value.begin(), value.end(), isDouble), value.end());
    return std::string(trimBlanks(value));
}

} // namespace quillmere
