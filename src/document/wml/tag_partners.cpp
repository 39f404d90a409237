// Two walks over each stretch of tokens: one that pairs the tags of each name, one that parts those
// again of which some are left over. Held by tests/document/wml/wml_mends_test.cpp.

#include "document/wml/tag_partners.h"

#include "document/text/windows1252.h"

#include <utility>

namespace quillmere::wml {

namespace {

using Kind = WmlToken::Kind;
using Tokens = std::span<const WmlToken>;

/// Elements that nest, with nothing but white space, comments and the prolog around the one that
/// holds the others.
class NestingCheck {
public:
    explicit NestingCheck(Tokens tokens)
        : tokens_(tokens)
        , partners_(tokens.size(), kNoPartner)
    {
    }

    bool run()
    {
        for (std::uint32_t i = 0; i < tokens_.size(); ++i)
            if (!check(i)) return false;
        return open_.empty() && hasRoot_;
    }
    std::vector<std::uint32_t> takePartners() { return std::move(partners_); }

private:
    bool check(std::uint32_t i)
    {
        const WmlToken& token = tokens_[i];
        switch (token.kind) {
        case Kind::StartTag:
        case Kind::EmptyTag:
            if (open_.empty() && hasRoot_) return false;
            hasRoot_ = true;
            if (token.kind == Kind::StartTag) open_.push_back(i);
            return true;
        case Kind::EndTag:
            return checkEnd(i);
        case Kind::Word:
        case Kind::Section:
            return !open_.empty();
        case Kind::Instruction:
            return i == 0 || !equalIgnoringCase(token.name, "xml");
        case Kind::Declaration:
            return !hasRoot_ && !std::exchange(hasDoctype_, true);
        case Kind::Comment:
        case Kind::Space:
            return true;
        }
        return true;
    }

    bool checkEnd(std::uint32_t i)
    {
        if (open_.empty()) return false;
        const WmlToken& start = tokens_[open_.back()];
        const bool isSame = start.element == tokens_[i].element
            && (start.element != WmlElement::Other || start.name == tokens_[i].name);
        if (!isSame) return false;
        partners_[i] = open_.back();
        partners_[open_.back()] = i;
        open_.pop_back();
        return true;
    }

    Tokens tokens_;
    std::vector<std::uint32_t> partners_;
    std::vector<std::uint32_t> open_;
    bool hasRoot_ = false;
    bool hasDoctype_ = false;
};

bool isTag(const WmlToken& token)
{
    return token.kind == Kind::StartTag || token.kind == Kind::EndTag;
}

bool partsStretches(const WmlToken& token)
{
    const bool isFrame = token.element == WmlElement::Card || token.element == WmlElement::Wml;
    return isFrame && (isTag(token) || token.kind == Kind::EmptyTag);
}

/// Pairs the tags of each stretch between two tags of cards or decks.
class StretchPairing {
public:
    StretchPairing(Tokens tokens, ElementNumbers& numbers, TagPartners& result)
        : tokens_(tokens)
        , numbers_(numbers)
        , result_(result)
    {
    }

    void run()
    {
        result_.of.assign(tokens_.size(), kNoPartner);
        std::uint32_t begin = 0;
        for (std::uint32_t i = 0; i <= tokens_.size(); ++i) {
            if (i < tokens_.size() && !partsStretches(tokens_[i])) continue;
            pair(begin, i);
            begin = i + 1;
        }
    }

private:
    struct NameState {
        std::vector<std::uint32_t> open;
        std::uint32_t stretch = kNoPartner;
        bool isLoose = false; ///< some tag of the name is left over
    };

    NameState& stateOf(const WmlToken& tag, std::uint32_t stretch)
    {
        const auto number = numbers_.of(tag);
        if (number >= states_.size()) states_.resize(number + 1);
        NameState& state = states_[number];
        if (state.stretch != stretch) {
            state.open.clear();
            state.isLoose = false;
            state.stretch = stretch;
        }
        return state;
    }

    void pair(std::uint32_t begin, std::uint32_t end)
    {
        for (auto i = begin; i < end; ++i)
            if (isTag(tokens_[i])) pairTag(i, stateOf(tokens_[i], begin));
        for (auto i = begin; i < end; ++i) {
            if (!isTag(tokens_[i])) continue;
            const NameState& state = stateOf(tokens_[i], begin);
            if (state.isLoose || !state.open.empty()) part(i, end);
        }
    }

    void pairTag(std::uint32_t i, NameState& state)
    {
        if (tokens_[i].kind == Kind::StartTag) return state.open.push_back(i);
        if (state.open.empty()) {
            state.isLoose = true;
            return;
        }
        result_.of[i] = state.open.back();
        result_.of[state.open.back()] = i;
        state.open.pop_back();
    }

    /// Of empty elements those keep their end that follows directly.
    void part(std::uint32_t i, std::uint32_t end)
    {
        const WmlToken& token = tokens_[i];
        const bool isEmpty = ruleOf(token.element).isEmpty;
        if (i == confirmed_) return;
        result_.of[i] = kNoPartner;
        if (!isEmpty || token.kind == Kind::EndTag) return;
        auto next = i + 1;
        while (next < end && tokens_[next].kind == Kind::Space)
            ++next;
        const bool isEnded = next < end && tokens_[next].kind == Kind::EndTag
            && tokens_[next].element == token.element;
        if (!isEnded) return result_.emptied.push_back(i);
        result_.of[i] = next;
        result_.of[next] = i;
        confirmed_ = next;
    }

    Tokens tokens_;
    ElementNumbers& numbers_;
    TagPartners& result_;
    std::vector<NameState> states_;
    std::uint32_t confirmed_ = kNoPartner;
};

} // namespace

std::uint32_t ElementNumbers::of(const WmlToken& tag)
{
    if (tag.element != WmlElement::Other) return static_cast<std::uint32_t>(tag.element);
    const auto next = static_cast<std::uint32_t>(wmlElementRules().size() + others_.size());
    return others_.try_emplace(tag.name, next).first->second;
}

TagPartners findTagPartners(Tokens tokens, ElementNumbers& numbers)
{
    TagPartners result;
    NestingCheck check(tokens);
    result.isWellFormed = check.run();
    if (result.isWellFormed) {
        result.of = check.takePartners();
    } else {
        StretchPairing(tokens, numbers, result).run();
    }
    return result;
}

} // namespace quillmere::wml
