#include "platform/paths/drives.h"
#include "platform/paths/program_folder.h"
#include "support/failure_of.h"
#include "support/ordinary_user.h"
#include "support/test_class.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace torvik;

class ProgramFolderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_DATA_HOME", QFile::encodeName(home_->path()));
    }
    void cleanup() { SetProgramFolder({}); }

    void it_is_the_folder_of_the_executable_where_that_can_be_written_to()
    {
        QCOMPARE(ProgramFolder(), DrivePath(QCoreApplication::applicationDirPath()));
        QVERIFY(!ProgramFolder().endsWith(u'\\'));
    }

    void it_is_the_users_data_folder_where_the_executable_lies_on_a_read_only_place()
    {
        const QTemporaryDir place;
        QCOMPARE(chmod(qPrintable(place.path()), 0555), 0);
        QCOMPARE(chmod(qPrintable(home_->path()), 0777), 0);
        const OrdinaryUser user;
        QVERIFY2(OrdinaryUser::IsOne(), OrdinaryUser::isNeeded);
        QCOMPARE(ProgramFolderOf(place.path()), DrivePath(home_->filePath(u"torvik2001"_s)));
        QVERIFY(QDir(home_->filePath(u"torvik2001"_s)).exists());
        QCOMPARE(ProgramFolderOf(QString()), DrivePath(home_->filePath(u"torvik2001"_s)));
    }

    void another_folder_takes_its_place_and_is_made()
    {
        const QString folder = home_->filePath(u"my/new folder"_s);
        SetProgramFolder(folder);
        QVERIFY(QDir(folder).exists());
        QCOMPARE(ProgramFolder(), DrivePath(folder));
        QCOMPARE(HostPath(ProgramFolder() + u"\\a"_s), folder + u"/a"_s);
        SetProgramFolder({});
        QCOMPARE(ProgramFolder(), DrivePath(QCoreApplication::applicationDirPath()));
    }

    void a_folder_is_taken_from_the_current_one()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(home_->path()));
        SetProgramFolder(u"here/"_s);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(ProgramFolder(), DrivePath(home_->filePath(u"here"_s)));
    }

    void a_folder_that_cannot_be_made_is_a_missing_path_and_changes_nothing()
    {
        QFile file(home_->filePath(u"file"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QString before = ProgramFolder();
        QCOMPARE(FailureOf([&] { SetProgramFolder(file.fileName()); }), failure::pathNotFound);
        QCOMPARE(FailureOf([&] { SetProgramFolder(file.fileName() + u"/sub"_s); }), failure::pathNotFound);
        QCOMPARE(ProgramFolder(), before);
    }

    void the_root_of_the_host_keeps_its_backslash()
    {
        SetProgramFolder(u"/"_s);
        QCOMPARE(ProgramFolder(), u"C:\\"_s);
        QCOMPARE(HostPath(ProgramFolder() + u"\\usr"_s), u"/usr"_s);
    }

    void the_windows_folder_is_made_in_the_users_data_folder()
    {
        const QString folder = home_->filePath(u"torvik2001/windows"_s);
        QCOMPARE(WindowsFolder(), DrivePath(folder));
        QVERIFY(QDir(folder).exists());
    }

    void the_users_data_folder_is_made()
    {
        const QString folder = home_->filePath(u"torvik2001"_s);
        QCOMPARE(UserDataFolder(), folder);
        QVERIFY(QDir(folder).exists());
    }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

TORVIK_TEST(ProgramFolderTest)
#include "program_folder_test.moc"
