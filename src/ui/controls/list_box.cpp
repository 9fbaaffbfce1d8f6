#include "ui/controls/list_box.h"

#include "runtime/failure.h"

#include <QListWidget>

namespace torvik {

ListBox::ListBox(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new QListWidget, design), list_(static_cast<QListWidget*>(&Widget()))
{
    WatchInput(list_->viewport());
    connect(list_, &QListWidget::itemClicked, this, [this] { Click.Fire(); });
}

void ListBox::AddItem(const QString& text)
{
    list_->addItem(text);
}

int ListBox::ListCount() const
{
    return list_->count();
}

QString ListBox::List(int index) const
{
    const QListWidgetItem* item = list_->item(index);
    if (item == nullptr)
        Fail(failure::badListIndex);
    return item->text();
}

int ListBox::ListIndex() const
{
    return list_->selectedItems().isEmpty() ? -1 : list_->currentRow();
}

void ListBox::SetListIndex(int index)
{
    if (index < -1 || index >= ListCount())
        Fail(failure::invalidProperty);
    list_->setCurrentRow(index, QItemSelectionModel::ClearAndSelect);
    if (index == -1)
        list_->clearSelection();
}

void ListBox::SetSelected(int index, bool selected)
{
    QListWidgetItem* item = list_->item(index);
    if (item == nullptr)
        Fail(failure::badListIndex);
    if (selected)
        list_->setCurrentItem(item);
    item->setSelected(selected);
}

QString ListBox::Text() const
{
    return ListIndex() < 0 ? QString() : List(ListIndex());
}

void ListBox::SetSpokenAs(const QString& text)
{
    spokenAs_ = text;
    UpdateAccessibleText();
}

QString ListBox::AccessibleText() const
{
    return spokenAs_.isEmpty() || !ToolTip().isEmpty() ? Control::AccessibleText() : spokenAs_;
}

} // namespace torvik
