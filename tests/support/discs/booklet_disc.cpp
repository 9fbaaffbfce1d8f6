#include "support/discs/booklet_disc.h"

#include <QBuffer>
#include <QImage>

using namespace Qt::StringLiterals;

namespace torvik {

void AddCover(TestDisc& disc)
{
    for (const CoverArt& art : coverArt) {
        QImage image(art.size, QImage::Format_RGB32);
        image.fill(art.colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, art.format, 95);
        disc.AddFile(QString::fromLatin1(art.file), bytes);
    }
}

void AddIntroduction(TestDisc& disc)
{
    disc.AddDocument(u"introduction.rtf"_s, u"Introduction."_s);
}

void AddYear(TestDisc& disc, const QString& prefix)
{
    const auto add = [&](const char* ending, const char* subject) {
        disc.AddDocument(prefix + QString::fromLatin1(ending),
                         QString::fromLatin1(subject) + u" of "_s + prefix + u'.');
    };
    add("desc.rtf", "Description");
    add("opts.rtf", "Options");
    add("stats.rtf", "Statistics");
    add("colors.rtf", "Colors");
}

} // namespace torvik
