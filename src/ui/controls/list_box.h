#pragma once

#include "ui/forms/control.h"

class QListWidget;

namespace torvik {

/// A list of texts of which one can be selected. Entries count from 0; -1 stands for no selection. Click is a
/// click on an entry; a selection that the program makes runs no event.
class ListBox : public Control {
public:
    ListBox(Container& container, const QString& name, const Twips& design);

    void AddItem(const QString& text);
    int ListCount() const;
    /// The text of an entry; failure 381 for an index outside the list.
    QString List(int index) const;
    int ListIndex() const;
    /// Selects an entry, or none with -1; failure 380 for any other index outside the list.
    void SetListIndex(int index);
    /// Selects or clears one entry; failure 381 for an index outside the list.
    void SetSelected(int index, bool selected);
    /// The text of the selected entry, empty when none is.
    QString Text() const;

    /// What a screen reader calls the list, where it has no tool tip.
    void SetSpokenAs(const QString& text);

protected:
    QString AccessibleText() const override;
    bool ClicksByMouse() const override { return false; }

private:
    QListWidget* list_;
    QString spokenAs_;
};

} // namespace torvik
