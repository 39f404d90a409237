#pragma once

#include "document/text/limits.h"
#include "document/wml/wml_elements.h"
#include "editor/page/surface_page.h"

#include <optional>
#include <string>
#include <string_view>

// Finding the marked element in the text of an area's design work file, as ReadDesignText gives it.
// Positions here are told as the file's users do: 1-based; 0 is ahead of the text. What goes in
// "behind" position n has n characters ahead of it. All functions throw Overflow for a text of more
// characters than OutputRules::maxTextLength(), given as `limit` or by `rules`.

namespace quillmere {

/// What the surface tells of its selection and of the event that is being handled. Ranges are
/// places in the text that the tests get.
struct SurfaceSelection {
    enum class Type { None, Text, Control };
    /// An element of the surface.
    struct Element {
        std::string tag; ///< lower case: "img", "input", "table", "a", "body", ...
        SourceRange source; ///< its start tag in the text; empty for the body
        std::string startTag{}; ///< that as text, for attributeOf()
    };

    Type type = Type::None;
    bool objectSelected = false; ///< QueryStatus(5023) is 1
    std::optional<Element> event; ///< the element under the mouse while an event is handled
    std::optional<Element> control; ///< the selected picture, radio button or table
    SourceRange marked; ///< of text: what is marked; empty at the caret
    std::size_t limit = kMaxTextLength; ///< of the texts that the surface shows
};

/// What is marked in the text. Text is told exactly: a fragment goes in ahead of it behind position
/// Start - 1, and Start to End are its characters. So End is Start - 1 where there is but a caret.
struct MarkedRange {
    int Start = 0; ///< position of the element's '<', or of the selection's first character
    int End = 0; ///< position of the last character of the element, or of the selection
    bool IsElement = false;
    bool IsImage = false;
};

/// What is marked on the surface. nullopt where the selected element is not in the text. An element
/// ends with the next end tag of its kind, be it another element's: of "<img><img></img>" all
/// belongs to the first.
[[nodiscard]] std::optional<MarkedRange> FindMarkedRange(
    std::string_view text, const SurfaceSelection& selection);

/// What a hit test found.
struct Hit {
    int position = 0; ///< Inside: of the element's '<'; else the marked place
    bool Inside = false;
};

/// Hit tests in turn: the last positions found stay for the tests that do not look again.
class HitTester {
public:
    /// Tells whether the marked place lies inside an element. `startTag` is how that begins, "<a"
    /// or "<!--option", and `endTag` how its end does. For a start tag with "img" it tells whether
    /// a picture is marked. `refresh` looks at the selection anew.
    ///
    /// A caret is inside where the nearest start tag ahead of it is not ended ahead of it, and so
    /// neither directly ahead of the element nor directly behind it. Marked text and elements are
    /// inside also where they begin with the start tag.
    [[nodiscard]] Hit HitTest(std::string_view startTag, std::string_view endTag,
        std::string_view text, const SurfaceSelection& selection, bool refresh);

private:
    void lookAt(std::string_view text, const SurfaceSelection& selection);

    int gMarkStart_ = 0;
    int gMarkEnd_ = 0;
    bool found_ = false; // the last look had a result
    bool isImage_ = false;
};

/// The first position at or behind `position` with markup behind which nothing is broken: behind
/// the card's marker and inside no tag, comment, entity, link, picture, table, option, list or do
/// block. A stray '>' counts as the end of a tag: no position from the tag ahead of it on, or from
/// the text's begin, up to it. A position at or behind the text's end stays.
[[nodiscard]] int ValidInsertPosition(
    int position, std::string_view text, std::size_t limit = kMaxTextLength);

/// The same for an element of a kind: where nothing is lost it goes into no element either that
/// may not have it by the rules of WML, such as a link into an anchor or a table into a pre.
/// Formats count as text, for they can be ended ahead of it and begun again behind it.
[[nodiscard]] int ValidInsertPosition(
    int position, std::string_view text, WmlElement wanted, const OutputRules& rules);

/// True where `position` (1 or more) lies inside a table: where a table's end follows it ahead of
/// any table's begin. The caller shows the message.
[[nodiscard]] bool IsInsideTable(
    std::string_view text, int position, std::size_t limit = kMaxTextLength);

/// The decision of CheckElementMovedIntoTable: whether more elements like the one that the mouse
/// pressed on lie in tables now than did at the press. `element` has its source in `textAtPress`.
/// Pictures are alike by their source, radio buttons by their onclick, tables all.
[[nodiscard]] bool movedIntoTable(std::string_view textAtPress, std::string_view textNow,
    const SurfaceSelection::Element& element, std::size_t limit = kMaxTextLength);

} // namespace quillmere
