// BreakWmlLines keeps the count of an indent that is never written: it only moves the scan on.
// RestoreWhitespace walks the tags of both texts; where no '>' stands between two '<' the gap ahead
// of the second takes in that of the first, so a gap's front is written when the gap has ended.
// Held by wml_layout_test.cpp, which works with plain searches.

#include "document/wml_layout.h"

#include "document/limits.h"
#include "document/tag_gaps.h"
#include "document/text_edits.h"
#include "document/text_search.h"

#include <algorithm>
#include <optional>

namespace quillmere {
namespace {

constexpr std::string_view kLineBreak = "\r\n";

/// What stays in its line. Compared exactly, so "<I>" gets a line; "<b>" and "<em>" get one as
/// well.
constexpr std::string_view kKeptInLine[] = {"<br/", "<td", "</td", "<strong", "</strong", "<i>",
    "</i>", "<u>", "</u>", "<big", "</big", "<small", "</small"};

/// A key is not looked for where the text ends with it: "</i>" as the last tag gets a line.
bool getsOwnLine(std::string_view text, std::size_t at)
{
    const std::string_view rest = text.substr(at);
    return std::none_of(
        std::begin(kKeptInLine), std::end(kKeptInLine), [rest](std::string_view key) {
            return rest.size() > key.size() + 1 && rest.starts_with(key);
        });
}

/// The indent that the tags ask for.
class IndentCount {
public:
    /// Counts a tag that gets a line. Returns how many characters behind its '<' the scan passes
    /// over: a tag that begins there gets no line.
    std::size_t countLine(bool isClose)
    {
        if (!first_ && lastWasOpen_ == isClose) indent_ += isClose ? -2 : 2;
        const int passed = std::max(indent_, 0);
        indent_ = passed + (isClose ? -2 : 2);
        lastWasOpen_ = !isClose;
        first_ = false;
        return static_cast<std::size_t>(passed);
    }
    void countKeptOpen() { first_ = false; }

private:
    int indent_ = 0;
    bool lastWasOpen_ = false;
    bool first_ = true;
};

/// Changes of the white space at the ends of gaps.
class GapEdits {
public:
    explicit GapEdits(std::string_view text)
        : text_(text)
        , gaps_(text)
    {
    }

    /// The gap ahead of the '<' at `tag` gets other white space.
    void setSpace(std::size_t tag, const GapSpace& space)
    {
        const auto before = gaps_;
        gaps_.goAheadOf(tag);
        if (gaps_.begin() != before.begin()) finishFront(before);
        if (!gaps_.exists()) return;
        const bool isBlank = gaps_.leadEnd() == tag;
        if (!isBlank) replace(gaps_.trailBegin(), tag, space.trail);
        front_ = isBlank ? space : GapSpace{space.lead, {}};
    }

    void applyTo(std::string& text)
    {
        finishFront(gaps_);
        edits_.applyTo(text);
    }

private:
    void finishFront(const GapWalk& gap)
    {
        if (!front_) return;
        replace(gap.begin(), gap.leadEnd(), front_->lead);
        replace(gap.leadEnd(), gap.leadEnd(), front_->trail);
        front_.reset();
    }
    void replace(std::size_t begin, std::size_t end, std::string_view space)
    {
        if (text_.substr(begin, end - begin) != space) edits_.replace(begin, end, space);
    }

    std::string_view text_;
    GapWalk gaps_;
    TextEdits edits_;
    std::optional<GapSpace> front_; // what the open gap begins with
};

} // namespace

void BreakWmlLines(std::string& text)
{
    requireAddressable(text);
    TextEdits edits;
    IndentCount indent;
    auto resumeAt = npos;
    for (auto at = findIgnoringCase(text, "<wml"); at != npos; at = text.find('<', resumeAt)) {
        resumeAt = at + 1;
        const bool isClose = standsAt(text, at, "</");
        if (getsOwnLine(text, at)) {
            edits.insert(at, kLineBreak);
            resumeAt += indent.countLine(isClose);
        } else if (!isClose) {
            indent.countKeptOpen();
        }
    }
    edits.applyTo(text);
}

void RestoreWhitespace(std::string& text, std::string_view pristine)
{
    requireAddressable(text);
    PristineWalk pristineTags(pristine);
    GapEdits edits(text);
    ForwardFinder tagEnds(text, ">");
    for (auto at = text.find('<'); at != npos; at = text.find('<', at + 1)) {
        const auto tagEnd = tagEnds.next(at);
        if (tagEnd == npos) break;
        const auto length = std::min(tagEnd + 1 - at, kTagKeyLength);
        const auto space = pristineTags.goTo(std::string_view(text).substr(at, length));
        if (space) edits.setSpace(at, *space);
    }
    edits.applyTo(text);
}

} // namespace quillmere
