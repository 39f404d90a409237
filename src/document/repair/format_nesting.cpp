// RepairOnePair reads the tags of the pair from left to right and cuts as it goes; what a cut joins
// is read again. The pairs that may overlap share one look for their tags until something moves.
// Held by corrections_test.cpp, which repairs with plain searches.

#include "document/repair/format_nesting.h"

#include "document/repair/format_overlap.h"
#include "document/repair/format_pairs.h"
#include "document/text/character_walk.h"
#include "document/text/limits.h"
#include "document/text/tag_keys.h"
#include "document/text/tag_places.h"
#include "document/text/text_cutter.h"
#include "document/text/text_search.h"
#include "document/text/windows1252.h"

#include <algorithm>
#include <array>

namespace quillmere {
namespace {

/// The open and the close tag of each pair; "<b>" and "<em>" are left out on purpose.
constexpr SearchKey kNestedTags[] = {"<strong>", "</strong>", "<i>", "</i>", "<u>", "</u>", "<big>",
    "</big>", "<small>", "</small>"};

class PairRepair {
public:
    PairRepair(std::string& text, const TagPair& pair)
        : text_(text)
        , pair_(pair)
        , lastClose_(findLastIgnoringCase(text, pair.close))
        , cutter_(text)
    {
    }

    void run()
    {
        for (auto at = text_.find('<'); at != npos; at = text_.find('<', resumeAt_)) {
            resumeAt_ = at + 1;
            if (standsAt(text_, at, pair_.open))
                readOpen(at);
            else if (standsAt(text_, at, pair_.close))
                readClose(at);
        }
    }

private:
    enum class State { AheadOfAll, Outside, Inside, NoCloseLeft };

    void readOpen(std::size_t at)
    {
        const bool closes = lastClose_ != npos && lastClose_ > at;
        if (state_ == State::Inside || state_ == State::NoCloseLeft) {
            cut(at, pair_.open);
        } else if (closes) {
            keepThrough(at + pair_.open.size());
            state_ = State::Inside;
        } else {
            keepThrough(at);
            cut(at, pair_.open);
            state_ = State::NoCloseLeft;
        }
    }

    void readClose(std::size_t at)
    {
        if (state_ == State::AheadOfAll)
            cut(at, pair_.close);
        else if (state_ == State::Inside)
            state_ = State::Outside;
    }

    void keepThrough(std::size_t offset)
    {
        cutter_.keepTo(offset);
        floor_ = cutter_.kept();
        resumeAt_ = offset;
    }

    void cut(std::size_t at, std::string_view tag)
    {
        cutter_.keepTo(at);
        cutter_.dropTo(at + tag.size());
        cutter_.takeBack(std::max(pair_.open.size(), pair_.close.size()) - 1, floor_);
        resumeAt_ = cutter_.position();
    }

    std::string& text_;
    TagPair pair_;
    std::size_t lastClose_;
    TextCutter cutter_;
    State state_ = State::AheadOfAll;
    std::size_t floor_ = 0; // a tag that a cut joins counts from this kept character on
    std::size_t resumeAt_ = 0;
};

/// The places of the open and the close tag of each pair.
std::vector<Places> placesOf(std::string_view text, std::span<const TagPair> pairs)
{
    std::vector<std::string_view> keys;
    for (const TagPair& pair : pairs)
        keys.insert(keys.end(), {pair.open, pair.close});
    return tagPlaces(text, keys);
}

/// One bit for each pair whose open and close tags do not take turns up to a last close tag.
unsigned brokenPairs(std::string_view text)
{
    static constexpr TagKeys<std::size(kNestedTags)> kKeys(kNestedTags);
    constexpr unsigned kAllPairs = (1U << std::size(kNestedTags) / 2) - 1;
    unsigned open = 0; // with a bit for all other tags
    unsigned broken = 0;
    CharacterWalk openings(text, '<');
    for (auto at = openings.next(); at != npos; at = openings.next()) {
        const auto key = kKeys.find(tagCode(text.substr(at)));
        const auto pair = 1U << key / 2;
        const auto isClose = static_cast<unsigned>(key % 2);
        broken |= (open ^ pair * isClose) & pair; // an end tag wants it open, a start tag does not
        open ^= pair;
    }
    return (broken | open) & kAllPairs;
}

} // namespace

void RepairOnePair(std::string& text, std::string_view openTag, std::string_view closeTag)
{
    requireAddressable(text);
    PairRepair(text, {openTag, closeTag}).run();
}

void RepairNesting(std::string& text)
{
    requireAddressable(text);
    auto broken = brokenPairs(text);
    for (std::size_t open = 0; broken != 0 && open < std::size(kNestedTags); open += 2) {
        if ((broken >> open / 2 & 1U) == 0) continue;
        RepairOnePair(text, kNestedTags[open].text, kNestedTags[open + 1].text);
        broken = brokenPairs(text);
    }
}

void RepairOverlap(std::string& text, std::string_view openA, std::string_view closeA,
    std::string_view openB, std::string_view closeB)
{
    requireAddressable(text);
    if (findIgnoringCase(openB, openA) != npos) return;
    const std::array keys{openA, closeA, openB, closeB};
    const auto places = tagPlaces(text, keys);
    nestOverlaps(
        text, {openA, closeA}, {openB, closeB}, {places[0], places[1], places[2], places[3]});
}

void RepairFormatNesting(std::string& text)
{
    requireAddressable(text);
    auto places = placesOf(text, kFormatPairs);
    for (std::size_t a = 0; a < kFormatPairs.size(); ++a) {
        for (std::size_t b = 0; b < kFormatPairs.size(); ++b) {
            if (a == b) continue;
            const bool moved = nestOverlaps(text, kFormatPairs[a], kFormatPairs[b],
                {places[2 * a], places[2 * a + 1], places[2 * b], places[2 * b + 1]});
            if (moved) places = placesOf(text, kFormatPairs);
        }
    }
}

} // namespace quillmere
