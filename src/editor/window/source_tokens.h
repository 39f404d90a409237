#pragma once

#include <QStringView>

#include <vector>

// The syntax of WML source, line by line, for its colours. It judges single signs; whether a deck
// is well-formed is told elsewhere.

namespace quillmere {

/// What a run of characters is. Text between tags has no token.
enum class SourceToken {
    Tag, ///< brackets and name
    Attribute,
    Value,
    Entity,
    Comment, ///< comments, declarations and sections without markup
    Error ///< an unknown element, a stray '<' or '&', a value without quotes
};

/// A run of a line: from `begin`, so many characters.
struct SourceRun {
    int begin = 0;
    int length = 0;
    SourceToken token = SourceToken::Tag;

    [[nodiscard]] bool operator==(const SourceRun&) const = default;
};

/// Where a line ends; the next line begins there. Line has no tag, comment or the like open.
enum class SourceState { Text, Tag, SingleQuoted, DoubleQuoted, Comment, Section, Declaration };

/// Appends the runs of a line that begins in `state`, in their order. Returns the state at its end.
[[nodiscard]] SourceState readSourceLine(
    QStringView line, SourceState state, std::vector<SourceRun>& runs);

/// Whether WML 1.1 (WAPFORUM DTD) has an element of this name.
[[nodiscard]] bool isWmlElement(QStringView name);

} // namespace quillmere
