// BreakWmlLines keeps the count of an indent that is never written: it only moves the scan on.
// RestoreWhitespace walks the tags of both texts; where no '>' stands between two '<' the gap ahead
// of the second takes in that of the first, so a gap's front is written when the gap has ended.
// Held by corrections_test.cpp, which works with plain searches.

#include "document/repair/wml_layout.h"

#include "document/repair/tag_gaps.h"
#include "document/text/byte_words.h"
#include "document/text/character_walk.h"
#include "document/text/limits.h"
#include "document/text/text_search.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quillmere {
namespace {

constexpr std::string_view kLineBreak = "\r\n";

/// What stays in its line. Compared exactly, so "<I>" gets a line; "<b>" and "<em>" get one as
/// well.
constexpr std::string_view kKeptInLine[] = {"<br/", "<td", "</td", "<strong", "</strong", "<i>",
    "</i>", "<u>", "</u>", "<big", "</big", "<small", "</small"};

/// The same keys, of eight characters at most, as numbers that a tag's begin is compared with.
struct KeptTag {
    std::uint64_t mask;
    std::uint64_t word;
    std::size_t length;
};
constexpr auto kKeptTags = [] {
    std::array<KeptTag, std::size(kKeptInLine)> tags{};
    std::ranges::transform(kKeptInLine, tags.begin(), [](std::string_view key) {
        const auto unused = 8 * (kWordLength - key.size());
        return KeptTag{~std::uint64_t{} >> unused, wordAt(key, 0), key.size()};
    });
    return tags;
}();

/// A key is not looked for where the text ends with it: "</i>" as the last tag gets a line. All
/// keys are compared: that costs less than branches on what cannot be foreseen.
bool getsOwnLine(std::string_view text, std::size_t at)
{
    const auto word = wordAt(text, at);
    std::size_t keptLength = 0;
    for (const KeptTag& tag : kKeptTags)
        keptLength += (word & tag.mask) == tag.word ? tag.length : 0;
    return keptLength == 0 || text.size() - at <= keptLength + 1;
}

/// The indent that the tags ask for.
class IndentCount {
public:
    /// Counts a tag that gets a line. Returns how many characters behind its '<' the scan passes
    /// over: a tag that begins there gets no line.
    std::size_t countLine(bool isClose)
    {
        const int step = isClose ? -2 : 2;
        indent_ += step == -lastStep_ ? step : 0;
        const int passed = std::max(indent_, 0);
        indent_ = passed + step;
        lastStep_ = step;
        return static_cast<std::size_t>(passed);
    }
    /// A tag that stays in its line. As the first of all it makes the next count as behind an end.
    void countKeptOpen()
    {
        if (lastStep_ == 0) lastStep_ = -2;
    }

private:
    int indent_ = 0;
    int lastStep_ = 0; // none so far
};

/// Writes a text with other white space at the ends of its gaps.
class GapRewriter {
public:
    explicit GapRewriter(std::string_view text)
        : text_(text)
        , gaps_(text)
        , rewriter_(text)
    {
    }

    /// The gap ahead of the '<' at `tag`, which does not go back, gets other white space. Throws
    /// Overflow where what is put in alone is longer than positions can tell.
    void setSpace(std::size_t tag, const GapSpace& space)
    {
        gaps_.goAheadOf(tag);
        if (front_ && gaps_.begin() != front_->begin) finishGap();
        if (!gaps_.exists()) return;
        const bool isBlank = gaps_.leadEnd() == tag;
        if (!isBlank) trails_.push_back({gaps_.trailBegin(), tag, space.trail});
        front_ = {
            gaps_.begin(), gaps_.leadEnd(), space.lead, isBlank ? space.trail : std::string_view()};
    }

    [[nodiscard]] std::string take()
    {
        finishGap();
        return rewriter_.take();
    }

private:
    struct Front {
        std::size_t begin;
        std::size_t end;
        std::string_view lead;
        std::string_view trail; // of a blank gap, right behind
    };
    struct Trail {
        std::size_t begin;
        std::size_t end;
        std::string_view space;
    };

    void finishGap()
    {
        if (!front_) return;
        replace(front_->begin, front_->end, front_->lead);
        replace(front_->end, front_->end, front_->trail);
        for (const Trail& trail : trails_)
            replace(trail.begin, trail.end, trail.space);
        front_.reset();
        trails_.clear();
    }
    void replace(std::size_t begin, std::size_t end, std::string_view space)
    {
        if (text_.substr(begin, end - begin) == space) return;
        inserted_ += space.size();
        requireAddressableLength(inserted_);
        rewriter_.drop(begin, end);
        rewriter_.append(space);
    }

    std::string_view text_;
    GapWalk gaps_;
    Rewriter rewriter_;
    std::optional<Front> front_; // what the open gap begins with
    std::vector<Trail> trails_; // what stands ahead of the tags behind its front
    std::size_t inserted_ = 0;
};

void takeAddressable(std::string& text, std::string result)
{
    requireAddressable(result);
    text = std::move(result);
}

} // namespace

void BreakWmlLines(std::string& text)
{
    requireAddressable(text);
    Rewriter result(text);
    IndentCount indent;
    CharacterWalk tags(text, '<');
    auto resumeAt = npos;
    for (auto at = findIgnoringCase(text, "<wml"); at != npos; at = tags.nextFrom(resumeAt)) {
        resumeAt = at + 1;
        const bool isClose = at + 1 < text.size() && text[at + 1] == '/';
        if (getsOwnLine(text, at)) {
            result.insert(at, kLineBreak);
            resumeAt += indent.countLine(isClose);
        } else if (!isClose) {
            indent.countKeptOpen();
        }
    }
    takeAddressable(text, result.take());
}

void RestoreWhitespace(std::string& text, std::string_view pristine)
{
    requireAddressable(text);
    PristineWalk pristineTags(pristine);
    GapRewriter result(text);
    const auto end = text.rfind('>') + 1; // 0 where there is none
    CharacterWalk tags(text, '<');
    for (auto at = tags.next(); at < end; at = tags.next()) {
        const auto space = pristineTags.goTo(std::string_view(text).substr(at, kTagKeyLength));
        if (space) result.setSpace(at, *space);
    }
    takeAddressable(text, result.take());
}

} // namespace quillmere
