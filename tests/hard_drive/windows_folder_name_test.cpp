#include "hard_drive/windows_folder_name.h"
#include "platform/paths/program_folder.h"
#include "support/failure_of.h"

#include <QTest>

using namespace torvik;

/// The Windows folder as the installation of the saver knows it.
class WindowsFolderNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { before_ = qgetenv("XDG_DATA_HOME"); }
    void cleanup() { qputenv("XDG_DATA_HOME", before_); }

    void a_folder_without_a_blank_is_taken_whole()
    {
        PutDataInto(QStringLiteral("home"));
        QCOMPARE(WindowsFolderName(), WindowsFolder());
        QVERIFY(WindowsFolderName().endsWith(QStringLiteral("\\home\\torvik2001\\windows")));
    }

    void a_folder_with_a_blank_is_cut_two_characters_before_it()
    {
        PutDataInto(QStringLiteral("my home"));
        const QString whole = WindowsFolder();
        QVERIFY(whole.contains(QStringLiteral("\\my home\\")));
        QCOMPARE(WindowsFolderName(), whole.left(whole.indexOf(u' ') - 1));
        QVERIFY(WindowsFolderName().endsWith(QStringLiteral("\\m")));
    }

    void only_the_first_of_several_blanks_counts()
    {
        PutDataInto(QStringLiteral("a b c d"));
        QVERIFY2(WindowsFolderName().endsWith(u'\\'), qPrintable(WindowsFolderName()));
    }

    void the_longest_folder_that_leaves_a_blank_in_the_buffer_is_taken_whole()
    {
        PutDataOfLength(253);
        QCOMPARE(WindowsFolderName().size(), 253);
        QCOMPARE(WindowsFolderName(), WindowsFolder());
    }

    void a_folder_that_fills_the_buffer_or_does_not_fit_is_a_failure()
    {
        PutDataOfLength(254);
        QCOMPARE(FailureOf([] { WindowsFolderName(); }), failure::invalidCall);
        PutDataOfLength(255);
        QCOMPARE(FailureOf([] { WindowsFolderName(); }), failure::invalidCall);
    }

private:
    void PutDataInto(const QString& folder)
    {
        qputenv("XDG_DATA_HOME", folder_.filePath(folder).toLocal8Bit());
    }

    /// A data folder by which the Windows folder's drive path gets this many characters.
    void PutDataOfLength(qsizetype wanted)
    {
        PutDataInto(QStringLiteral("x"));
        const qsizetype missing = wanted - WindowsFolder().size();
        QVERIFY(missing > 2);
        const QString half(missing / 2 - 1, u'y');
        const QString rest(missing - half.size() - 1, u'z');
        PutDataInto(QStringLiteral("x") + half + u'/' + rest);
        QCOMPARE(WindowsFolder().size(), wanted);
    }

    QTemporaryDir folder_;
    QByteArray before_;
};

QTEST_GUILESS_MAIN(WindowsFolderNameTest)
#include "windows_folder_name_test.moc"
