#pragma once

#include "runtime/text_range.h"
#include "ui/forms/control.h"

#include <QList>
#include <QString>

class QListView;

namespace torvik {

class RichListModel;

/// A row of two lines.
struct RichListRow {
    QString title;
    QString place;         ///< at the right end of the first line, faded
    QString line;          ///< the second line
    QList<TextRange> bold; ///< pieces of Line
};

/// A list of rows of two lines, of which one can be selected. Rows count from 0; -1 stands for no selection.
class RichListBox : public Control {
public:
    RichListBox(Container& container, const QString& name, const Twips& design);

    /// Shows other rows. Those that stay are not touched, so that the list does not flicker; the selection
    /// and the place that is scrolled to stay as far as there are rows.
    void SetRows(const QList<RichListRow>& rows);
    int ListCount() const;
    /// Failure 381 for an index outside the list.
    const RichListRow& List(int index) const;
    int ListIndex() const;
    /// Selects a row and brings it into view, or selects none with -1; failure 380 for any other index
    /// outside the list. A screen reader is told of the row also while the focus is elsewhere.
    void SetListIndex(int index);
    /// How many rows the list shows at a time, 1 at least.
    int RowsInView() const;

    /// What a screen reader calls the list.
    void SetSpokenAs(const QString& text);

    Event<> RowDblClick; ///< a row was clicked twice

protected:
    QString AccessibleText() const override;
    bool ClicksByMouse() const override { return false; }

private:
    QListView* view_;
    RichListModel* model_;
    QString spokenAs_;
};

} // namespace torvik
