#include "check/oddities.h"

#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/main_window.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// A photo counts as much larger or smaller when it has this many times the pixels of the middle one:
/// four times the width and height.
constexpr qint64 muchLarger = 16;
constexpr qsizetype fewestToCompare = 3;

QString FolderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'\\') + 1);
}

/// The caption that the program looks for beside a photo.
QString CaptionPathOf(const QString& photo)
{
    const QString path = u"E:"_s + torviksFolder + photo;
    TakePathPosition(path);
    return CaptionOfPhoto(path).mid(3);
}

class OddityFinder {
public:
    OddityFinder(const QList<ListedFile>& files, const std::vector<Examination>& examined,
                 const QHash<QString, AskedFile>& asked)
        : files_(files), examined_(examined), asked_(asked), photos_(NamesOfPhotos(files))
    {
        for (const ListedFile& file : files_)
            spellings_[FoldedPath(file.path)].append(file.path);
    }

    QList<Finding> Find()
    {
        FindTwins();
        FindNeverAsked();
        FindMissingCaptions();
        FindGaps();
        FindStrangeSizes();
        return findings_;
    }

private:
    void Add(FindingKind kind, const QString& file, const QString& what, const QStringList& screens = {})
    {
        findings_.append({kind, file, what, screens});
    }

    void FindTwins()
    {
        for (QStringList& paths : spellings_) {
            std::sort(paths.begin(), paths.end());
            for (qsizetype other = 1; other < paths.size(); ++other)
                Add(FindingKind::Odd, paths[other],
                    u"differs from %1 in letter case alone, and only that one is found"_s.arg(paths.first()),
                    asked_.value(FoldedPath(paths[other])).screens);
        }
    }

    void FindNeverAsked()
    {
        for (const ListedFile& file : files_) {
            if (asked_.contains(FoldedPath(file.path)))
                continue;
            if (const QString photo = PhotoOfCaption(file.path); !photo.isEmpty())
                Add(FindingKind::Odd, file.path, u"is the caption of a photo that is not there"_s,
                    {ScreenOfPhoto(photo)});
            else
                Add(FindingKind::NeverAsked, file.path, u"is not asked for by any screen"_s);
        }
    }

    /// The photo that a document is named after: two characters of a year or topic, some letters, a number.
    /// Empty when it is named otherwise.
    static QString PhotoOfCaption(const QString& path)
    {
        static const QRegularExpression form(u"^richtext\\\\((..)[a-z]+\\d{3})\\.rtf$"_s,
                                             QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = form.match(path);
        const QString code = match.captured(2).toUpper();
        bool isNumber = false;
        code.toInt(&isNumber);
        const bool isPhotos =
            isNumber || code == code2000 || code == code2001 || TopicOfCode(code) != nullptr;
        return match.hasMatch() && isPhotos ? match.captured(1).toUpper() + u".JPG"_s : QString();
    }

    void FindMissingCaptions()
    {
        for (const QString& photo : photos_) {
            const QString caption = FoldedPath(CaptionPathOf(photo));
            if (!spellings_.contains(caption))
                Add(FindingKind::Odd, torviksFolder.mid(1) + photo, u"has no caption"_s,
                    asked_.value(caption).screens);
        }
    }

    /// Photos of one stem, "67TOR", are numbered from 1 on.
    void FindGaps()
    {
        static const QRegularExpression form(u"^(\\S*\\D)(\\d+)\\.JPG$"_s);
        QMap<QString, QMap<int, QString>> numbered;
        for (const QString& photo : photos_) {
            const QRegularExpressionMatch match = form.match(photo);
            if (match.hasMatch() && photo.size() > 2)
                numbered[match.captured(1)].insert(match.captured(2).toInt(), photo);
        }
        for (const QMap<int, QString>& photos : numbered) {
            int expected = 1;
            for (auto photo = photos.begin(); photo != photos.end(); ++photo) {
                if (photo.key() > expected)
                    Add(FindingKind::Odd, torviksFolder.mid(1) + photo.value(),
                        expected == photo.key() - 1
                            ? u"follows a gap: there is no number %1"_s.arg(expected)
                            : u"follows a gap: there are no numbers %1 to %2"_s.arg(expected).arg(
                                  photo.key() - 1),
                        {ScreenOfPhoto(photo.value())});
                expected = photo.key() + 1;
            }
        }
    }

    void FindStrangeSizes()
    {
        QMap<QString, QList<qint64>> ofKind; // pictures of one folder are of one kind
        for (qsizetype file = 0; file < files_.size(); ++file) {
            if (const qint64 pixels = PixelsOf(file); pixels > 0)
                ofKind[FoldedPath(FolderOf(files_[file].path))].append(pixels);
        }
        for (QList<qint64>& pixels : ofKind)
            std::sort(pixels.begin(), pixels.end());
        for (qsizetype file = 0; file < files_.size(); ++file) {
            const QList<qint64> others = ofKind.value(FoldedPath(FolderOf(files_[file].path)));
            const qint64 pixels = PixelsOf(file);
            if (pixels <= 0 || others.size() < fewestToCompare || PhotoIn(files_[file].path).isEmpty())
                continue;
            const qint64 middle = others[others.size() / 2];
            const QSize size = examined_[static_cast<std::size_t>(file)].pixels;
            const QString measures = u"%1 by %2 pixels"_s.arg(size.width()).arg(size.height());
            const QStringList screen{ScreenOfPhoto(PhotoIn(files_[file].path))};
            if (pixels > middle * muchLarger)
                Add(FindingKind::Odd, files_[file].path, u"is far larger than the others: "_s + measures,
                    screen);
            else if (pixels * muchLarger < middle)
                Add(FindingKind::Odd, files_[file].path, u"is far smaller than the others: "_s + measures,
                    screen);
        }
    }

    qint64 PixelsOf(qsizetype file) const
    {
        const QSize size = examined_[static_cast<std::size_t>(file)].pixels;
        return size.isValid() ? qint64{size.width()} * size.height() : 0;
    }

    const QList<ListedFile>& files_;
    const std::vector<Examination>& examined_;
    const QHash<QString, AskedFile>& asked_;
    QStringList photos_;
    QMap<QString, QStringList> spellings_;
    QList<Finding> findings_;
};

} // namespace

QString PhotoIn(const QString& path)
{
    const QString folder = torviksFolder.mid(1);
    const bool isPhoto = path.startsWith(folder, Qt::CaseInsensitive) &&
                         path.endsWith(u".jpg"_s, Qt::CaseInsensitive) &&
                         path.indexOf(u'\\', folder.size()) < 0;
    return isPhoto ? path.mid(folder.size()).toUpper() : QString();
}

QStringList NamesOfPhotos(const QList<ListedFile>& files)
{
    QStringList photos;
    for (const ListedFile& file : files) {
        if (const QString photo = PhotoIn(file.path); !photo.isEmpty())
            photos.append(photo);
    }
    photos.sort();
    photos.removeDuplicates();
    return photos;
}

QStringList ScreensWithoutPhoto(const QStringList& photos)
{
    QSet<QString> codes;
    for (const QString& photo : photos)
        codes.insert(Left(photo, 2));
    QStringList screens;
    for (int button = 1; button <= yearCount; ++button) {
        if (!codes.contains(CodeOfTitle(YearOfButton(button))))
            screens.append(YearOfButton(button));
    }
    for (const Topic& topic : Topics()) {
        if (topic.isBrowsed && topic.entry.menu != TopicMenu::None &&
            !codes.contains(QLatin1String(topic.code)))
            screens.append(QString::fromLatin1(topic.title).trimmed());
    }
    return screens;
}

QList<Finding> Oddities(const QList<ListedFile>& files, const std::vector<Examination>& examined,
                        const QHash<QString, AskedFile>& asked)
{
    return OddityFinder(files, examined, asked).Find();
}

} // namespace torvik
