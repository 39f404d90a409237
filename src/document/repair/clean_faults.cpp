// Most areas are in order, so one walk over the tags' codes tells which passes have a reason to
// search at all. It keeps what the passes' searches would come to as a few states. Held by
// clean_passes_test.cpp, which leaves out the same passes.

#include "document/repair/clean_faults.h"

#include "document/text/tag_keys.h"

namespace quillmere {
namespace {

using namespace clean_fault;

enum class Role : std::uint8_t {
    Paragraph,
    EmptyParagraph,
    AlignedParagraph,
    ParagraphEnd,
    Break,
    Option,
    OptionEnd,
    Select,
    SelectEnd,
    DoBlock,
    Table,
    TableEnd,
    Row,
    RowEnd,
    JoinedRowEnd, // a tag follows at once
    Element, // one that stands in paragraphs
    Format,
    FormatEnd,
    Other,
};

struct Rule {
    SearchKey key;
    Role role;
    std::uint8_t format = 0; // its number
    bool standsLoose = false; // a format that the passes leave outside of paragraphs
};

// The first one decides.
constexpr Rule kRules[] = {
    {"<p>&nbsp", Role::EmptyParagraph},
    {"<p align", Role::AlignedParagraph},
    {"<p", Role::Paragraph},
    {"</p", Role::ParagraphEnd},
    {"<br", Role::Break},
    {"<!--option", Role::Option},
    {"<!--/option", Role::OptionEnd},
    {"<!--select", Role::Select},
    {"<!--/select", Role::SelectEnd},
    {"<!--do", Role::DoBlock},
    {"<!--/do", Role::DoBlock},
    {"<!--go", Role::DoBlock},
    {"<table", Role::Table},
    {"</table", Role::TableEnd},
    {"<tr", Role::Row},
    {"</tr><", Role::JoinedRowEnd},
    {"</tr", Role::RowEnd},
    {"<img", Role::Element},
    {"<a", Role::Element},
    {"<strong", Role::Element},
    {"<em>", Role::Element},
    {"<big>", Role::Format, 1, true},
    {"</big>", Role::FormatEnd, 1},
    {"<small>", Role::Format, 2},
    {"</small>", Role::FormatEnd, 2},
    {"<small", Role::Element},
    {"<i>", Role::Format, 3},
    {"</i>", Role::FormatEnd, 3},
    {"<b>", Role::Format, 4},
    {"</b>", Role::FormatEnd, 4},
    {"<u>", Role::Format, 5},
    {"</u>", Role::FormatEnd, 5},
};
constexpr Rule kOther{"<", Role::Other};
constexpr TagKeys kKeys(kRules, &Rule::key);

constexpr unsigned bitOf(Role role)
{
    return 1U << static_cast<unsigned>(role);
}
constexpr unsigned kListRoles
    = bitOf(Role::Option) | bitOf(Role::OptionEnd) | bitOf(Role::Select) | bitOf(Role::SelectEnd);
constexpr unsigned kParagraphRoles
    = bitOf(Role::Paragraph) | bitOf(Role::EmptyParagraph) | bitOf(Role::AlignedParagraph);

class FaultWalk {
public:
    void read(TagCode code)
    {
        const auto found = kKeys.find(code);
        const Rule& rule = found < std::size(kRules) ? kRules[found] : kOther;
        lookBehind(rule.role);
        readRole(rule);
        if (rule.role == Role::Format) beginFormat(rule, code);
        seen_ |= bitOf(rule.role);
    }

    [[nodiscard]] CleanFaults faults()
    {
        tell(kOptions, optionIsOpen_);
        tell(kList, (seen_ & kListRoles) != 0 && (seen_ & kListRoles) != kListRoles);
        tell(kTable, tableIsOpen_);
        tell(kOpenParagraph, paragraphIsOpen_);
        tell(kNoParagraph, (seen_ & kParagraphRoles) == 0);
        tell(kLooseBreak, hasBreak_);
        tell(kOverlap, nesting_ != 0);
        return faults_;
    }

private:
    void tell(CleanFaults fault, bool isSo) { faults_ |= isSo ? fault : 0; }

    // What was told of the tag ahead depends on the one that touches it.
    void lookBehind(Role role)
    {
        if (rowHasEnded_) tell(kTable, role != Role::Row && role != Role::TableEnd);
        if (formatIsBare_) tell(kFormat, role != Role::Format);
        rowHasEnded_ = role == Role::JoinedRowEnd;
        formatIsBare_ = false;
    }

    void readRole(const Rule& rule)
    {
        switch (rule.role) {
        case Role::EmptyParagraph:
            tell(kEmptyParagraph, true);
            [[fallthrough]];
        case Role::Paragraph:
        case Role::AlignedParagraph:
            return beginParagraph(rule.role);
        case Role::ParagraphEnd:
            return endParagraph();
        case Role::Break:
            hasBreak_ = true;
            return;
        case Role::Option:
        case Role::OptionEnd:
            return readOption(rule.role == Role::Option);
        case Role::DoBlock:
            return tell(kDoBlock, true);
        case Role::Table:
            tableIsOpen_ = true;
            [[fallthrough]];
        case Role::Select:
        case Role::Element:
            return tell(kLooseElement, !paragraphIsOpen_);
        case Role::TableEnd:
            tableIsOpen_ = false;
            return;
        case Role::RowEnd:
            return tell(kTable, true);
        case Role::FormatEnd:
            return endFormat(rule.format);
        default:
            return;
        }
    }

    void beginParagraph(Role role)
    {
        const bool isPlain = role != Role::AlignedParagraph; // as far as can be seen here
        tell(kParagraphRun, paragraphIsOpen_);
        tell(kPlainNeighbours, isPlain && isBehindPlain_);
        tell(kLooseBreak, hasBreak_);
        tell(kTable, tableIsOpen_);
        isBehindPlain_ = isPlain;
        paragraphIsOpen_ = true;
    }

    void endParagraph()
    {
        tell(kDoubledEnd, !paragraphIsOpen_);
        tell(kTable, tableIsOpen_);
        tell(kFormat, openFormats_ != 0);
        paragraphIsOpen_ = false;
        hasBreak_ = false;
    }

    void readOption(bool begins)
    {
        tell(kOptions, optionIsOpen_ == begins);
        optionIsOpen_ = begins;
    }

    // In "<b><i>x" both have text, in "<b><img" and "<b> " it has to be read whether there is some.
    void beginFormat(const Rule& rule, TagCode code)
    {
        const auto following = tag_code::byteAt(code, rule.key.text.size() - 1);
        tell(kLooseElement, !paragraphIsOpen_ && !rule.standsLoose);
        tell(kFormat, following == ' ');
        formatIsBare_ = following == '<';
        tell(kOverlap, (openFormats_ & 1U << rule.format) != 0);
        openFormats_ |= 1U << rule.format;
        nesting_ = nesting_ * 8 + rule.format;
    }

    void endFormat(std::uint8_t format)
    {
        tell(kOverlap, nesting_ % 8 != format);
        openFormats_ &= ~(1U << format);
        nesting_ /= 8;
    }

    CleanFaults faults_ = kAny;
    unsigned seen_ = 0; // the roles
    bool paragraphIsOpen_ = false;
    bool isBehindPlain_ = false; // the last paragraph has no alignment
    bool hasBreak_ = false; // behind the last paragraph tag
    bool optionIsOpen_ = false;
    bool tableIsOpen_ = false;
    bool rowHasEnded_ = false; // right ahead of this tag
    bool formatIsBare_ = false; // its begin stands right ahead of this tag
    unsigned openFormats_ = 0; // by number, those without end so far
    std::uint32_t nesting_ = 0; // the numbers of open formats as digits, the innermost last
};

} // namespace

CleanFaults findCleanFaults(const TagIndex& tags)
{
    FaultWalk walk;
    tags.forEachCode([&walk](TagCode code) { walk.read(code); });
    return walk.faults();
}

} // namespace quillmere
