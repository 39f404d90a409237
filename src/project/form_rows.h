#pragma once

#include <QBoxLayout>
#include <QPushButton>

#include <initializer_list>

namespace quillmere {

/// Round each entry of a list of files.
inline constexpr int kEntrySpacingPx = 2;

/// The buttons at the foot of a form: some at the left, and those that close it at the right. None
/// becomes the default button by having the focus; the form names its own.
[[nodiscard]] inline QHBoxLayout* buttonRow(
    std::initializer_list<QPushButton*> left, std::initializer_list<QPushButton*> right)
{
    auto* row = new QHBoxLayout;
    for (auto* button : left)
        row->addWidget(button);
    row->addStretch();
    for (auto* button : right)
        row->addWidget(button);
    for (const auto& side : {left, right})
        for (auto* button : side)
            button->setAutoDefault(false);
    return row;
}

} // namespace quillmere
