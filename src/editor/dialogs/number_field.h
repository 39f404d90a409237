#pragma once

#include "editor/elements/number_rules.h"
#include "forms/session.h"

#include <QLineEdit>
#include <QObject>
#include <QScrollBar>

#include <functional>

namespace quillmere {

/// Holds a field to the rules for numbers: all of it is marked when it gets the focus, nothing that
/// is no number stays while it is typed, and when it is left with a number out of its limits the
/// person is told, the field goes back to its fallback and keeps the focus. A scroll bar beside it
/// holds the number negated, so that up means more; the keys up and down move it as well.
class NumberField : public QObject {
    Q_OBJECT

public:
    /// The field owns this.
    NumberField(Session& session, QLineEdit* field, QScrollBar* scroll, NumberLimits limits);

    void setLimits(NumberLimits limits);
    void setFallback(int value) { fallback_ = value; }
    void setValue(int value);
    /// The number, where it is one within the limits.
    [[nodiscard]] std::optional<int> value() const;
    /// The same; else tells the person and brings the focus back.
    [[nodiscard]] std::optional<int> checkedValue();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void filter();
    [[nodiscard]] bool stepBy(int key);
    void leave();

    Session& session_;
    QLineEdit* field_;
    QScrollBar* scroll_; // may be null
    NumberLimits limits_;
    int fallback_ = 2;
};

} // namespace quillmere
