#include "platform/image/disc_image.h"
#include "support/discs/file_bytes.h"
#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"
#include "support/failure_of.h"
#include "support/test_class.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace torvik;

/// An image file that lives as long as this.
struct OpenedImage {
    explicit OpenedImage(const QByteArray& bytes)
        : drive(bytes), image(drive.PathOf(u"disc.iso"_s).toStdString())
    {}

    ImageDrive drive;
    DiscImage image;
};

namespace {

/// All paths of an image in the order of the image, folders with a closing slash.
void TakePaths(const DiscImage& image, std::size_t folder, const QString& in, QStringList& paths)
{
    for (const ImageEntry& entry : image.Folders()[folder]) {
        const QString path = in + QString::fromStdString(entry.name);
        paths.append(entry.isFolder ? path + u'/' : path);
        if (entry.isFolder)
            TakePaths(image, entry.folder, path + u'/', paths);
    }
}

QStringList PathsOf(const DiscImage& image)
{
    QStringList paths;
    TakePaths(image, 0, {}, paths);
    return paths;
}

QStringList PathsOf(const ImageDrive& drive)
{
    QStringList paths = PathsOf(DiscImage(drive.PathOf(u"disc.iso"_s).toStdString()));
    paths.sort();
    return paths;
}

QByteArray ContentOf(const DiscImage& image, const ImageEntry& file)
{
    QByteArray content(static_cast<qsizetype>(file.length), '?');
    qsizetype filled = 0;
    while (filled < content.size()) {
        const qsizetype got = image.Read(file, filled, content.data() + filled,
                                         std::min<qsizetype>(content.size() - filled, 5000));
        if (got == 0)
            break;
        filled += got;
    }
    return content.left(filled);
}

} // namespace

class DiscImageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void folders_and_files_are_found_without_their_versions()
    {
        ImageMaker maker;
        const int photos = maker.AddFolder("TORVIKS");
        maker.AddFile("67TOR001.JPG;1", "one", photos);
        maker.AddFile("README.;1", "two");
        maker.AddFile("plain;", "three");
        maker.AddFile("no;version", "four");
        const OpenedImage disc(maker.Iso());
        QCOMPARE(PathsOf(disc.image), (QStringList{u"TORVIKS/"_s, u"TORVIKS/67TOR001.JPG"_s, u"README"_s,
                                                   u"plain"_s, u"no;version"_s}));
        QCOMPARE(ContentOf(disc.image, disc.image.Folders()[1][0]), QByteArray("one"));
        QCOMPARE(disc.image.Folders()[1][0].written, qint64{1006342215}); // 11:30:15 at Greenwich
    }

    void content_is_read_at_any_place_and_across_sectors()
    {
        const QByteArray content = MixedBytes(10'000);
        ImageMaker maker;
        maker.AddFile("FILE;1", content);
        for (const QByteArray& bytes :
             {maker.Iso(), ImageMaker::Raw(maker.Iso(), 1, 2352), ImageMaker::Raw(maker.Iso(), 2, 2352),
              ImageMaker::Raw(maker.Iso(), 2, 2336), ImageMaker::Raw(maker.Iso(), 1, 2448),
              ImageMaker::Raw(maker.Iso(), 2, 2448)}) {
            const OpenedImage disc(bytes);
            const ImageEntry& file = disc.image.Folders()[0][0];
            QCOMPARE(ContentOf(disc.image, file), content);
            for (int place : {0, 1, 2047, 2048, 2049, 4095, 9999}) {
                QByteArray part(3000, '?');
                const qsizetype got = disc.image.Read(file, place, part.data(), part.size());
                QCOMPARE(part.left(got), content.mid(place, 3000));
            }
            char byte = 0;
            QCOMPARE(disc.image.Read(file, 10'000, &byte, 1), 0);
            QCOMPARE(disc.image.Read(file, qint64{1} << 40, &byte, 1), 0);
        }
    }

    void a_file_in_several_parts_is_one_file()
    {
        ImageMaker maker;
        const QByteArray first = MixedBytes(4096);
        const QByteArray second = MixedBytes(777);
        const quint32 end = maker.AddContent(second);
        const quint32 begin = maker.AddContent(first);
        maker.AddRecord({"LONG.AVI;1", begin, 4096, ImageMaker::goesOn, {}, 0});
        maker.AddRecord({"LONG.AVI;1", end, 777, 0, {}, 0});
        maker.AddFile("NEXT;1", "next");
        const OpenedImage disc(maker.Iso());
        QCOMPARE(PathsOf(disc.image), (QStringList{u"LONG.AVI"_s, u"NEXT"_s}));
        QCOMPARE(ContentOf(disc.image, disc.image.Folders()[0][0]), first + second);
    }

    void content_behind_attributes_is_found()
    {
        ImageMaker maker;
        const quint32 begin = maker.AddContent(QByteArray(2048, 'x') + "content");
        maker.AddRecord({"FILE;1", begin, 7, 0, {}, 1});
        const OpenedImage disc(maker.Iso());
        QCOMPARE(ContentOf(disc.image, disc.image.Folders()[0][0]), QByteArray("content"));
    }

    void a_folder_that_contains_itself_or_its_parent_is_entered_once()
    {
        ImageMaker maker;
        const int one = maker.AddFolder("ONE");
        const int two = maker.AddFolder("TWO", one);
        maker.AddRecord({"ONE", ImageMaker::BlockOf(one), 8192, ImageMaker::isFolder, {}, 0}, two);
        maker.AddRecord({"TWO", ImageMaker::BlockOf(two), 8192, ImageMaker::isFolder, {}, 0}, two);
        maker.AddRecord({"ROOT", ImageMaker::BlockOf(0), 8192, ImageMaker::isFolder, {}, 0}, two);
        maker.AddFile("FILE", "content", two);
        const OpenedImage disc(maker.Iso());
        QCOMPARE(PathsOf(disc.image), (QStringList{u"ONE/"_s, u"ONE/TWO/"_s, u"ONE/TWO/FILE"_s}));
    }

    void names_that_can_have_no_path_are_left_out()
    {
        ImageMaker maker;
        for (const QByteArray& name :
             {QByteArray("a/b"), QByteArray(".."), QByteArray("."), QByteArray("a\0b", 3), QByteArray("..;1"),
              QByteArray("../../etc/passwd"), QByteArray(), QByteArray("\1", 1), QByteArray(";1")})
            maker.AddFile(name, "content");
        maker.AddFile("good", "content");
        const OpenedImage disc(maker.Iso());
        QCOMPARE(PathsOf(disc.image), (QStringList{u";1"_s, u"good"_s}));
    }

    void what_lies_past_the_end_of_the_image_is_an_error_of_the_device()
    {
        ImageMaker maker;
        maker.AddRecord({"FAR;1", 0xFFFFFFF0, 100, 0, {}, 0});
        maker.AddRecord({"HUGE;1", ImageMaker::BlockOf(0), 0xFFFFFFFF, 0, {}, 0});
        maker.AddRecord({"FARFOLDER", 0xFFFFFFF0, 0xFFFFFFFF, ImageMaker::isFolder, {}, 0});
        maker.AddFile("GOOD;1", "content");
        const OpenedImage disc(maker.Iso());
        const std::vector<ImageEntry>& root = disc.image.Folders()[0];
        QCOMPARE(root.size(), std::size_t{4});
        char bytes[4096];
        QCOMPARE(FailureOf([&] { disc.image.Read(root[0], 0, bytes, 100); }), failure::deviceIo);
        QCOMPARE(root[1].length, qint64{0xFFFFFFFF});
        QCOMPARE(disc.image.Read(root[1], 0, bytes, sizeof bytes), qsizetype{sizeof bytes});
        QCOMPARE(FailureOf([&] { disc.image.Read(root[1], 0xF0000000, bytes, 100); }), failure::deviceIo);
        QVERIFY(disc.image.Folders()[root[2].folder].empty());
        QCOMPARE(ContentOf(disc.image, root[3]), QByteArray("content"));
    }

    void an_image_cut_off_inside_a_file_gives_the_file_up_to_there()
    {
        ImageMaker maker;
        maker.AddFile("WHOLE;1", "content");
        maker.AddFile("CUT;1", MixedBytes(6000));
        for (const bool isRaw : {false, true}) {
            QByteArray bytes = maker.Iso();
            if (isRaw)
                bytes = ImageMaker::Raw(bytes, 1, 2352);
            bytes.chop(2 * (isRaw ? 2352 : 2048) - (isRaw ? 16 : 0) -
                       100); // 100 bytes of the second sector stay
            const OpenedImage disc(bytes);
            const std::vector<ImageEntry>& root = disc.image.Folders()[0];
            QCOMPARE(ContentOf(disc.image, root[0]), QByteArray("content"));
            QByteArray part(6000, '?');
            QCOMPARE(disc.image.Read(root[1], 0, part.data(), 6000), qsizetype{2148});
            QCOMPARE(part.left(2148), MixedBytes(6000).left(2148));
            QCOMPARE(FailureOf([&] { disc.image.Read(root[1], 2148, part.data(), 1); }), failure::deviceIo);
        }
    }

    void an_image_that_becomes_shorter_while_it_is_open_is_a_damaged_disc()
    {
        ImageMaker maker;
        maker.AddFile("FILE;1", MixedBytes(6000));
        const OpenedImage disc(maker.Iso());
        QVERIFY(QFile::resize(disc.drive.PathOf(u"disc.iso"_s), 30LL * 2048));
        char byte = 0;
        QCOMPARE(FailureOf([&] { disc.image.Read(disc.image.Folders()[0][0], 0, &byte, 1); }),
                 failure::deviceIo);
    }

    void records_that_make_no_sense_cost_their_sector_alone()
    {
        ImageMaker maker;
        const int folder = maker.AddFolder("FOLDER");
        for (int number = 0; number < 60; ++number)
            maker.AddFile("FILE" + QByteArray::number(100 + number) + ".JPG;1", "content", folder);
        QByteArray bytes = maker.Iso();
        const int begin = static_cast<int>(ImageMaker::BlockOf(folder)) * 2048;
        const qsizetype all = PathsOf(OpenedImage(bytes).image).size();
        QCOMPARE(all, qsizetype{61});
        bytes[begin + 68] = 40;           // shorter than its name needs
        bytes[begin + 2048] = char(0xFF); // longer than ...
        bytes[begin + 2048 + 32] = char(0xFF);
        const QStringList left = PathsOf(OpenedImage(bytes).image);
        QVERIFY(left.size() < all);
        QVERIFY(!left.contains(u"FOLDER/FILE100.JPG"_s));
        bytes = maker.Iso();
        bytes[begin + 68] = 40;
        QVERIFY(PathsOf(OpenedImage(bytes).image).contains(u"FOLDER/FILE159.JPG"_s));
    }

    void folders_lie_64_deep_at_most()
    {
        const ImageDrive drive;
        const QString deep = u"x/"_s.repeated(70);
        QVERIFY(QDir(drive.PathOf(u"."_s)).mkpath(u"d/"_s + deep));
        QVERIFY(drive.Write(u"d/%1file"_s.arg(deep), "content"));
        QVERIFY(drive.Make(u"genisoimage"_s, {u"-quiet"_s, u"-R"_s, u"-D"_s}, u"d"_s));
        const QStringList paths = PathsOf(drive);
        QCOMPARE(paths.size(), 64);
        QCOMPARE(paths.last(), u"x/"_s.repeated(64));
    }

    void a_file_that_is_no_image_is_a_device_that_is_not_available()
    {
        const ImageDrive drive;
        QVERIFY(drive.Write(u"text.iso"_s, "no image"));
        QVERIFY(drive.Write(u"empty.iso"_s, {}));
        QVERIFY(drive.Write(u"mark.iso"_s, QByteArray(16LL * 2048, '\0') + "\1CD001"));
        for (const QString& name : {u"text.iso"_s, u"empty.iso"_s, u"mark.iso"_s, u"missing.iso"_s, u"."_s})
            QCOMPARE(FailureOf([&] { DiscImage(drive.PathOf(name).toStdString()); }),
                     failure::deviceUnavailable);
    }

    void of_every_beginning_of_an_image_what_is_there_is_read()
    {
        const QByteArray content = MixedBytes(3000);
        ImageMaker maker;
        maker.AddFile("FILE;1", content, maker.AddFolder("FOLDER"));
        const QByteArray bytes = maker.Iso();
        const ImageDrive drive;
        for (qsizetype length = 15LL * 2048; length < bytes.size(); length += 509) {
            QVERIFY(drive.Write(u"disc.iso"_s, bytes.left(length)));
            QByteArray read;
            const int error = FailureOf([&] {
                const DiscImage image(drive.PathOf(u"disc.iso"_s).toStdString());
                for (const std::vector<ImageEntry>& folder : image.Folders()) {
                    for (const ImageEntry& entry : folder) {
                        if (!entry.isFolder)
                            FailureOf([&] { read += ContentOf(image, entry); });
                    }
                }
            });
            QVERIFY(error == 0 || error == failure::deviceUnavailable);
            QVERIFY(content.startsWith(read));
        }
    }

    void plain_images_of_all_levels_are_read()
    {
        for (const QString& level : {u"1"_s, u"2"_s, u"3"_s}) {
            const ImageDrive drive;
            QVERIFY(QDir(drive.PathOf(u"."_s)).mkpath(u"d/torviks"_s));
            QVERIFY(drive.Write(u"d/torviks/67tor001.jpg"_s, MixedBytes(5000)));
            QVERIFY(drive.Write(u"d/readme"_s, "text"));
            QVERIFY(drive.Make(u"genisoimage"_s, {u"-quiet"_s, u"-iso-level"_s, level}, u"d"_s));
            QCOMPARE(PathsOf(drive), (QStringList{u"README"_s, u"TORVIKS/"_s, u"TORVIKS/67TOR001.JPG"_s}));
        }
    }

    void joliet_and_rock_ridge_names_are_taken_as_they_are()
    {
        const QString longName = QString(60, u'n') + u" with blanks.and.points.jpg"_s;
        for (const QString& program : {u"genisoimage"_s, u"xorriso"_s}) {
            for (const QString& names : {u"-J"_s, u"-R"_s, u"-JR"_s}) {
                const ImageDrive drive;
                QVERIFY(QDir(drive.PathOf(u"."_s)).mkpath(u"d/Für Dich"_s));
                QVERIFY(drive.Write(u"d/Für Dich/67Tor001.jpg"_s, "one"));
                QVERIFY(drive.Write(u"d/Für Dich/%1"_s.arg(longName.left(60)), "two"));
                QStringList options{u"-quiet"_s, names};
                if (program == u"xorriso")
                    options = QStringList{u"-as"_s, u"mkisofs"_s} + options;
                else
                    options += QStringList{u"-input-charset"_s, u"utf-8"_s};
                QVERIFY(drive.Make(program, options, u"d"_s));
                const QStringList paths = PathsOf(drive);
                QCOMPARE(paths.first(), u"Für Dich/"_s);
                QVERIFY(paths.contains(u"Für Dich/67Tor001.jpg"_s));
                QVERIFY(paths.contains(u"Für Dich/%1"_s.arg(longName.left(60))));
                QCOMPARE(paths.size(), 3);
            }
        }
    }

    void long_rock_ridge_names_and_moved_folders_are_found_and_links_are_not()
    {
        const ImageDrive drive;
        const QString deep = u"a/b/c/d/e/f/g/h/i/j"_s;
        const QString longName = QString(240, u'n');
        QVERIFY(QDir(drive.PathOf(u"."_s)).mkpath(u"d/"_s + deep));
        QVERIFY(drive.Write(u"d/%1/%2"_s.arg(deep, longName), "content"));
        QVERIFY(QFile::link(u"gone"_s, drive.PathOf(u"d/link"_s)));
        QVERIFY(drive.Make(u"genisoimage"_s, {u"-quiet"_s, u"-R"_s}, u"d"_s));
        const QStringList paths = PathsOf(drive);
        QVERIFY(paths.contains(deep + u'/' + longName));
        QVERIFY(!paths.contains(u"link"_s));
    }
};

TORVIK_TEST(DiscImageTest)
#include "disc_image_test.moc"
