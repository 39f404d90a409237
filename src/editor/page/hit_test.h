#pragma once

#include "editor/page/surface_page.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Finding the marked element in the text of an area's design work file, as ReadDesignText gives it.
// Positions here are told as the file's users do: 1-based, 16 bits; 0 is "ahead of the text". All
// functions throw Overflow for a text that positions cannot address.

namespace quillmere {

/// What the surface tells of its selection and of the event that is being handled.
struct SurfaceSelection {
    enum class Type { None, Text, Control };
    /// The element under the mouse.
    struct Element {
        std::string tag; ///< lower case: "img", "input", "table", "a", "body", ...
        SourceRange source; ///< its start tag in the text; empty for the body
    };

    Type type = Type::None;
    bool objectSelected = false; ///< QueryStatus(5023) is 1
    std::optional<Element> event; ///< the source element while a mouse event is handled
    std::optional<Element> control; ///< the selected picture, radio button or table
    SourceRange marked; ///< of text: what is marked; empty at the caret
};

/// What is marked in the text.
struct MarkedRange {
    int Start = 0; ///< position of the element's '<', or of the selection's start
    int End = 0; ///< position of the element's last character, or of the selection's end
    bool IsElement = false;
    bool IsImage = false;
};

/// What is marked on the surface. nullopt where the selected element is not in the text.
[[nodiscard]] std::optional<MarkedRange> FindMarkedRange(
    std::string_view text, const SurfaceSelection& selection);

/// A position and whether the wanted element was found there.
struct Hit {
    int position = 0;
    bool Inside = false;
};

/// Hit tests in turn: the last positions found stay for the tests that do not look again.
class HitTester {
public:
    /// Tells whether the marked place lies inside an element. `startTag` is "<a", "<!--option" and
    /// the like, `endTag` its end, "" for "<img"; `refresh` looks at the selection anew.
    [[nodiscard]] Hit HitTest(std::string_view startTag, std::string_view endTag,
        std::string_view text, const SurfaceSelection& selection, bool refresh);

private:
    int gMarkStart_ = 0;
    int gMarkEnd_ = 0;
    bool isImage_ = false;
};

/// The first position at or behind `position` that lies inside no element and no entity.
[[nodiscard]] int ValidInsertPosition(int position, std::string_view text);

/// True where `position` (1 or more) lies inside a table. The caller shows the message.
[[nodiscard]] bool IsInsideTable(std::string_view text, int position);

/// True where the element that the mouse pressed on lies in a table now and did not at the press.
/// `element` is the pressed element, its source in `textAtPress`.
[[nodiscard]] bool movedIntoTable(std::string_view textAtPress, std::string_view textNow,
    const SurfaceSelection::Element& element);

} // namespace quillmere
