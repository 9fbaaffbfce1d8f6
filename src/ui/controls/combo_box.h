#pragma once

#include "ui/forms/control.h"

#include <QStringList>

class QComboBox;

namespace torvik {

/// A drop-down list of texts; the first one is shown until the user chooses another.
class ComboBox : public Control {
public:
    ComboBox(Container& container, const QString& name, const Twips& design, const QStringList& texts);

    /// What is shown, empty for a list without entries.
    QString Text() const;

protected:
    bool ClicksByMouse() const override { return false; }

private:
    QComboBox* combo_;
};

} // namespace torvik
