#pragma once

#include <QWidget>

namespace torvik {

/// Carries the parts of a composite control, which a screen reader then tells together.
class GroupWidget : public QWidget {
public:
    using QWidget::QWidget;
};

} // namespace torvik
