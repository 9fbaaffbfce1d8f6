#include "hard_drive/windows_folder_name.h"
#include "platform/paths/program_folder.h"
#include "support/failure_of.h"
#include "support/test_class.h"

using namespace Qt::StringLiterals;
using namespace torvik;

/// The Windows folder as the installation of the saver knows it.
class WindowsFolderNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { before_ = qgetenv("XDG_DATA_HOME"); }
    void cleanup() { qputenv("XDG_DATA_HOME", before_); }

    void a_folder_without_a_blank_is_taken_whole()
    {
        PutDataInto(u"home"_s);
        QCOMPARE(WindowsFolderName(), WindowsFolder());
        QVERIFY(WindowsFolderName().endsWith(u"\\home\\torvik2001\\windows"_s));
    }

    void a_folder_with_a_blank_is_cut_two_characters_before_it()
    {
        PutDataInto(u"my home"_s);
        const QString whole = WindowsFolder();
        QVERIFY(whole.contains(u"\\my home\\"_s));
        QCOMPARE(WindowsFolderName(), whole.left(whole.indexOf(u' ') - 1));
        QVERIFY(WindowsFolderName().endsWith(u"\\m"_s));
    }

    void only_the_first_of_several_blanks_counts()
    {
        PutDataInto(u"a b c d"_s);
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
        PutDataInto(u"x"_s);
        const qsizetype missing = wanted - WindowsFolder().size();
        QVERIFY(missing > 2);
        const QString half(missing / 2 - 1, u'y');
        const QString rest(missing - half.size() - 1, u'z');
        PutDataInto(u"x"_s + half + u'/' + rest);
        QCOMPARE(WindowsFolder().size(), wanted);
    }

    QTemporaryDir folder_;
    QByteArray before_;
};

TORVIK_GUILESS_TEST(WindowsFolderNameTest)
#include "windows_folder_name_test.moc"
