#pragma once

#include <QScrollBar>

namespace quillmere {

/// A scroll bar beside a field that is two arrows alone: the upper one steps up, which is towards
/// the bar's least value, the lower one down. An arrow that leads no further is dim.
class StepBar : public QScrollBar {
    Q_OBJECT

public:
    explicit StepBar(QWidget* parent);
};

} // namespace quillmere
