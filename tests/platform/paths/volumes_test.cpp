#include "platform/paths/volumes.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

bool NothingIsRemovable(const QByteArray&)
{
    return false;
}
bool EightIsRemovable(const QByteArray& device)
{
    return device.startsWith("8:");
}

QByteArray Line(const char* point, const char* type, const char* source, const char* device = "259:1")
{
    return QByteArray("36 25 ") + device + " / " + point + " rw,relatime shared:1 - " + type + ' ' + source +
           " rw\n";
}

} // namespace

class VolumesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optical_discs_count_wherever_they_are_mounted()
    {
        const QByteArray table = Line("/cdrom", "iso9660", "/dev/sr0") + Line("/var/disc", "udf", "/dev/sr1");
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable), (QList<QString>{u"/cdrom"_s, u"/var/disc"_s}));
    }

    void image_files_on_a_loop_device_count()
    {
        QCOMPARE(MediaInMountTable(Line("/srv/image", "vfat", "/dev/loop3"), NothingIsRemovable),
                 QList<QString>{u"/srv/image"_s});
    }

    void packages_of_the_system_are_no_media()
    {
        const QByteArray table = Line("/snap/core/1", "squashfs", "/dev/loop0") +
                                 Line("/snap/x/2", "ext4", "/dev/loop1") +
                                 Line("/var/lib/snapd/snap/y/1", "ext4", "/dev/loop2");
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable), QList<QString>());
    }

    void what_desktops_mount_counts()
    {
        const QByteArray table = Line("/media/anna/STICK", "vfat", "/dev/nvme1n1p1") +
                                 Line("/run/media/anna/DISK", "ntfs3", "/dev/nvme1n1p2") +
                                 Line("/mnt", "ext4", "/dev/nvme1n1p3") +
                                 Line("/mnt/win", "fuseblk", "/dev/nvme1n1p4");
        QCOMPARE(
            MediaInMountTable(table, NothingIsRemovable),
            (QList<QString>{u"/media/anna/STICK"_s, u"/mnt"_s, u"/mnt/win"_s, u"/run/media/anna/DISK"_s}));
    }

    void folders_that_only_begin_alike_do_not_count()
    {
        const QByteArray table =
            Line("/mediathek", "ext4", "/dev/nvme0n1p1") + Line("/mnt2", "ext4", "/dev/nvme0n1p2");
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable), QList<QString>());
    }

    void removable_devices_count_but_for_the_folders_of_the_system()
    {
        const QByteArray table =
            Line("/stick", "vfat", "/dev/sdb1", "8:17") + Line("/", "ext4", "/dev/sda1", "8:1") +
            Line("/boot/efi", "vfat", "/dev/sda2", "8:2") + Line("/home", "ext4", "/dev/sda3", "8:3") +
            Line("/data", "ext4", "/dev/nvme0n1p1");
        QCOMPARE(MediaInMountTable(table, EightIsRemovable), QList<QString>{u"/stick"_s});
    }

    void pseudo_file_systems_and_network_shares_are_no_media()
    {
        QByteArray table;
        for (const char* type : {"proc", "sysfs", "tmpfs", "devtmpfs", "cgroup2", "overlay", "nfs", "nfs4",
                                 "cifs", "smb3", "fuse.sshfs", "fuse.gvfsd-fuse", "9p", "autofs", "squashfs"})
            table += Line(QByteArray(QByteArray("/media/") + type).constData(), type, "/dev/loop9", "8:1");
        QCOMPARE(MediaInMountTable(table, EightIsRemovable), QList<QString>());
    }

    void blanks_and_bytes_in_the_mount_point_are_read_back()
    {
        const QByteArray table =
            Line("/media/My\\040Disc\\134x", "iso9660", "/dev/sr0") + Line("/media/\xFF", "udf", "/dev/sr1");
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable),
                 (QList<QString>{u"/media/My Disc\\x"_s, u"/media/"_s + QChar(0xF7FF)}));
    }

    void the_mount_points_are_in_their_order()
    {
        const QByteArray table = Line("/media/b", "iso9660", "/dev/sr1") +
                                 Line("/media/a", "iso9660", "/dev/sr0") +
                                 Line("/media/B", "iso9660", "/dev/sr2");
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable),
                 (QList<QString>{u"/media/B"_s, u"/media/a"_s, u"/media/b"_s}));
    }

    void what_is_mounted_over_a_disc_hides_it()
    {
        const QByteArray table = Line("/media/a", "iso9660", "/dev/sr0") + Line("/media/a", "tmpfs", "tmpfs");
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable), QList<QString>());
        const QByteArray twice =
            Line("/media/a", "iso9660", "/dev/sr0") + Line("/media/a", "iso9660", "/dev/sr1");
        QCOMPARE(MediaInMountTable(twice, NothingIsRemovable), QList<QString>{u"/media/a"_s});
    }

    void optional_fields_may_be_none_or_many()
    {
        const QByteArray table =
            "36 25 11:0 / /media/a ro - iso9660 /dev/sr0 ro\n"
            "36 25 11:0 / /media/b ro shared:1 master:2 propagate_from:3 - iso9660 /dev/sr0 ro\n";
        QCOMPARE(MediaInMountTable(table, NothingIsRemovable),
                 (QList<QString>{u"/media/a"_s, u"/media/b"_s}));
    }

    void lines_that_are_broken_are_passed_over()
    {
        for (const char* line :
             {"", "\n\n", "garbage", "1 2 3 4 5 6 7 8", "36 25 11:0 / /media/a ro -",
              "36 25 11:0 / /media/a ro - iso9660", "- - - - - - - -",
              "36 25 11:0 / media ro - iso9660 /dev/sr0 ro", "36 25 11:0 / \\04 ro - udf x ro"})
            QCOMPARE(MediaInMountTable(line, NothingIsRemovable), QList<QString>());
    }

    void the_machine_answers()
    {
        const QList<QString> media = MountedMedia();
        QVERIFY(!media.contains(u"/"_s));
        QVERIFY(!media.contains(u"/proc"_s));
    }
};

TORVIK_TEST(VolumesTest)
#include "volumes_test.moc"
