#include "platform/system/print_jobs.h"
#include "runtime/failure.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace torvik;

/// Names and ends of the files that print jobs become.
class PrintJobsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbers_begin_at_one_and_fill_the_first_gap()
    {
        const QTemporaryDir folder;
        QCOMPARE(NextJobFile(folder.path()), folder.filePath(QStringLiteral("job-1.pdf")));
        Write(folder.filePath(QStringLiteral("job-1.pdf")), "x");
        Write(folder.filePath(QStringLiteral("job-3.pdf")), "x");
        QCOMPARE(NextJobFile(folder.path()), folder.filePath(QStringLiteral("job-2.pdf")));
        Write(folder.filePath(QStringLiteral("job-2.pdf")), "x");
        QCOMPARE(NextJobFile(folder.path()), folder.filePath(QStringLiteral("job-4.pdf")));
    }

    void a_missing_folder_is_made_and_one_that_cannot_be_is_a_failure()
    {
        const QTemporaryDir folder;
        QVERIFY(!NextJobFile(folder.filePath(QStringLiteral("a/b"))).isEmpty());
        QVERIFY(QDir(folder.filePath(QStringLiteral("a/b"))).exists());
        Write(folder.filePath(QStringLiteral("file")), "x");
        QCOMPARE(ResumeNext([&] { NextJobFile(folder.filePath(QStringLiteral("file/under"))); }),
                 failure::pathNotFound);
    }

    void a_relative_folder_counts_from_the_current_one()
    {
        const QTemporaryDir folder;
        const QString before = QDir::currentPath();
        QDir::setCurrent(folder.path());
        const QString file = NextJobFile(QStringLiteral("out"));
        QDir::setCurrent(before);
        QVERIFY(QDir::isAbsolutePath(file));
        QVERIFY(file.endsWith(QStringLiteral("/out/job-1.pdf")));
    }

    void a_whole_file_ends_with_its_mark_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("whole");
        QTest::newRow("whole") << QByteArray("%PDF-1.4\nmuch\n%%EOF\n") << true;
        QTest::newRow("without the last line end") << QByteArray("%PDF-1.4\nmuch\n%%EOF") << true;
        QTest::newRow("longer than what is looked at") << QByteArray(5000, 'x') + "\n%%EOF\n" << true;
        QTest::newRow("cut short") << QByteArray("%PDF-1.4\nmuch") << false;
        QTest::newRow("the mark in the middle") << "%%EOF\n" + QByteArray(5000, 'x') << false;
        QTest::newRow("empty") << QByteArray() << false;
    }
    void a_whole_file_ends_with_its_mark()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, whole);
        const QTemporaryDir folder;
        Write(folder.filePath(QStringLiteral("job.pdf")), content);
        QCOMPARE(IsWholeJobFile(folder.filePath(QStringLiteral("job.pdf"))), whole);
    }

    void a_missing_file_is_not_whole() { QVERIFY(!IsWholeJobFile(QStringLiteral("/nowhere/job.pdf"))); }

    void a_whole_job_takes_its_name()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("job-1.pdf"));
        QVERIFY(UnfinishedJobFile(file) != file);
        Write(UnfinishedJobFile(file), "%PDF-1.4\nmuch\n%%EOF\n");
        QVERIFY(KeepJobFile(file));
        QVERIFY(QFile::exists(file));
        QVERIFY(!QFile::exists(UnfinishedJobFile(file)));
    }

    void a_job_that_is_cut_short_takes_no_name_and_is_dropped()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("job-1.pdf"));
        Write(UnfinishedJobFile(file), "%PDF-1.4\nmuch");
        QVERIFY(!KeepJobFile(file));
        QVERIFY(!QFile::exists(file));
        DropJobFile(file);
        QVERIFY(!QFile::exists(UnfinishedJobFile(file)));
    }

    void a_job_never_takes_a_name_from_another_file()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("job-1.pdf"));
        Write(file, "kept");
        Write(UnfinishedJobFile(file), "%PDF-1.4\n%%EOF\n");
        QVERIFY(!KeepJobFile(file));
        QFile kept(file);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("kept"));
    }

    void a_printer_takes_jobs_unless_the_system_says_no_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("takes");
        QTest::newRow("accepting") << QByteArray("Laser accepting requests since Sat Nov 21 2026") << true;
        QTest::newRow("not accepting")
            << QByteArray("Laser not accepting requests since Sat Nov 21 2026 -\n\tRejecting Jobs") << false;
        QTest::newRow("no answer") << QByteArray() << true;
    }
    void a_printer_takes_jobs_unless_the_system_says_no()
    {
        QFETCH(QByteArray, answer);
        QFETCH(bool, takes);
        const QTemporaryDir tools;
        const QString tool = tools.filePath(QStringLiteral("lpstat"));
        Write(tool, "#!/bin/sh\n[ \"$1 $2 $LC_ALL\" = '-a Laser C' ] && echo '" + answer + "'\n");
        QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const WithPath path(tools.path().toLocal8Bit());
        QCOMPARE(TakesJobs(QStringLiteral("Laser")), takes);
    }

    void without_the_systems_tool_every_printer_takes_jobs()
    {
        const QTemporaryDir empty;
        const WithPath path(empty.path().toLocal8Bit());
        QVERIFY(TakesJobs(QStringLiteral("Laser")));
    }

private:
    /// Where programs are looked for, while it lives.
    class WithPath {
    public:
        explicit WithPath(const QByteArray& path) { qputenv("PATH", path); }
        ~WithPath() { qputenv("PATH", before_); }
        WithPath(const WithPath&) = delete;
        WithPath& operator=(const WithPath&) = delete;

    private:
        QByteArray before_ = qgetenv("PATH");
    };

    static void Write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write a file of the test");
    }
};

QTEST_GUILESS_MAIN(PrintJobsTest)
#include "print_jobs_test.moc"
