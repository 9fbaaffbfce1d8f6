#pragma once

class QWidget;

namespace torvik {

/// Makes the application swallow all input for forms that are disabled. Safe to call more than once.
void WatchDisabledForms();

/// Whether a person can work a widget: its form is enabled and nothing modal stands over it. Keys and the
/// mouse do not come to it otherwise, but a screen reader presses without them.
bool TakesInput(const QWidget& widget);

} // namespace torvik
