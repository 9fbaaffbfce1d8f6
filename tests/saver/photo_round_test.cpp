#include "saver/photo_round.h"
#include "support/discs/disc_folder.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

/// Lets the folder stand as E: however often the drives are read anew.
QStringList Take(PhotoRound& round, int count)
{
    QStringList taken;
    for (int i = 0; i < count; ++i)
        taken.append(round.Next());
    return taken;
}

const QString discDrive = u"E:\\"_s;

} // namespace

/// The order in which the saver takes the photos.
class PhotoRoundTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        SetVolumeLister([] { return QList<QString>(); });
    }
    void cleanupTestCase() { SetVolumeLister({}); }

    void photos_come_by_name_whatever_their_letters_case_and_begin_again()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("b.jpg") && disc.File("A.JPG") && disc.File("C.Jpg") && disc.File("note.rtf"));
        PhotoRound round(discDrive);
        QCOMPARE(Take(round, 4), (QStringList{On("A.JPG"), On("b.jpg"), On("C.Jpg"), On("A.JPG")}));
        QCOMPARE(round.Count(), 3);
    }

    void the_first_round_begins_where_it_is_told()
    {
        const DiscFolder disc;
        for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg"})
            QVERIFY(disc.File(name));
        PhotoRound middle(discDrive, 0.5);
        QCOMPARE(Take(middle, 4), (QStringList{On("c.jpg"), On("d.jpg"), On("a.jpg"), On("b.jpg")}));
        PhotoRound end(discDrive, 0.9999);
        QCOMPARE(Take(end, 2), (QStringList{On("d.jpg"), On("a.jpg")}));
    }

    void each_round_sees_what_has_become_of_the_folder()
    {
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg") && disc.File("b.jpg"));
        PhotoRound round(discDrive);
        QCOMPARE(Take(round, 2), (QStringList{On("a.jpg"), On("b.jpg")}));
        QVERIFY(disc.Remove("a.jpg") && disc.File("c.jpg"));
        QCOMPARE(Take(round, 3), (QStringList{On("b.jpg"), On("c.jpg"), On("b.jpg")}));
    }

    void a_folder_without_photos_is_asked_again_each_time()
    {
        const DiscFolder disc;
        PhotoRound round(discDrive);
        QCOMPARE(Take(round, 2), (QStringList{QString(), QString()}));
        QVERIFY(disc.File("a.jpg"));
        QCOMPARE(round.Next(), On("a.jpg"));
    }

    void a_folder_that_cannot_be_has_no_photos_data()
    {
        QTest::addColumn<QString>("folder");
        for (const char* folder :
             {"", "E:\\gone\\", "Q:\\Torviks\\", "nonsense\\", "/home/", "E:", "E:\\*\\"})
            QTest::newRow(folder) << QString::fromLatin1(folder);
    }

    void a_folder_that_cannot_be_has_no_photos()
    {
        QFETCH(QString, folder);
        const DiscFolder disc;
        QVERIFY(disc.File("a.jpg"));
        PhotoRound round(folder);
        QCOMPARE(round.Next(), QString());
    }

    void a_disc_that_is_put_in_later_is_found()
    {
        static QString disc;
        const DiscFolder medium;
        QVERIFY(medium.File("a.jpg"));
        disc.clear();
        SetDriveOptions({});
        SetVolumeLister([] { return disc.isEmpty() ? QList<QString>() : QList<QString>{disc}; });
        PhotoRound round(u"D:\\"_s);
        QCOMPARE(round.Next(), QString());
        disc = medium.Path();
        QCOMPARE(round.Next(), u"D:\\a.jpg"_s);
        SetVolumeLister([] { return QList<QString>(); });
    }
};

TORVIK_GUILESS_TEST(PhotoRoundTest)
#include "photo_round_test.moc"
