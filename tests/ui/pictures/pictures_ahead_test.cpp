#include "platform/paths/drives.h"
#include "support/discs/picture_bytes.h"
#include "support/test_class.h"
#include "ui/pictures/pictures_ahead.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

constexpr QSize area(200, 100);

} // namespace

/// Pictures that are read before anybody asks for them.
class PicturesAheadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { RaisePictureLimit(); }
    void cleanup() { ForgetPicturesAhead(); }

    void a_picture_that_was_read_ahead_is_drawn_as_any_other()
    {
        const QString path = Photo("67A.JPG");
        ReadPicturesAhead({path}, {}, area);
        QTRY_VERIFY(IsReadAhead(path, area));
        const auto ready = PictureReadAhead(path, area);
        QVERIFY(ready);
        QCOMPARE(ready->file.FileName(), u"67A.JPG"_s);
        QCOMPARE(ready->file.NaturalSize(), QSize(64, 48));
        QCOMPARE(ready->drawn, Picture::Load(path).Fitted(area));
    }

    void what_was_not_asked_for_is_not_there()
    {
        const QString path = Photo("67A.JPG");
        QVERIFY(!PictureReadAhead(path, area));
        ReadPicturesAhead({path}, {}, area);
        QVERIFY(!PictureReadAhead(Photo("67B.JPG"), area));
    }

    void letter_case_does_not_count()
    {
        Photo("67a.jpg");
        const QString path = folder_.PathOf(u"67A.JPG"_s);
        ReadPicturesAhead({path}, {}, area);
        QTRY_VERIFY(IsReadAhead(path, area));
        QVERIFY(PictureReadAhead(path, area));
    }

    void another_area_needs_another_picture()
    {
        const QString path = Photo("67A.JPG");
        ReadPicturesAhead({path}, {}, area);
        QTRY_VERIFY(IsReadAhead(path, area));
        QVERIFY(!PictureReadAhead(path, area * 2));
        ReadPicturesAhead({path}, {}, area * 2);
        QVERIFY(!PictureReadAhead(path, area));
        QTRY_VERIFY(IsReadAhead(path, area * 2));
        QCOMPARE(PictureReadAhead(path, area * 2)->drawn.height(), 200);
    }

    void the_next_wishes_drop_all_but_what_is_to_be_kept()
    {
        const QString first = Photo("67A.JPG");
        const QString second = Photo("67B.JPG");
        const QString third = Photo("67C.JPG");
        ReadPicturesAhead({first, second}, {}, area);
        QTRY_VERIFY(IsReadAhead(first, area) && IsReadAhead(second, area));
        ReadPicturesAhead({third}, second, area);
        QVERIFY(!IsReadAhead(first, area));
        QVERIFY(IsReadAhead(second, area));
        QTRY_VERIFY(IsReadAhead(third, area));
    }

    void what_is_to_be_kept_is_not_read_for_that()
    {
        const QString first = Photo("67A.JPG");
        const QString second = Photo("67B.JPG");
        ReadPicturesAhead({first}, second, area);
        QTRY_VERIFY(IsReadAhead(first, area));
        QVERIFY(!PictureReadAhead(second, area));
    }

    void forgetting_drops_everything()
    {
        const QString path = Photo("67A.JPG");
        ReadPicturesAhead({path}, {}, area);
        QTRY_VERIFY(IsReadAhead(path, area));
        QVERIFY(BytesReadAhead() > 0);
        ForgetPicturesAhead();
        QVERIFY(!PictureReadAhead(path, area));
        QCOMPARE(BytesReadAhead(), 0);
    }

    void a_file_that_changed_or_went_is_not_shown_as_it_was_data()
    {
        QTest::addColumn<bool>("isGone");
        QTest::newRow("changed") << false;
        QTest::newRow("gone") << true;
    }

    void a_file_that_changed_or_went_is_not_shown_as_it_was()
    {
        QFETCH(const bool, isGone);
        const QString path = Photo("67A.JPG");
        ReadPicturesAhead({path}, {}, area);
        QTRY_VERIFY(IsReadAhead(path, area));
        if (isGone)
            folder_.Remove(u"67A.JPG"_s);
        else
            folder_.Add(u"67A.JPG"_s, "no picture any more");
        QVERIFY(!PictureReadAhead(path, area));
        QVERIFY(!IsReadAhead(path, area));
    }

    void drives_that_were_read_anew_have_other_files()
    {
        const QTemporaryDir disc;
        SetDriveOptions({{u'G', disc.path()}});
        QFile file(disc.filePath(u"67A.JPG"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(Encoded(FourCorners({64, 48}), "jpg"));
        file.close();
        const QString path = u"G:\\67A.JPG"_s;
        ReadPicturesAhead({path}, {}, area);
        QTRY_VERIFY(IsReadAhead(path, area));
        SetDriveOptions({{u'G', disc.path()}});
        QVERIFY(!PictureReadAhead(path, area));
        SetDriveOptions({});
    }

    void what_cannot_be_shown_whole_is_left_to_whoever_loads_it_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("cut off") << Encoded(FourCorners({64, 48}), "jpg").chopped(100);
        QTest::newRow("no picture") << QByteArray("no picture");
        QTest::newRow("empty") << QByteArray();
    }

    void what_cannot_be_shown_whole_is_left_to_whoever_loads_it()
    {
        QFETCH(const QByteArray, bytes);
        const QString bad = folder_.Add(u"67A.JPG"_s, bytes);
        const QString good = Photo("67B.JPG");
        ReadPicturesAhead({bad, folder_.PathOf(u"missing.jpg"_s), u"Q:\\nowhere.jpg"_s, good}, {}, area);
        QTRY_VERIFY(IsReadAhead(good, area));
        QVERIFY(!PictureReadAhead(bad, area));
        QVERIFY(!PictureReadAhead(folder_.PathOf(u"missing.jpg"_s), area));
    }

    void no_more_than_64_mebibytes_are_held()
    {
        constexpr QSize screen(3840, 2160); // 33 million bytes a picture
        QStringList paths;
        for (const char* name : {"67A.BMP", "67B.BMP", "67C.BMP"})
            paths.append(folder_.Add(QString::fromLatin1(name), Encoded(FourCorners({384, 216}), "bmp")));
        ReadPicturesAhead(paths, {}, screen);
        QTRY_VERIFY(IsReadAhead(paths[0], screen));
        ReadPicturesAhead({paths[2], paths[1]}, paths[0], screen);
        QTRY_VERIFY(IsReadAhead(paths[2], screen)); // the most urgent one always has its turn
        QVERIFY(BytesReadAhead() <= 64LL * 1024 * 1024);
        QVERIFY(BytesReadAhead() > 0);
    }

    void what_is_just_being_made_counts_as_held()
    {
        constexpr QSize screen(4100, 2100); // two pictures of this size are more than 64 MiB
        constexpr bool progressive = true;
        // Long to decode, and narrow: the other one, which is there at once, has room as soon as it is ready.
        const QString first =
            folder_.Add(u"67A.JPG"_s, Encoded(FourCorners({1000, 20000}), "jpg", progressive));
        const QString second = folder_.Add(u"67B.JPG"_s, Encoded(FourCorners({2, 1000}), "jpg"));
        ReadPicturesAhead({first, second}, {}, screen);
        QVERIFY(QTest::qWaitFor([&] { return IsReadAhead(second, screen); })); // looks every 10 ms
        QVERIFY(IsReadAhead(first, screen));
    }

private:
    QString Photo(const char* name)
    {
        return folder_.Add(QString::fromLatin1(name), Encoded(FourCorners({64, 48}), "jpg"));
    }

    PictureFolder folder_;
};

TORVIK_GUILESS_TEST(PicturesAheadTest)
#include "pictures_ahead_test.moc"
