#pragma once

#include "runtime/text_range.h"
#include "ui/forms/control.h"

#include <QList>

class QTextCursor;
class QTextDocument;

namespace torvik {

/// A pane that shows a rich-text file with its own fonts and pictures. Its text can be selected, copied and
/// scrolled, not changed. A click on a web or mail address opens it in the desktop's own program, one on a
/// link inside the document brings its place into view; neither is a Click.
class RichTextBox : public Control {
public:
    RichTextBox(Container& container, const QString& name, const Twips& design);

    /// Loads a file. Failures: those of reading a file (53, 76, 68, 70, 75, 57), and 321, Invalid file
    /// format, for an empty one. On a failure the earlier text stays.
    void SetFileName(const QString& path);
    const QString& FileName() const { return fileName_; }
    /// The plain text of what is shown.
    QString Text() const;
    /// What is shown, with its formats; for printing. It goes with the next file.
    const QTextDocument& Document() const;

    /// Lays colour under pieces of Text, readable whatever the document's own colours are: a strong one under
    /// the piece at the index `present` (-1 for none), a faint one under the others. What the user selects,
    /// copies or prints knows nothing of it. It goes with the next file.
    void SetMarks(const QList<TextRange>& pieces, qsizetype present);
    /// Scrolls to a piece of Text unless it is in view; the user's selection stays.
    void BringIntoView(const TextRange& piece);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QString AccessibleText() const override;
    bool ClicksByMouse() const override { return !onLink_; }

private:
    class Pane;

    void LayOut();
    QTextCursor CursorAt(qsizetype place) const;

    Pane* pane_;
    bool onLink_ = false; ///< the mouse was last let go over a link
    QString fileName_;
};

} // namespace torvik
