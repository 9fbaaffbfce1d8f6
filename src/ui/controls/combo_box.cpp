#include "ui/controls/combo_box.h"

#include <QComboBox>

namespace torvik {

ComboBox::ComboBox(Container& container, const QString& name, const Twips& design, const QStringList& texts)
    : Control(container, name, new QComboBox, design), combo_(static_cast<QComboBox*>(&Widget()))
{
    combo_->addItems(texts);
}

QString ComboBox::Text() const
{
    return combo_->currentText();
}

} // namespace torvik
