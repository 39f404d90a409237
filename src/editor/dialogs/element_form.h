#pragma once

#include "editor/design_surface.h"
#include "editor/elements/element_edit.h"
#include "editor/page/hit_test.h"
#include "forms/form.h"
#include "forms/named.h"

#include <QHBoxLayout>
#include <QPushButton>

#include <cstddef>
#include <cstdint>
#include <string>

namespace quillmere {

// The variants of a form's resources that hold a single text each.
namespace text_variant {
inline constexpr std::int16_t kEditText = 1; ///< title of the form that changes an element
inline constexpr std::int16_t kNewText = 2; ///< title of the form that inserts one
inline constexpr std::int16_t kAreaText = 4; ///< stands ahead of an area's number
} // namespace text_variant

/// What the dialogs of elements share: the surface and the text of the shown area, and the buttons.
/// The surface must be stored in the area's design work file before such a form opens.
class ElementForm : public Form {
    Q_OBJECT

protected:
    ElementForm(Session& session, DesignSurface& surface, const QString& name, QWidget* parent);

    [[nodiscard]] DesignSurface& surface() const { return surface_; }
    [[nodiscard]] std::size_t area() const;
    [[nodiscard]] std::string designText() const;
    /// Those by which the deck was opened.
    [[nodiscard]] OutputRules rules() const;
    /// The position from which a found element is searched: one ahead of it.
    [[nodiscard]] static int searchPosition(const Hit& hit);
    [[nodiscard]] QString word(int id) const;
    /// The caption of the variant `variant` of this form's resources, or else `otherwise`.
    [[nodiscard]] QString formText(std::int16_t variant, const char* otherwise) const;
    /// Puts a word as a question with the stop icon; true for Yes.
    [[nodiscard]] bool confirms(int id) const;
    /// Tells what is wrong with a control's content, by a word, and brings the focus there.
    void complain(int id, QWidget& control, const std::string& gap = {}) const;

    /// Writes the text, shows it with the caret behind the position, keeps it for undo, and closes
    /// the form. Throws as WriteDesignText; nothing is changed then.
    void apply(const ElementEdit& edit);
    /// The same for an element that was found as the form opened. Where it `isThere` no more, or
    /// not whole, the person is told and the form closes.
    void applyToFound(const ElementEdit& edit, bool isThere);
    /// The same for a deletion, which changes the text where the element is there.
    void applyDeletion(const ElementEdit& edit);
    /// The same with a range of the text marked.
    void apply(const std::string& text, SourceRange marked);

    /// The row of buttons: `remove` (may be null) at the left, `accept` at the right as default.
    [[nodiscard]] QHBoxLayout* buttonRow(QPushButton* accept, QPushButton* remove);
    /// Runs `routine` in trap() for each click.
    template <class Form> void onClick(QPushButton* button, void (Form::*routine)())
    {
        connect(button, &QPushButton::clicked, this,
            [this, routine] { trap([&] { (static_cast<Form*>(this)->*routine)(); }); });
    }

    QPushButton* const btnCancel = named<QPushButton>("btnCancel", this);
    QPushButton* const btnHelp = named<QPushButton>("btnHelp", this);

private:
    void write(const std::string& text);

    DesignSurface& surface_;
};

} // namespace quillmere
