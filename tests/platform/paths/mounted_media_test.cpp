#include "platform/paths/mounted_media.h"
#include "support/logged_messages.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

bool NothingIsRemovable(const QByteArray&)
{
    return false;
}
bool SticksAreRemovable(const QByteArray& device)
{
    return device.startsWith("/dev/sd");
}

} // namespace

/// Which volumes look like media.
class MountedMediaTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optical_discs_count_wherever_they_are_mounted()
    {
        QCOMPARE(MediaAmong({{u"/cdrom"_s, "iso9660", "/dev/sr0"},
                             {u"/var/disc"_s, "udf", "/dev/sr1"},
                             {u"/home/anna/image"_s, "fuse.fuseiso", "fuseiso"}},
                            NothingIsRemovable),
                 (QList<QString>{u"/cdrom"_s, u"/home/anna/image"_s, u"/var/disc"_s}));
    }

    void image_files_on_a_loop_device_count()
    {
        QCOMPARE(MediaAmong({{u"/srv/image"_s, "vfat", "/dev/loop3"}}, NothingIsRemovable),
                 QList<QString>{u"/srv/image"_s});
    }

    void packages_of_the_system_are_no_media()
    {
        QCOMPARE(MediaAmong({{u"/snap/core/1"_s, "squashfs", "/dev/loop0"},
                             {u"/snap/x/2"_s, "ext4", "/dev/loop1"},
                             {u"/var/lib/snapd/snap/y/1"_s, "ext4", "/dev/loop2"}},
                            NothingIsRemovable),
                 QList<QString>());
    }

    void what_desktops_mount_counts()
    {
        QCOMPARE(
            MediaAmong({{u"/media/anna/STICK"_s, "vfat", "/dev/nvme1n1p1"},
                        {u"/run/media/anna/DISK"_s, "ntfs3", "/dev/nvme1n1p2"},
                        {u"/mnt"_s, "ext4", "/dev/nvme1n1p3"},
                        {u"/mnt/win"_s, "fuseblk", "/dev/nvme1n1p4"}},
                       NothingIsRemovable),
            (QList<QString>{u"/media/anna/STICK"_s, u"/mnt"_s, u"/mnt/win"_s, u"/run/media/anna/DISK"_s}));
    }

    void folders_that_only_begin_alike_do_not_count()
    {
        QCOMPARE(
            MediaAmong({{u"/mediathek"_s, "ext4", "/dev/nvme0n1p1"}, {u"/mnt2"_s, "ext4", "/dev/nvme0n1p2"}},
                       NothingIsRemovable),
            QList<QString>());
    }

    void removable_devices_count_but_for_the_folders_of_the_system()
    {
        QCOMPARE(MediaAmong({{u"/stick"_s, "vfat", "/dev/sdb1"},
                             {u"/"_s, "ext4", "/dev/sda1"},
                             {u"/boot/efi"_s, "vfat", "/dev/sda2"},
                             {u"/home"_s, "ext4", "/dev/sda3"},
                             {u"/data"_s, "ext4", "/dev/nvme0n1p1"}},
                            SticksAreRemovable),
                 QList<QString>{u"/stick"_s});
    }

    void pseudo_file_systems_and_network_shares_are_no_media()
    {
        QList<MountedVolume> volumes;
        for (const char* type : {"proc", "sysfs", "tmpfs", "devtmpfs", "cgroup2", "overlay", "nfs", "nfs4",
                                 "cifs", "smb3", "fuse.sshfs", "fuse.gvfsd-fuse", "9p", "autofs", "squashfs"})
            volumes.append({u"/media/"_s + QLatin1StringView(type), type, "/dev/sdb1"});
        QCOMPARE(MediaAmong(volumes, SticksAreRemovable), QList<QString>());
    }

    void blanks_and_backslashes_in_the_mount_point_stay()
    {
        QCOMPARE(MediaAmong({{u"/media/My Disc\\x"_s, "iso9660", "/dev/sr0"}}, NothingIsRemovable),
                 QList<QString>{u"/media/My Disc\\x"_s});
    }

    void the_mount_points_are_in_their_order()
    {
        QCOMPARE(MediaAmong({{u"/media/b"_s, "iso9660", "/dev/sr1"},
                             {u"/media/a"_s, "iso9660", "/dev/sr0"},
                             {u"/media/é"_s, "iso9660", "/dev/sr3"},
                             {u"/media/B"_s, "iso9660", "/dev/sr2"}},
                            NothingIsRemovable),
                 (QList<QString>{u"/media/B"_s, u"/media/a"_s, u"/media/b"_s, u"/media/é"_s}));
    }

    void volumes_over_each_other_are_one_medium_in_whatever_order_they_are_listed()
    {
        const MountedVolume disc{u"/media/a"_s, "iso9660", "/dev/sr0"};
        const MountedVolume other{u"/media/a"_s, "udf", "/dev/sr1"};
        const MountedVolume automatic{u"/media/a"_s, "autofs", "systemd-1"};
        const QList<QString> once{u"/media/a"_s};
        QCOMPARE(MediaAmong({disc, other}, NothingIsRemovable), once);
        QCOMPARE(MediaAmong({disc, automatic}, NothingIsRemovable), once);
        QCOMPARE(MediaAmong({automatic, disc}, NothingIsRemovable), once);
        QCOMPARE(MediaAmong({automatic}, NothingIsRemovable), QList<QString>());
    }

    void a_volume_without_a_folder_is_passed_over()
    {
        QCOMPARE(MediaAmong({{QString(), "iso9660", "/dev/sr0"}, {u"media"_s, "udf", "x"}, {}},
                            NothingIsRemovable),
                 QList<QString>());
    }

    void each_volume_is_logged_with_the_reason_for_its_refusal()
    {
        LoggedMessages log(u"torvik.disc"_s);
        MediaAmong({{u"/"_s, "ext4", "/dev/sda1"},
                    {u"/proc"_s, "proc", "proc"},
                    {u"/home"_s, "ext4", "/dev/sda3"},
                    {u"/data"_s, "ext4", "/dev/nvme0n1p1"},
                    {QString(), "udf", "/dev/sr1"},
                    {u"/media/disc"_s, "iso9660", "/dev/sr0"}},
                   SticksAreRemovable);
        QCOMPARE(
            log.Texts(),
            (QStringList{
                u"torvik.disc: volume / (ext4, /dev/sda1): it is the root of the system"_s,
                u"torvik.disc: volume /proc (proc, proc): its file system is not that of a disk or disc"_s,
                u"torvik.disc: volume /home (ext4, /dev/sda3): the system itself lives there"_s,
                u"torvik.disc: volume /data (ext4, /dev/nvme0n1p1): its device stays in the machine"_s,
                u"torvik.disc: volume  (udf, /dev/sr1): its folder cannot be reached"_s,
                u"torvik.disc: volume /media/disc (iso9660, /dev/sr0): looks like a medium"_s}));
    }

    void the_machine_answers()
    {
        const QList<QString> media = MountedMedia();
        QVERIFY(!media.contains(u"/"_s));
        QVERIFY(!media.contains(u"/proc"_s));
    }
};

TORVIK_TEST(MountedMediaTest)
#include "mounted_media_test.moc"
