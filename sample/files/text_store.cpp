#include "sample/files/text_store.h"

#include <QFile>
#include <QStringList>

#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

QString StoredText(const QString& name)
{
    QFile file(u":/sample/documents/%1.txt"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("A text of the articles is missing: " + name.toStdString());
    return QString::fromUtf8(file.readAll());
}

QByteArray StoredScreen(const QString& name)
{
    QFile file(u":/sample/screens/%1.png"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("A picture of a screen is missing: " + name.toStdString());
    return file.readAll();
}

std::map<QString, TextSection> StoredSections(const QString& name)
{
    std::map<QString, TextSection> sections;
    TextSection* current = nullptr;
    const QStringList lines = StoredText(name).split(u'\n');
    for (const QString& line : lines) {
        const qsizetype end = line.startsWith(u'[') ? line.indexOf(u']') : -1;
        if (end > 0 && !line.left(end).contains(u'|')) {
            current = &sections[line.mid(1, end - 1)];
            current->title = line.mid(end + 1).trimmed();
        } else if (current) {
            current->body += line + u'\n';
        }
    }
    return sections;
}

} // namespace torvik::sample
