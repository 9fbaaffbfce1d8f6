#include "platform/files/binary_file.h"
#include "platform/files/disk_space.h"
#include "platform/files/file_changes.h"
#include "platform/files/files.h"
#include "platform/paths/program_folder.h"
#include "support/discs/disc_folder.h"
#include "support/discs/file_bytes.h"
#include "support/discs/image_drive.h"
#include "support/discs/image_maker.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

ImageMaker SmallDisc()
{
    ImageMaker maker;
    const int photos = maker.AddFolder("TORVIKS");
    maker.AddFile("67TOR001.JPG;1", "photo one", photos);
    maker.AddFile("67TOR002.JPG;1", MixedBytes(5000), photos);
    maker.AddFile("NOTE.RTF;1", "note", photos);
    maker.AddFolder("EMPTY");
    maker.AddFile("README.;1", "read me");
    return maker;
}

} // namespace

class ImageVolumeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void names_that_match_are_listed_as_from_a_folder()
    {
        const ImageDrive drive(SmallDisc().Iso());
        QCOMPARE(FilesMatching(On("Torviks\\*.jpg")), (QStringList{u"67TOR001.JPG"_s, u"67TOR002.JPG"_s}));
        QCOMPARE(FilesMatching(On("torviks\\*.*")).size(), 3);
        QCOMPARE(FilesMatching(On("*.*")), QStringList{u"README"_s});
        QCOMPARE(FilesMatching(On("missing\\*.*")), QStringList());
        QCOMPARE(FilesMatching(On("readme\\*.*")), QStringList());
        QCOMPARE(FindFile(On("torviks\\67tor?02.*")), u"67TOR002.JPG"_s);
        QCOMPARE(FindFile(On("torviks\\67tor002.jpg")), u"67TOR002.JPG"_s);
        QCOMPARE(FindFile(On("torviks")), QString());
    }

    void files_are_read_whatever_the_letter_case()
    {
        const ImageDrive drive(SmallDisc().Iso());
        QCOMPARE(ReadFile(On("torviks\\67tor001.jpg")), QByteArray("photo one"));
        QCOMPARE(ReadFile(On("Torviks/../TORVIKS/./67Tor002.JPG")), MixedBytes(5000));
        QCOMPARE(ReadFile(On("..\\..\\readme")), QByteArray("read me"));
        QCOMPARE(FileLength(On("TORVIKS\\67TOR002.jpg")), qint64{5000});
        QVERIFY(FileExists(On("torviks\\note.rtf")));
        QVERIFY(!FileExists(On("torviks")));
        QVERIFY(!FileExists(On("torviks\\note.rtf\\inside")));
    }

    void an_exact_name_comes_first_and_then_binary_order()
    {
        ImageMaker maker;
        for (const QByteArray& name : QList<QByteArray>{"photo.jpg", "Photo.jpg", "PHOTO.JPG"})
            maker.AddFile(name, name);
        maker.AddFile("PHOTO.JPG", "the same name again");
        const ImageDrive drive(maker.Iso());
        QCOMPARE(ReadFile(On("photo.jpg")), QByteArray("photo.jpg"));
        QCOMPARE(ReadFile(On("Photo.jpg")), QByteArray("Photo.jpg"));
        QCOMPARE(ReadFile(On("pHOTO.jpg")), QByteArray("PHOTO.JPG"));
        QCOMPARE(ReadFile(On("PHOTO.JPG")), QByteArray("PHOTO.JPG"));
        QCOMPARE(FilesMatching(On("*.jpg")).size(), 1);
    }

    void what_is_missing_fails_as_in_a_folder()
    {
        const ImageDrive drive(SmallDisc().Iso());
        QCOMPARE(FailureOf([] { ReadFile(On("missing")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { ReadFile(On("missing\\file")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { ReadFile(On("readme\\file")); }), failure::pathNotFound);
        QCOMPARE(FailureOf([] { ReadFile(On("torviks")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { FileLength(On("missing")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { FileLength(On("torviks")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { FileLength(On("missing\\file")); }), failure::pathNotFound);
    }

    void nothing_can_be_written_to_an_image()
    {
        const ImageDrive drive(SmallDisc().Iso());
        const QByteArray before = BytesOf(drive.PathOf(u"disc.iso"_s));
        QCOMPARE(FailureOf([] { BinaryOutput(On("new")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { BinaryOutput(On("readme")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { MakeFolder(On("folder")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { DeleteFile(On("readme")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { DeleteFilesMatching(On("torviks\\*.jpg")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { DeleteFilesMatching(On("*.none")); }), failure::fileNotFound);
        QCOMPARE(FailureOf([] { RemoveFolder(On("empty")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { ReplaceByCopy(On("readme"), On("copy")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { DiskClustersOf(On("")); }), failure::pathFileAccess);
        QCOMPARE(FailureOf([] { HostPath(On("readme")); }), failure::pathFileAccess);
        QCOMPARE(BytesOf(drive.PathOf(u"disc.iso"_s)), before);
        QVERIFY(!IsSameFile(On("readme"), On("readme")));
    }

    void a_file_is_copied_from_an_image()
    {
        const ImageDrive drive(SmallDisc().Iso());
        const QString copy = drive.PathOf(u"copy.jpg"_s);
        ReplaceByCopy(On("torviks\\67tor002.jpg"), DrivePath(copy));
        QCOMPARE(BytesOf(copy), MixedBytes(5000));
    }

    void a_file_is_read_in_pieces_up_to_its_end()
    {
        const ImageDrive drive(SmallDisc().Iso());
        BinaryInput input(On("torviks\\67tor002.jpg"));
        QByteArray piece(3000, Qt::Uninitialized);
        input.Read(piece, 3000);
        QCOMPARE(piece, MixedBytes(5000).left(3000));
        input.Read(piece, 2000);
        QCOMPARE(piece.left(2000), MixedBytes(5000).mid(3000));
        QCOMPARE(FailureOf([&] { input.Read(piece, 1); }), failure::inputPastEnd);
    }

    void a_file_of_which_the_end_is_missing_is_an_error_of_the_device()
    {
        ImageMaker maker;
        maker.AddFile("FILE;1", MixedBytes(5000));
        maker.AddRecord({"HUGE;1", ImageMaker::BlockOf(0), 0x7FFFFF00, 0, {}, 0});
        const ImageDrive drive(maker.Iso().chopped(2048));
        QCOMPARE(FileLength(On("file")), qint64{5000});
        QCOMPARE(FailureOf([] { ReadFile(On("file")); }), failure::deviceIo);
        QCOMPARE(FailureOf([] { ReadFile(On("huge")); }), failure::deviceIo);
    }

    void a_place_in_an_open_file_is_gone_to()
    {
        const ImageDrive drive(SmallDisc().Iso());
        const Place place = PlaceOf(On("torviks\\67tor002.jpg"));
        QCOMPARE(place.path, std::string("/TORVIKS/67TOR002.JPG"));
        const std::unique_ptr<OpenFile> file = place.on->Open(place.path);
        char bytes[10];
        file->SeekTo(4995);
        QCOMPARE(file->Read(bytes, 10), 5);
        QCOMPARE(QByteArray(bytes, 5), MixedBytes(5000).right(5));
        QCOMPARE(file->Read(bytes, 10), 0);
        file->SeekTo(99'999);
        QCOMPARE(file->Read(bytes, 10), 0);
        file->SeekTo(0);
        QCOMPARE(file->Read(bytes, 10), 10);
        QCOMPARE(QByteArray(bytes, 10), MixedBytes(5000).left(10));
    }

    void the_time_of_a_file_is_known()
    {
        const ImageDrive drive(SmallDisc().Iso());
        const Place place = PlaceOf(On("readme"));
        QCOMPARE(place.on->Status(place.path).written, qint64{1006342215});
        QVERIFY(place.on->Status("").isFolder);
        QCOMPARE(place.on->Folders("", [](std::string_view) { return true; }),
                 (std::vector<std::string>{"TORVIKS", "EMPTY"}));
    }

    void the_image_is_closed_when_the_drives_are_read_anew()
    {
        const ImageDrive drive;
        QVERIFY(drive.Write(u"disc.iso"_s, SmallDisc().Iso()));
        const qsizetype before = OpenFileCount();
        drive.Stand(u"disc.iso"_s);
        QVERIFY(FileExists(On("readme")));
        QCOMPARE(OpenFileCount(), before + 1);
        RefreshDrives();
        QCOMPARE(OpenFileCount(), before);

        ImageMaker other;
        other.AddFile("OTHER;1", "other");
        QVERIFY(drive.Write(u"disc.iso"_s, other.Iso()));
        QVERIFY(FileExists(On("other")));
        QVERIFY(!FileExists(On("readme")));
    }

    void the_mark_of_a_folder_tells_one_image_from_the_next_of_the_same_name()
    {
        ImageMaker first;
        first.AddFile("BOOKS.RTF;1", "one", first.AddFolder("RICHTEXT"));
        const ImageDrive drive(first.Iso());
        const QString mark = FolderMark(On("RichText"));
        QVERIFY(!mark.isEmpty());
        QCOMPARE(FolderMark(On("richtext")), mark);
        QCOMPARE(FolderMark(On("none")), QString());
        QCOMPARE(FolderMark(On("richtext\\books.rtf")), QString());

        ImageMaker second;
        second.AddFile("BOOKS.RTF;1", "two", second.AddFolder("RICHTEXT"));
        QVERIFY(drive.Write(u"other.iso"_s, second.Iso()));
        QVERIFY(QFile::remove(drive.PathOf(u"disc.iso"_s)));
        QVERIFY(QFile::rename(drive.PathOf(u"other.iso"_s), drive.PathOf(u"disc.iso"_s)));
        QCOMPARE(FolderMark(On("RichText")), mark); // the first one is still open, and read
        QCOMPARE(ReadFile(On("richtext\\books.rtf")), QByteArray("one"));
        RefreshDrives();
        QVERIFY(FolderMark(On("RichText")) != mark);
        QCOMPARE(ReadFile(On("richtext\\books.rtf")), QByteArray("two"));
    }

    void an_open_file_outlives_its_drive()
    {
        const ImageDrive drive(SmallDisc().Iso());
        BinaryInput input(On("readme"));
        SetDriveOptions({});
        QByteArray piece(7, Qt::Uninitialized);
        input.Read(piece, 7);
        QCOMPARE(piece, QByteArray("read me"));
        QCOMPARE(FailureOf([] { ReadFile(On("readme")); }), failure::deviceUnavailable);
    }

    void a_file_that_is_no_image_is_a_drive_that_is_not_available()
    {
        const ImageDrive drive("no image");
        QCOMPARE(FailureOf([] { ReadFile(On("readme")); }), failure::deviceUnavailable);
        QCOMPARE(FailureOf([] { FilesMatching(On("*.*")); }), failure::deviceUnavailable);
        QVERIFY(!FileExists(On("readme")));
        QVERIFY(drive.Write(u"disc.iso"_s, SmallDisc().Iso()));
        QVERIFY(FileExists(On("readme"))); // the file was mended meanwhile
    }

    void names_of_any_bytes_are_found_again()
    {
        ImageMaker maker;
        maker.AddFile("f\xFCr.jpg", "latin");
        maker.AddFile("back\\slash", "slash");
        const ImageDrive drive(maker.Iso());
        const QStringList names = FilesMatching(On("*.*"));
        QCOMPARE(names.size(), 2);
        QCOMPARE(ReadFile(u"E:\\"_s + names[0]), QByteArray("latin"));
        QCOMPARE(ReadFile(u"E:\\"_s + names[1]), QByteArray("slash"));
    }

    void an_image_in_the_program_folder_is_the_embedded_disc()
    {
        const ImageDrive drive;
        QVERIFY(drive.Write(u"Disc.ISO"_s, SmallDisc().Iso()));
        SetProgramFolder(drive.PathOf(u"."_s));
        SetVolumeLister([] { return QList<QString>(); });
        RefreshDrives();
        QCOMPARE(ReadFile(u"Z:\\readme"_s), QByteArray("read me"));
        QVERIFY(QDir(drive.PathOf(u"."_s)).mkdir(u"disc"_s));
        RefreshDrives();
        QVERIFY(!FileExists(u"Z:\\readme"_s)); // a folder comes first
        SetVolumeLister(nullptr);
        SetProgramFolder({});
    }
};

TORVIK_TEST(ImageVolumeTest)
#include "image_volume_test.moc"
