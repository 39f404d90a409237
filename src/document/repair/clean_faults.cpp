// Most areas are in order, so one walk over the codes of the tags tells which passes have a reason
// to search at all. The walk is in the state of a fault where the next tag of some kinds would make
// it: in a paragraph "<p" makes a run, outside of one "</p" a doubled end. Only the nesting of
// formats needs more. Held by clean_passes_test.cpp, which leaves out the same passes.

#include "document/repair/clean_faults.h"

#include "document/text/tag_keys.h"

#include <array>

namespace quillmere {
namespace {

using namespace clean_fault;

/// What a tag does to the walk.
struct Rule {
    SearchKey key;
    CleanFaults makes; // of those in whose state the walk is
    CleanFaults enters;
    CleanFaults leaves;
    CleanFaults excuses = 0; // of kOfNextTag
    std::uint8_t format = 0; // its number
};

constexpr CleanFaults kAtBegin = kDoBlock | kLooseOptionEnd | kLooseOption | kEmptyParagraph
    | kDoubledEnd | kNoParagraph | kLooseElement | kAny;
constexpr CleanFaults kOfNextTag = kLooseRow | kEmptyFormat; // any tag makes them and leaves them
constexpr CleanFaults kAtEnd = kOptionInOption | kOpenList | kTable | kOpenParagraph | kNoParagraph
    | kLooseBreak | kTrailing | kAny;

constexpr CleanFaults kMadeByParagraph = kParagraphRun | kLooseBreak | kTable | kBehindDoBlock;
constexpr CleanFaults kMadeByPlain = kMadeByParagraph | kPlainNeighbours;
constexpr CleanFaults kMadeByEnd = kDoubledEnd | kCrossingFormat | kTable | kBehindDoBlock;
constexpr CleanFaults kInside = kParagraphRun | kOpenParagraph | kTrailing;
constexpr CleanFaults kInsidePlain = kInside | kPlainNeighbours;
constexpr CleanFaults kOutside = kDoubledEnd | kLooseElement;
constexpr CleanFaults kAheadOfFirst = kOutside | kNoParagraph;

// The first key decides. One rule a line:
// clang-format off
constexpr Rule kRules[] = {
    {"<p>&nbsp", kMadeByPlain | kEmptyParagraph, kInsidePlain, kAheadOfFirst},
    {"<p align", kMadeByParagraph, kInside, kAheadOfFirst | kPlainNeighbours},
    {"<p", kMadeByPlain, kInsidePlain, kAheadOfFirst},
    {"</p", kMadeByEnd, kOutside | kTrailing, kInside | kLooseBreak},
    {"<br", kBehindDoBlock, kLooseBreak | kTrailing, 0},
    {"<!--option", kOptionInOption | kLooseOption, kOptionInOption, kLooseOptionEnd | kEmptyList},
    {"<!--/option", kLooseOptionEnd | kLooseOption, kLooseOptionEnd, kOptionInOption},
    {"<!--select", kLooseElement, kOpenList | kEmptyList, kLooseOption},
    {"<!--/select", kEmptyList, kLooseOption, kOpenList | kEmptyList},
    {"<!--do", kDoBlock, 0, 0},
    {"<!--/do", kDoBlock, kBehindDoBlock, kTrailing},
    {"<!--go", kDoBlock, 0, 0},
    {"<table", kLooseElement, kTable, 0},
    {"</table", 0, 0, kTable, kLooseRow},
    {"<tr", 0, 0, 0, kLooseRow},
    {"</tr><", 0, kLooseRow, 0},
    {"</tr", kTable, 0, 0},
    {"<img", kLooseElement, 0, 0},
    {"<a", kLooseElement, 0, 0},
    {"<strong", kLooseElement, 0, 0},
    {"<em>", kLooseElement, 0, 0},
    {"<big>", 0, kCrossingFormat, 0, kEmptyFormat, 1},
    {"</big>", 0, 0, 0, 0, 1},
    {"<small>", kLooseElement, kCrossingFormat, 0, kEmptyFormat, 2},
    {"</small>", 0, 0, 0, 0, 2},
    {"<small", kLooseElement, 0, 0},
    {"<i>", kLooseElement, kCrossingFormat, 0, kEmptyFormat, 3},
    {"</i>", 0, 0, 0, 0, 3},
    {"<b>", kLooseElement, kCrossingFormat, 0, kEmptyFormat, 4},
    {"</b>", 0, 0, 0, 0, 4},
    {"<u>", kLooseElement, kCrossingFormat, 0, kEmptyFormat, 5},
    {"</u>", 0, 0, 0, 0, 5},
    {"<", 0, 0, 0}, // any other
};
// clang-format on
constexpr std::size_t kOther = std::size(kRules) - 1;

/// A rule as the walk applies it.
struct Step {
    CleanFaults makes;
    CleanFaults stays;
    CleanFaults enters;
    std::uint8_t format;
    std::uint8_t following; // place of the character behind a format's begin in its code
};

constexpr auto kSteps = [] {
    std::array<Step, std::size(kRules)> steps{};
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const Rule& rule = kRules[i];
        steps.at(i) = {rule.makes | (kOfNextTag & ~rule.excuses), ~(rule.leaves | kOfNextTag),
            rule.enters, rule.format, static_cast<std::uint8_t>(rule.key.text.size() - 1)};
    }
    return steps;
}();

class FaultWalk {
public:
    void read(TagCode code)
    {
        static constexpr TagKeys<kOther> kKeys(kRules, &Rule::key);
        const Step& step = kSteps[kKeys.find(code)];
        faults_ |= state_ & step.makes;
        state_ = (state_ & step.stays) | step.enters;
        if (step.format != 0) readFormat(step, code);
    }

    [[nodiscard]] CleanFaults faults() const { return faults_ | (state_ & kAtEnd); }

private:
    void readFormat(const Step& step, TagCode code)
    {
        if (step.enters == 0) return endFormat(step.format);
        beginFormat(step.format);
        // "<b><i>x" has text, "<b><img" and "<b> " may have some.
        const auto following = tag_code::byteAt(code, step.following);
        if (following == '<' || following == ' ') state_ |= kEmptyFormat;
    }

    void beginFormat(unsigned format)
    {
        for (auto open = openFormats_; open != 0; open /= 8) {
            if (open % 8 == format) faults_ |= kOverlap;
        }
        openFormats_ = openFormats_ * 8 + format;
    }

    void endFormat(unsigned format)
    {
        if (openFormats_ % 8 != format) faults_ |= kOverlap;
        openFormats_ /= 8;
        if (openFormats_ == 0) state_ &= ~kCrossingFormat;
    }

    CleanFaults faults_ = 0;
    CleanFaults state_ = kAtBegin;
    unsigned openFormats_ = 0; // their numbers as digits, the innermost last
};

} // namespace

CleanFaults findCleanFaults(const TagIndex& tags)
{
    FaultWalk walk;
    tags.forEachCode([&walk](TagCode code) { walk.read(code); });
    return walk.faults();
}

} // namespace quillmere
