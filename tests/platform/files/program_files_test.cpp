#include "platform/files/program_files.h"
#include "platform/paths/program_folder.h"
#include "support/test_class.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace torvik;

/// What an installed program brings into its program folder.
class ProgramFilesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        shipped_ = std::make_unique<QTemporaryDir>();
        own_ = std::make_unique<QTemporaryDir>();
    }

    void what_lies_beside_the_executable_is_brought_along()
    {
        Write(Shipped(u"passby.wav"_s), "sound");
        Write(Shipped(u"Torvik2001.HLP"_s), "help");
        Write(Shipped(u"Torvik2001.scr"_s), "saver");
        Write(Shipped(u"graphics/ClassicTorviks.jpg"_s), "picture");
        QFile::setPermissions(Shipped(u"Torvik2001.scr"_s),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        Supply();
        QCOMPARE(Read(Own(u"passby.wav"_s)), QByteArray("sound"));
        QCOMPARE(Read(Own(u"Torvik2001.HLP"_s)), QByteArray("help"));
        QCOMPARE(Read(Own(u"Torvik2001.scr"_s)), QByteArray("saver"));
        QCOMPARE(Read(Own(u"graphics/ClassicTorviks.jpg"_s)), QByteArray("picture"));
        QVERIFY(QFileInfo(Own(u"Torvik2001.scr"_s)).isExecutable());
    }

    void nothing_else_is()
    {
        Write(Shipped(u"torvik2001"_s), "program");
        Write(Shipped(u"disc/Torviks/67a.jpg"_s), "photo");
        Supply();
        QVERIFY(QDir(own_->path()).isEmpty());
    }

    void a_file_that_is_there_stays_unless_the_shipped_one_is_newer()
    {
        const QString name = u"passby.wav"_s;
        Write(Own(name), "mine");
        Write(Shipped(name), "shipped");
        SetAge(Shipped(name), -100);
        Supply();
        QCOMPARE(Read(Own(name)), QByteArray("mine"));
        SetAge(Shipped(name), 100);
        Supply();
        QCOMPARE(Read(Own(name)), QByteArray("shipped"));
        QCOMPARE(QDir(own_->path()).entryList(QDir::Files), QStringList{name});
    }

    void a_folder_that_cannot_be_written_to_is_left_alone()
    {
        Write(Shipped(u"passby.wav"_s), "sound");
        SupplyFolder(shipped_->path(), u"/proc/nothing"_s);
        QVERIFY(!QFile::exists(u"/proc/nothing"_s));
    }

    void a_program_that_runs_where_it_can_write_needs_nothing()
    {
        const QTemporaryDir home;
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
        SupplyProgramFolder();
        QVERIFY(QDir(home.path()).isEmpty());
        SetProgramFolder(own_->path());
        SupplyProgramFolder();
        SetProgramFolder({});
        QVERIFY(QDir(own_->path()).isEmpty());
    }

private:
    QString Shipped(const QString& name) const { return shipped_->filePath(name); }
    QString Own(const QString& name) const { return own_->filePath(name); }
    void Supply() const { SupplyFolder(shipped_->path(), own_->path()); }

    static void Write(const QString& path, const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void SetAge(const QString& path, int seconds)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(seconds), QFile::FileModificationTime));
    }

    std::unique_ptr<QTemporaryDir> shipped_;
    std::unique_ptr<QTemporaryDir> own_;
};

TORVIK_TEST(ProgramFilesTest)
#include "program_files_test.moc"
