// Held by source_search_test.cpp.

#include "editor/window/source_search.h"

#include <QStringMatcher>

#include <algorithm>

namespace quillmere {
namespace {

bool isInWord(QChar character)
{
    return character.isLetterOrNumber() || character == u'_';
}

/// Whether no word goes on across the position.
bool isWordEdge(const QString& text, qsizetype position)
{
    if (position <= 0 || position >= text.size()) return true;
    return !isInWord(text[position - 1]) || !isInWord(text[position]);
}

} // namespace

std::vector<int> findAll(const QString& text, const SourceQuery& query)
{
    std::vector<int> hits;
    if (query.text.isEmpty()) return hits;
    const QStringMatcher matcher(
        query.text, query.matchesCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    const auto length = query.text.size();
    for (auto at = matcher.indexIn(text); at >= 0;) {
        const bool isWanted
            = !query.wholeWords || (isWordEdge(text, at) && isWordEdge(text, at + length));
        if (isWanted) hits.push_back(static_cast<int>(at));
        at = matcher.indexIn(text, isWanted ? at + length : at + 1);
    }
    return hits;
}

std::size_t hitFrom(const std::vector<int>& hits, int position, bool forward)
{
    const auto behind = std::ranges::lower_bound(hits, position);
    const auto index = static_cast<std::size_t>(behind - hits.begin());
    if (forward) return index % hits.size();
    return (index + hits.size() - 1) % hits.size();
}

QString replaceHits(
    const QString& text, const std::vector<int>& hits, int length, const QString& replacement)
{
    QString result;
    int copied = 0;
    for (const int hit : hits) {
        result += QStringView(text).mid(copied, hit - copied);
        result += replacement;
        copied = hit + length;
    }
    return result += QStringView(text).mid(copied);
}

} // namespace quillmere
