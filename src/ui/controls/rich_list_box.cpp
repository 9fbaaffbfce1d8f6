#include "ui/controls/rich_list_box.h"

#include "runtime/failure.h"
#include "ui/look/look.h"
#include "ui/look/rich_row.h"

#include <QAbstractListModel>
#include <QAccessible>
#include <QListView>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

/// The rows as Qt's list asks for them.
class RichListModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    const QList<RichListRow>& Rows() const { return rows_; }

    void SetRows(const QList<RichListRow>& rows)
    {
        const auto before = static_cast<int>(rows_.size());
        const auto now = static_cast<int>(rows.size());
        if (now < before) {
            beginRemoveRows({}, now, before - 1);
            rows_.resize(now);
            endRemoveRows();
        }
        const int kept = std::min(before, now);
        std::copy(rows.begin(), rows.begin() + kept, rows_.begin());
        if (kept > 0)
            Q_EMIT dataChanged(index(0), index(kept - 1));
        if (now > before) {
            beginInsertRows({}, before, now - 1);
            rows_ = rows;
            endInsertRows();
        }
    }

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }

    /// Qt's list asks for no row at all when Ctrl+C is pressed and none is chosen.
    QVariant data(const QModelIndex& at, int role) const override
    {
        if (!at.isValid())
            return {};
        const RichListRow& row = rows_[at.row()];
        if (role == Qt::DisplayRole)
            return row.title;
        if (role != Qt::AccessibleTextRole)
            return {};
        QStringList spoken{row.title, row.place, row.line};
        spoken.removeAll(QString());
        return spoken.join(u". "_s);
    }

private:
    QList<RichListRow> rows_;
};

namespace {

constexpr int margin = 6; // pixels left and right of a row's lines

/// Draws the rows.
class RowPainter : public QStyledItemDelegate {
public:
    RowPainter(const RichListModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override
    {
        return {1, RichRowHeight(option.font)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const RichListRow& row = model_.Rows()[index.row()];
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        const QRectF area = option.rect;
        painter->save();
        painter->setFont(option.font);
        if (isSelected)
            painter->fillRect(area, look::accent);
        else
            painter->fillRect(area.adjusted(margin, area.height() - 1, -margin, 0), look::halfLight);
        const double half = (area.height() - 1) / 2;
        const QRectF first(area.left() + margin, area.top() + 2, area.width() - 2 * margin, half - 2);
        DrawRowTitle(*painter, first, row.title, row.place, isSelected);
        DrawRowLine(*painter, first.translated(0, half - 1), row.line, row.bold, isSelected);
        if (option.state.testFlag(QStyle::State_HasFocus))
            DrawFocus(*painter, area.adjusted(1, 1, -1, -2), isSelected ? look::accentText : look::text);
        painter->restore();
    }

private:
    const RichListModel& model_;
};

/// A screen reader follows the focus alone, and that may stay in a box with letters while rows are chosen.
void Announce(QListView& view, int row)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&view, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

/// Tells of each chosen row once. Whether Qt's list does so itself while it has not the focus depends on the
/// version. A press with Ctrl chooses a row as any other does; Qt's list would take the choice off a row.
class RowView : public QListView {
protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override
    {
        const auto usual = QListView::selectionCommand(index, event);
        const bool choosesOrNot =
            usual.testAnyFlags(QItemSelectionModel::Toggle | QItemSelectionModel::Deselect);
        return choosesOrNot ? QItemSelectionModel::ClearAndSelect : usual;
    }

    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override
    {
        QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
        if (current.isValid())
            Announce(*this, current.row());
    }
};

} // namespace

RichListBox::RichListBox(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new RowView, design), view_(static_cast<QListView*>(&Widget())),
      model_(new RichListModel(view_))
{
    view_->setModel(model_);
    view_->setItemDelegate(new RowPainter(*model_, view_));
    view_->setUniformItemSizes(true);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    WatchInput(view_->viewport());
    connect(view_, &QListView::doubleClicked, this, [this] { RowDblClick.Fire(); });
}

void RichListBox::SetRows(const QList<RichListRow>& rows)
{
    model_->SetRows(rows);
}

int RichListBox::ListCount() const
{
    return model_->rowCount();
}

const RichListRow& RichListBox::List(int index) const
{
    if (index < 0 || index >= ListCount())
        Fail(failure::badListIndex);
    return model_->Rows()[index];
}

int RichListBox::ListIndex() const
{
    return view_->selectionModel()->hasSelection() ? view_->currentIndex().row() : -1;
}

void RichListBox::SetListIndex(int index)
{
    if (index < -1 || index >= ListCount())
        Fail(failure::invalidProperty);
    if (index < 0) {
        view_->clearSelection();
        return;
    }
    const bool isOther = view_->currentIndex().row() != index;
    view_->setCurrentIndex(model_->index(index));
    view_->scrollTo(model_->index(index));
    if (!isOther)
        Announce(*view_, index); // another text may stand there now
}

int RichListBox::RowsInView() const
{
    return std::max(1, view_->viewport()->height() / RichRowHeight(view_->font()));
}

void RichListBox::SetSpokenAs(const QString& text)
{
    spokenAs_ = text;
    UpdateAccessibleText();
}

QString RichListBox::AccessibleText() const
{
    return spokenAs_.isEmpty() ? Control::AccessibleText() : spokenAs_;
}

} // namespace torvik
