#include "check/asked_files.h"

#include "program/catalogue/articles.h"
#include "program/catalogue/booklet.h"
#include "program/catalogue/library.h"
#include "program/catalogue/movies_and_sounds.h"
#include "program/catalogue/other_files.h"
#include "program/catalogue/pictures.h"
#include "program/catalogue/topics.h"
#include "program/photo_name.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/main_window.h"
#include "windows/sound_panel.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

/// Notes of a topic whose photos cannot be counted are known up to this one.
constexpr int mostNotes = 99;
constexpr int firstYear = 67;
constexpr int lastYear = 101;
const QString noAdvertisement = u"2001"_s; ///< the program says that it was never released

class Collector {
public:
    explicit Collector(const QStringList& photos) : photos_(photos) {}

    /// What is asked for whatever photos there are.
    QHash<QString, AskedFile> CollectAlways()
    {
        TakeStart();
        for (int button = 1; button <= yearCount; ++button)
            TakeYear(YearOfButton(button));
        for (const Topic& topic : Topics())
            TakeTopic(topic);
        TakeLibrary();
        TakeMoviesAndSounds();
        TakeBooklet();
        return asked_;
    }

    /// With what depends on the photos.
    QHash<QString, AskedFile> CollectAll()
    {
        static const QHash<QString, AskedFile> always = Collector({}).CollectAlways();
        asked_ = always;
        for (const Topic& topic : Topics())
            TakeNotes(topic);
        TakePhotos();
        return asked_;
    }

private:
    /// Screens that cannot show the file do not suffer from it either.
    void Take(const QString& path, const QString& screen, Need need = Need::Full)
    {
        AskedFile& file = asked_[FoldedPath(path)];
        if (file.path.isEmpty())
            file.path = path.mid(path.startsWith(u'\\') ? 1 : 0);
        if (need != Need::Known && !file.screens.contains(screen))
            file.screens.append(screen);
        file.most = std::max(file.most, need);
    }

    void TakeStart()
    {
        Take(ArticleOf(ArticleButton::Description, nothingChosen).file, u"Start > Description"_s);
        Take(startDocument, {}, Need::Known);
        Take(startNarration, {}, Need::Known);
        Take(saverHelp, u"File > Install Screen saver > Help"_s);
        Take(movieDriver, {}, Need::Known);
        Take(pictureOfAll, {}, Need::Known);
    }

    void TakeYear(const QString& year)
    {
        Take(ArticleOf(ArticleButton::Description, year).file, year + u" > Description"_s);
        Take(ArticleOf(ArticleButton::Options, year).file, year + u" > Options"_s);
        Take(ArticleOf(ArticleButton::Statistics, year).file, year + u" > Statistics"_s);
        Take(ArticleOf(ArticleButton::Colors, year).file, year + u" > Colors"_s);
        Take(NostalgiaOf(year).file, year + u" > Nostalgia"_s);
        Take(EmblemOf(year), year + u" > Emblem"_s);
        Take(ScriptOf(year), year + u" > Script"_s);
        Take(ClipArtOf(Mid(year, 3, 2)), year + u" > ClipArt"_s);
        Take(AdvertisementOf(year), year + u" > Advertisement"_s,
             year == noAdvertisement ? Need::Remark : Need::Full);
        Take(NarrationOf(year), {}, Need::Known);
    }

    /// What a topic has of its own. A button that is grey for it leads nowhere, but its file may be there.
    void TakeTopic(const Topic& topic)
    {
        const QString title = QString::fromLatin1(topic.title);
        const QString screen = title.trimmed() + u" > "_s;
        const auto own = [&](const char* file, const QString& button, bool isEnabled) {
            if (*file != '\0')
                Take(QString::fromLatin1(file), screen + button, isEnabled ? Need::Full : Need::Known);
        };
        own(topic.description, u"Description"_s, AsksForArticle(ArticleButton::Description, topic));
        own(topic.options, u"Options"_s, AsksForArticle(ArticleButton::Options, topic));
        own(topic.colors, u"Colors"_s, AsksForArticle(ArticleButton::Colors, topic));
        own(topic.statistics, u"Details"_s, AsksForArticle(ArticleButton::Statistics, topic));
        own(topic.emblem, u"Emblem"_s, true); // also while it is open and the topic is chosen
        own(topic.script, u"Script"_s, true);
        Take(NarrationOf(title), {}, Need::Known);
    }

    void TakeNotes(const Topic& topic)
    {
        if (*topic.notes.below5 == '\0')
            return;
        const QString screen = QString::fromLatin1(topic.title).trimmed() + u" > "_s;
        const auto isOfTopic = [&](const QString& photo) {
            return Left(photo, 2) == QLatin1String(topic.code);
        };
        const auto count = static_cast<int>(std::count_if(photos_.begin(), photos_.end(), isOfTopic));
        const bool isShown = topic.isBrowsed && topic.hasStatistics;
        for (int photo = 1; photo <= (isShown ? count : mostNotes); ++photo)
            Take(NoteOf(QString::fromLatin1(topic.title), photo),
                 screen + u"Details to photo %1"_s.arg(photo), isShown ? Need::Full : Need::Known);
    }

    void TakePhotos()
    {
        for (const QString& photo : photos_) {
            const QString path = u"E:"_s + torviksFolder + photo;
            TakePathPosition(path);
            Take(torviksFolder + photo, ScreenOfPhoto(photo), Need::Optional);
            Take(CaptionOfPhoto(path).mid(2), ScreenOfPhoto(photo) + u" > caption of "_s + photo,
                 Need::Optional);
        }
    }

    void TakeLibrary()
    {
        for (const LibraryDocument& document : LibraryDocuments()) {
            if (document.file != nullptr && *document.file != '\0')
                Take(QString::fromLatin1(document.file), QString::fromLatin1(document.screen),
                     *document.screen != '\0' ? Need::Full : Need::Known);
        }
    }

    void TakeMoviesAndSounds()
    {
        for (int option = 0; option < movieCountOfPlayer; ++option) {
            const Movie movie = MovieOf(option);
            const QString title = movie.windowTitle.mid(movie.windowTitle.indexOf(u" - "_s) + 3);
            if (!movie.file.isEmpty())
                Take(movieFolder + movie.file, u"Movies > "_s + title);
        }
        for (int button = 0; button < soundCount; ++button)
            Take(SoundOf(button), u"Sound Effects > "_s + SoundLabel(button));
    }

    void TakeBooklet()
    {
        const QString booklet = u"File > PrintBooklet"_s;
        for (const CoverPicture& picture : CoverPictures())
            Take(QString::fromLatin1(picture.file), booklet + u" > cover"_s);
        Take(BookletIntroduction(), booklet);
        for (int year = firstYear; year <= lastYear; ++year) {
            const QString prefix = BookletPrefix(year);
            Take(BookletDescription(prefix), booklet);
            for (const QString& file : BookletDetails(prefix))
                Take(file, booklet);
        }
    }

    QStringList photos_;
    QHash<QString, AskedFile> asked_;
};

} // namespace

QString FoldedPath(const QString& path)
{
    return path.mid(path.startsWith(u'\\') ? 1 : 0).toUpper().toCaseFolded();
}

QHash<QString, AskedFile> AskedFiles(const QStringList& photos)
{
    return Collector(photos).CollectAll();
}

QString ScreenOfPhoto(const QString& photo)
{
    const QString code = Left(photo, 2).toUpper();
    const Topic* topic = TopicOfCode(code);
    return topic != nullptr ? QString::fromLatin1(topic->title).trimmed() : TitleOfCode(code).trimmed();
}

} // namespace torvik
