// All tags up to the partner are walked from the front with a stack of open elements. Held by
// source_edit_test.cpp.

#include "editor/window/source_tag_pair.h"

#include <vector>

namespace quillmere {
namespace {

struct SourceTag {
    TagPair::Range range;
    QStringView name;
    bool isEnd = false;
    bool isEmpty = false; ///< "<br/>"

    [[nodiscard]] bool holds(int caret) const { return range.begin <= caret && caret <= range.end; }
};

/// Walks tags; quoted '>' are no ends.
class SourceTags {
public:
    explicit SourceTags(QStringView source)
        : source_(source)
    {
    }
    std::optional<SourceTag> next()
    {
        for (;;) {
            const auto begin = source_.indexOf(u'<', at_);
            if (begin < 0) return std::nullopt;
            if (skipped(begin)) continue;
            const auto end = endOf(begin);
            if (!end) return std::nullopt;
            at_ = *end;
            return tagAt(begin, *end);
        }
    }

private:
    /// Whether a comment or declaration stands there, which is then passed over.
    bool skipped(qsizetype begin)
    {
        const auto rest = source_.mid(begin);
        const bool isComment = rest.startsWith(u"<!--");
        if (!isComment && !rest.startsWith(u"<!") && !rest.startsWith(u"<?")) return false;
        const QStringView closing = isComment ? u"-->" : u">";
        const auto end = source_.indexOf(closing, begin);
        at_ = end < 0 ? source_.size() : end + closing.size();
        return true;
    }
    [[nodiscard]] std::optional<qsizetype> endOf(qsizetype begin) const
    {
        QChar quote;
        for (auto i = begin + 1; i < source_.size(); ++i) {
            const QChar c = source_[i];
            if (quote.isNull() && c == u'>') return i + 1;
            if (quote.isNull() && c == u'<') return i; // the tag ahead of it is not whole
            if (quote.isNull() && (c == u'"' || c == u'\''))
                quote = c;
            else if (c == quote)
                quote = QChar();
        }
        return std::nullopt;
    }
    [[nodiscard]] SourceTag tagAt(qsizetype begin, qsizetype end) const
    {
        SourceTag tag;
        tag.range = {static_cast<int>(begin), static_cast<int>(end)};
        auto inner = source_.mid(begin + 1, end - begin - 2);
        tag.isEnd = inner.startsWith(u'/');
        tag.isEmpty = inner.endsWith(u'/');
        if (tag.isEnd) inner = inner.mid(1);
        qsizetype length = 0;
        while (length < inner.size() && !inner[length].isSpace() && inner[length] != u'/')
            ++length;
        tag.name = inner.left(length);
        return tag;
    }

    QStringView source_;
    qsizetype at_ = 0;
};

/// Takes the open elements down to the one that `end` closes; those above it have no end.
std::optional<SourceTag> takePartner(std::vector<SourceTag>& open, const SourceTag& end)
{
    for (auto i = open.size(); i > 0; --i) {
        if (open[i - 1].name != end.name) continue;
        const auto partner = open[i - 1];
        open.resize(i - 1);
        return partner;
    }
    return std::nullopt;
}

} // namespace

std::optional<TagPair> tagPairAt(QStringView source, int caret)
{
    std::vector<SourceTag> open;
    std::optional<TagPair> found;
    SourceTags tags(source);
    while (const auto tag = tags.next()) {
        if (tag->isEmpty) continue;
        if (!tag->isEnd) {
            open.push_back(*tag);
            continue;
        }
        const auto start = takePartner(open, *tag);
        if (!start || (!start->holds(caret) && !tag->holds(caret))) continue;
        found = TagPair{start->range, tag->range};
        // Between two tags the caret is in the one that begins there.
        if (caret < tag->range.end && caret != start->range.end) return found;
        if (tag->range.begin > caret) return found;
    }
    return found;
}

} // namespace quillmere
