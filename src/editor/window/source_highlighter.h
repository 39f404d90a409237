#pragma once

#include "editor/window/source_colours.h"
#include "editor/window/source_tokens.h"

#include <QSyntaxHighlighter>

#include <array>
#include <vector>

namespace quillmere {

/// Gives the runs of WML source their colours.
class SourceHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit SourceHighlighter(QTextDocument* document);
    void setColours(const SourceColours& colours);

protected:
    void highlightBlock(const QString& text) override;

private:
    std::array<QTextCharFormat, 6> formats_; // by SourceToken
    std::vector<SourceRun> runs_; // kept for its memory
};

} // namespace quillmere
