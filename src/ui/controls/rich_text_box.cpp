#include "ui/controls/rich_text_box.h"

#include "platform/files/files.h"
#include "rtf/rtf_reader.h"
#include "runtime/failure.h"
#include "ui/desktop/shell_execute.h"

#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>

#include <memory>

namespace torvik {

RichTextBox::RichTextBox(Container& container, const QString& name, const Twips& design)
    : Control(container, name, new QTextBrowser, design), pane_(static_cast<QTextBrowser*>(&Widget()))
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
    document->setDefaultFont(pane_->font());
    if (bytes.isEmpty())
        Fail(failure::invalidFileFormat);
    rtf::ReadRichText(bytes, *document);

    QTextDocument* shown = document.release();
    shown->setParent(pane_);
    const QPointer<QTextDocument> earlier = pane_->document(); // the pane's own first one it deletes itself
    pane_->setDocument(shown);
    delete earlier;
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

bool RichTextBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        onLink_ = !pane_->anchorAt(static_cast<QMouseEvent*>(event)->pos()).isEmpty();
    return Control::eventFilter(watched, event);
}

QString RichTextBox::AccessibleText() const
{
    return Text().isEmpty() ? Control::AccessibleText() : Text();
}

} // namespace torvik
