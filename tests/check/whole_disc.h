#pragma once

#include "check/asked_files.h"
#include "platform/paths/drives.h"
#include "support/discs/test_disc.h"
#include "support/discs/test_movie.h"

#include <QHash>

namespace torvik {

using namespace Qt::StringLiterals;

/// A small article.
inline const QByteArray article = "{\\rtf1\\ansi A few words.}";

/// A small whole disc in drive E: all that the screens need, two photos for each year and topic.
class WholeDisc {
public:
    WholeDisc()
    {
        QStringList photos;
        const QByteArray picture = TestDisc::Jpeg(Qt::darkCyan, {64, 48});
        QStringList codes{u"A0"_s, u"A1"_s, u"SB"_s, u"PT"_s, u"TD"_s, u"TF"_s,
                          u"VM"_s, u"ZZ"_s, u"M1"_s, u"M3"_s, u"MS"_s};
        for (int year = 67; year < 100; ++year)
            codes.append(QString::number(year));
        for (const QString& code : codes) {
            for (const char* number : {"001", "002"})
                photos.append(code + u"TOR"_s + QLatin1String(number) + u".JPG"_s);
        }
        const QByteArray movie = TestMovie::Avi();
        const QByteArray sound = TestMovie::Wav();
        for (const QString& photo : photos) {
            disc.AddFile(u"Torviks/"_s + photo, picture);
            disc.AddFile(u"RichText/"_s + photo.left(8).toLower() + u".rtf"_s, article);
        }
        const QHash<QString, AskedFile> asked = AskedFiles(photos);
        for (auto file = asked.cbegin(); file != asked.cend(); ++file) {
            // Under the folded path: spellings of folders differ from table to table, and the host tells them
            // apart.
            const QString path = QString(file.key()).replace(u'\\', u'/');
            if (file->most != Need::Full)
                continue;
            const QString ending = path.right(4);
            disc.AddFile(path, ending == u".rtf"_s   ? article
                               : ending == u".avi"_s ? movie
                               : ending == u".wav"_s ? sound
                                                     : picture);
        }
        SetDriveOptions({{u'E', disc.Folder()}});
    }
    ~WholeDisc() { SetDriveOptions({}); }
    WholeDisc(const WholeDisc&) = delete;
    WholeDisc& operator=(const WholeDisc&) = delete;

    TestDisc disc;
};

} // namespace torvik
