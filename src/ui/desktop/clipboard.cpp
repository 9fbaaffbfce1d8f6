#include "ui/desktop/clipboard.h"

#include "ui/pictures/picture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace torvik {

void ClipboardObject::Clear()
{
    QGuiApplication::clipboard()->clear();
}

void ClipboardObject::SetText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

void ClipboardObject::SetPicture(const Picture& picture)
{
    if (picture.IsEmpty())
        Clear();
    else
        QGuiApplication::clipboard()->setImage(picture.Natural());
}

} // namespace torvik
