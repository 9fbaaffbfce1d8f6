#pragma once

#include "ui/forms/form.h"
#include "ui/forms/form_window.h"

#include <QAction>

namespace torvik {

/// Chooses a menu entry of a form by its name, as a click on it would.
inline void ChooseMenu(Form& form, const QString& name)
{
    auto* entry = form.Window().findChild<QAction*>(name);
    if (entry == nullptr)
        qFatal("there is no menu entry %s", qPrintable(name));
    entry->trigger();
}

} // namespace torvik
