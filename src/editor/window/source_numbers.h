#pragma once

#include "editor/window/source_edit.h"

namespace quillmere {

/// The line numbers beside the text.
class SourceNumbers : public QWidget {
    Q_OBJECT

public:
    explicit SourceNumbers(SourceEdit* edit)
        : QWidget(edit)
        , edit_(*edit)
    {
        setObjectName(QStringLiteral("objLineNumbers"));
    }
    [[nodiscard]] QSize sizeHint() const override { return {edit_.numberWidth(), 0}; }

protected:
    void paintEvent(QPaintEvent* event) override { edit_.paintNumbers(event); }

private:
    SourceEdit& edit_;
};

} // namespace quillmere
