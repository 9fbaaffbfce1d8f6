#include "ui/controls/rich_text_box.h"

#include "platform/files/files.h"
#include "rtf/rtf_reader.h"
#include "runtime/failure.h"
#include "ui/desktop/shell_execute.h"
#include "ui/look/look.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <memory>
#include <utility>

namespace torvik {

/// The pane itself, which paints under and over its text what the layout leaves out.
class RichTextBox::Pane : public QTextBrowser {
public:
    void SetExtras(rtf::LetterShadows shadows, rtf::ExtraLines lines)
    {
        shadows_ = std::move(shadows);
        lines_ = std::move(lines);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        constexpr double ownSize = 1;
        const QPointF scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
        const QRectF clip = QRectF(event->rect()).translated(scrolled);
        if (!shadows_.IsEmpty()) {
            QPainter painter(viewport());
            painter.translate(-scrolled);
            shadows_.Paint(painter, clip, ownSize);
        }
        QTextBrowser::paintEvent(event);
        if (lines_.IsEmpty())
            return;
        QPainter painter(viewport());
        painter.translate(-scrolled);
        lines_.Paint(painter, clip, palette().color(QPalette::Text), ownSize);
    }

private:
    rtf::LetterShadows shadows_;
    rtf::ExtraLines lines_;
};

RichTextBox::RichTextBox(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new Pane, design), pane_(static_cast<Pane*>(&Widget()))
{
    pane_->setOpenLinks(false);
    pane_->setUndoRedoEnabled(false);
    connect(pane_, &QTextBrowser::anchorClicked, this, [this](const QUrl& address) {
        if (address.isRelative() && address.path().isEmpty())
            pane_->scrollToAnchor(address.fragment(QUrl::FullyDecoded));
        else
            ShellExecute(address.toString(QUrl::FullyEncoded));
    });
    WatchInput(pane_->viewport());
}

void RichTextBox::SetFileName(const QString& path)
{
    const QByteArray bytes = ReadFile(path);
    auto document = std::make_unique<QTextDocument>();
    document->setLayoutEnabled(pane_->isVisible());
    document->setDefaultFont(pane_->font());
    if (bytes.isEmpty())
        Fail(failure::invalidFileFormat);
    rtf::ReadRichText(bytes, *document);

    pane_->setExtraSelections({});
    pane_->SetExtras({}, {});
    QTextDocument* shown = document.release();
    shown->setParent(pane_);
    const QPointer<QTextDocument> earlier = pane_->document(); // the pane's own first one it deletes itself
    pane_->setDocument(shown);
    delete earlier;
    pane_->SetExtras(rtf::LetterShadows(*shown), rtf::ExtraLines(*shown));
    // The pane has brought its cursor into view, a little below the top.
    pane_->verticalScrollBar()->setValue(0);
    pane_->horizontalScrollBar()->setValue(0);
    fileName_ = path;
    UpdateAccessibleText();
}

QString RichTextBox::Text() const
{
    return pane_->toPlainText();
}

const QTextDocument& RichTextBox::Document() const
{
    return *pane_->document();
}

void RichTextBox::SetMarks(const QList<TextRange>& pieces, qsizetype present)
{
    QList<QTextEdit::ExtraSelection> marks;
    marks.reserve(pieces.size());
    for (qsizetype index = 0; index < pieces.size(); ++index) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = CursorAt(pieces[index].begin);
        mark.cursor.setPosition(static_cast<int>(pieces[index].End()), QTextCursor::KeepAnchor);
        mark.format.setBackground(index == present ? look::presentMark : look::mark);
        mark.format.setForeground(look::text);
        marks.append(mark);
    }
    pane_->setExtraSelections(marks);
}

/// A text that comes into a hidden pane is laid out when the pane is shown: its width is known only then. A
/// text that may need the bar for scrolling gets it in advance, else it would be laid out for both widths.
void RichTextBox::LayOut()
{
    QTextDocument& text = *pane_->document();
    if (text.isLayoutEnabled())
        return;
    constexpr int aPaneFull = 2000; // characters
    if (text.characterCount() > aPaneFull)
        pane_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    text.setLayoutEnabled(true);
    pane_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void RichTextBox::BringIntoView(const TextRange& piece)
{
    LayOut();
    // The layout of a long document is made in steps; asked for its pages it is made to the end, and only
    // then do the bars reach every line.
    pane_->document()->pageCount();
    const QRect begin = pane_->cursorRect(CursorAt(piece.begin));
    const QRect place = begin.united(pane_->cursorRect(CursorAt(piece.End())));
    const QRect view = pane_->viewport()->rect();
    QScrollBar& down = *pane_->verticalScrollBar();
    QScrollBar& across = *pane_->horizontalScrollBar();
    if (begin.top() < view.top() || place.bottom() > view.bottom())
        down.setValue(down.value() + begin.top() - view.height() / 3); // with some lines above it
    if (begin.left() < view.left() || place.right() > view.right())
        across.setValue(across.value() + begin.left() - view.width() / 3);
}

QTextCursor RichTextBox::CursorAt(qsizetype place) const
{
    QTextCursor cursor(pane_->document());
    cursor.setPosition(static_cast<int>(place));
    return cursor;
}

bool RichTextBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && watched == pane_)
        LayOut();
    if (event->type() == QEvent::MouseButtonRelease)
        onLink_ = !pane_->anchorAt(static_cast<QMouseEvent*>(event)->pos()).isEmpty();
    return Control::eventFilter(watched, event);
}

QString RichTextBox::AccessibleText() const
{
    const QString text = Text();
    return text.isEmpty() ? Control::AccessibleText() : text;
}

} // namespace torvik
