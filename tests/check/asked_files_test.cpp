#include "check/asked_files.h"
#include "program/catalogue/library.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

AskedFile Asked(const QString& path, const QStringList& photos = {})
{
    return AskedFiles(photos).value(FoldedPath(path));
}

} // namespace

class AskedFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_year_asks_for_nine_files()
    {
        const QStringList files{
            u"richtext\\72desc.rtf"_s,   u"richtext\\72opts.rtf"_s,      u"richtext\\72stats.rtf"_s,
            u"richtext\\72colors.rtf"_s, u"richtext\\nostalgia72.rtf"_s, u"emblems\\emb72.jpg"_s,
            u"scripts\\scri72.jpg"_s,    u"clipart\\72clip.jpg"_s,       u"ads\\72brto00.jpg"_s};
        const QStringList buttons{u"Description"_s, u"Options"_s,   u"Statistics"_s,
                                  u"Colors"_s,      u"Nostalgia"_s, u"Emblem"_s,
                                  u"Script"_s,      u"ClipArt"_s,   u"Advertisement"_s};
        for (qsizetype file = 0; file < files.size(); ++file) {
            QCOMPARE(Asked(files[file]).screens.first(), u"1972 > "_s + buttons[file]);
            QVERIFY(Asked(files[file]).most == Need::Full);
        }
    }

    void the_booklet_asks_for_the_articles_of_all_years_and_its_cover()
    {
        QCOMPARE(Asked(u"RichText\\A1colors.rtf"_s).screens,
                 (QStringList{u"2001 > Colors"_s, u"File > PrintBooklet"_s}));
        QCOMPARE(Asked(u"graphics\\logo.jpg"_s).screens, QStringList{u"File > PrintBooklet > cover"_s});
        QCOMPARE(Asked(u"clipart\\97clip.jpg"_s).screens,
                 (QStringList{u"1997 > ClipArt"_s, u"File > PrintBooklet > cover"_s}));
    }

    void what_the_program_lives_without_is_a_remark()
    {
        QVERIFY(Asked(u"ads\\01brto00.jpg"_s).most == Need::Remark);
        QVERIFY(Asked(u"ads\\00brto00.jpg"_s).most == Need::Full);
    }

    void a_topic_asks_for_what_its_working_buttons_open()
    {
        QCOMPARE(Asked(u"richtext\\sbopts.rtf"_s).screens, QStringList{u"The Classic Harwell > Options"_s});
        QCOMPARE(Asked(u"richtext\\danbury.rtf"_s).screens,
                 QStringList{u"Danbury Mint Die Cast Models > Description"_s});
        QVERIFY(Asked(u"richtext\\sbstats.rtf"_s).most == Need::Known); // the button is grey
        QVERIFY(Asked(u"richtext\\m1stats.rtf"_s).most == Need::Known); // notes come before it
    }

    void notes_are_asked_for_by_the_number_of_the_topics_photos()
    {
        const QStringList photos{u"PTPRO001.JPG"_s, u"PTPRO002.JPG"_s, u"67TOR001.JPG"_s};
        QCOMPARE(Asked(u"richtext\\pt004.rtf"_s, photos).screens,
                 QStringList{u"Early Torvik Prototypes > Details to photo 2"_s});
        QVERIFY(Asked(u"richtext\\pt006.rtf"_s, photos).path.isEmpty());
    }

    void photos_and_captions_are_asked_for_where_they_are_there()
    {
        const QStringList photos{u"67TOR001.JPG"_s};
        const AskedFile caption = Asked(u"RichText\\67tor001.rtf"_s, photos);
        QVERIFY(caption.most == Need::Optional);
        QCOMPARE(caption.screens, QStringList{u"1967 > caption of 67TOR001.JPG"_s});
        QVERIFY(Asked(u"RichText\\67tor001.rtf"_s).path.isEmpty());
        QVERIFY(Asked(u"torviks\\67tor001.jpg"_s, photos).most == Need::Optional);
        QCOMPARE(Asked(u"torviks\\67tor001.jpg"_s, photos).screens, QStringList{u"1967"_s});
    }

    void every_document_of_the_library_is_asked_for_under_its_menu_entry()
    {
        for (const LibraryDocument& document : LibraryDocuments()) {
            const AskedFile asked = Asked(QString::fromLatin1(document.file));
            QVERIFY2(!asked.path.isEmpty(), document.file);
            if (*document.screen != '\0')
                QVERIFY2(asked.screens.contains(QString::fromLatin1(document.screen)), document.file);
        }
    }

    void movies_and_sounds_are_named_as_their_buttons()
    {
        QCOMPARE(Asked(u"movies\\torvik69.avi"_s).screens, QStringList{u"Movies > The 1969 Torvik"_s});
        QCOMPARE(Asked(u"wav\\taxi.wav"_s).screens, QStringList{u"Sound Effects > Taxi Horns"_s});
    }

    void photos_belong_to_their_year_or_topic()
    {
        QCOMPARE(ScreenOfPhoto(u"67TOR001.JPG"_s), u"1967"_s);
        QCOMPARE(ScreenOfPhoto(u"A1TOR001.JPG"_s), u"2001"_s);
        QCOMPARE(ScreenOfPhoto(u"m1kes001.jpg"_s), u"Torvik Kestra I"_s);
    }
};

TORVIK_TEST(AskedFilesTest)
#include "asked_files_test.moc"
