// Held by source_edit_test.cpp.

#include "editor/window/source_highlighter.h"

#include <QSignalBlocker>

#include <algorithm>

namespace quillmere {
namespace {

QTextCharFormat formatOf(const QColor& colour)
{
    QTextCharFormat format;
    format.setForeground(colour);
    return format;
}

} // namespace

SourceHighlighter::SourceHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
{
}

void SourceHighlighter::setColours(const SourceColours& colours)
{
    const std::array<QColor, 6> byToken{colours.tag, colours.attribute, colours.value,
        colours.entity, colours.comment, colours.error};
    std::ranges::transform(byToken, formats_.begin(), formatOf);
    auto& error = formats_.at(static_cast<std::size_t>(SourceToken::Error));
    error.setUnderlineStyle(QTextCharFormat::WaveUnderline); // not by its colour alone
    error.setUnderlineColor(colours.error);
    const QSignalBlocker quiet(document()); // new colours are no change of the text
    rehighlight();
}

void SourceHighlighter::highlightBlock(const QString& text)
{
    const auto before = static_cast<SourceState>(std::max(previousBlockState(), 0)); // -1: first
    runs_.clear();
    setCurrentBlockState(static_cast<int>(readSourceLine(text, before, runs_)));
    for (const auto& run : runs_)
        setFormat(run.begin, run.length, formats_.at(static_cast<std::size_t>(run.token)));
}

} // namespace quillmere
