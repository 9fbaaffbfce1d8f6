#include "platform/system/settings_store.h"
#include "support/failure_of.h"
#include "support/test_class.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

const QString application = u"The Torvik Vollandry 2001"_s;
const QString section = u"Settings"_s;
const QString key = u"MainLeft"_s;

} // namespace

class SettingsStoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home_->path()));
    }

    void a_stored_text_comes_back()
    {
        SaveSetting(application, section, key, u"-120"_s);
        QCOMPARE(GetSetting(application, section, key), u"-120"_s);
        SaveSetting(application, section, key, u"15"_s);
        QCOMPARE(GetSetting(application, section, key), u"15"_s);
    }

    void what_was_never_stored_is_the_given_text()
    {
        QCOMPARE(GetSetting(application, section, key), QString());
        QCOMPARE(GetSetting(application, section, key, u"12000"_s), u"12000"_s);
        SaveSetting(application, section, u"MainTop"_s, u"1"_s);
        QCOMPARE(GetSetting(application, section, key, u"7"_s), u"7"_s);
    }

    void an_empty_text_is_stored_and_not_absent()
    {
        SaveSetting(application, section, key, QString());
        QCOMPARE(GetSetting(application, section, key, u"absent"_s), QString());
    }

    void the_store_is_a_file_named_after_the_application()
    {
        SaveSetting(application, section, key, u"15"_s);
        QFile file(home_->filePath(u"The Torvik Vollandry 2001.ini"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("[Settings]\nMainLeft=15\n"));
    }

    void the_place_of_the_settings_is_that_file()
    {
        SaveSetting(application, section, key, u"15"_s);
        QCOMPARE(SettingsPlace(application), home_->filePath(u"The Torvik Vollandry 2001.ini"_s));
        QVERIFY(QFile::exists(SettingsPlace(application)));
    }

    void the_savers_application_has_a_file_of_its_own()
    {
        const QString saver = u"SCRNSAVE: The Torvik Vollandry 2001"_s;
        SaveSetting(saver, section, u"TorviksDir"_s, u"C:\\my torvik\\ssTorviks"_s);
        QVERIFY(QFile::exists(home_->filePath(saver + u".ini"_s)));
        QCOMPARE(GetSetting(saver, section, u"TorviksDir"_s), u"C:\\my torvik\\ssTorviks"_s);
        QCOMPARE(GetSetting(application, section, u"TorviksDir"_s), QString());
    }

    void the_missing_configuration_folder_is_made()
    {
        const QString deep = home_->filePath(u"not/yet/there"_s);
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(deep));
        SaveSetting(application, section, key, u"1"_s);
        QVERIFY(QDir(deep).exists());
        QCOMPARE(GetSetting(application, section, key), u"1"_s);
    }

    void names_are_kept_apart_exactly_as_they_are()
    {
        const QStringList names{
            u"a"_s,        u"A"_s,        u"a b"_s,   u" a"_s,   u"a "_s,      u"a/b"_s,     u"a//b"_s,
            u"/a"_s,       u"a/"_s,       u"a\\b"_s,  u"a:b"_s,  u"a=b"_s,     u"[a]"_s,     u"a;b"_s,
            u"#a"_s,       u"a%2Fb"_s,    u"a%b"_s,   u"%"_s,    u"General"_s, u"general"_s, u"GENERAL"_s,
            u"%General"_s, u"General%"_s, u"Größe"_s, u"Ёлка"_s, u"\"a\""_s,   u"a\nb"_s,    u"@a"_s,
            QString(),     u"size"_s,     u"a,b"_s,   u"a\tb"_s, u".."_s};
        // Each name as a section, each as a key, and each as both.
        QList<std::pair<QString, QString>> places;
        for (const QString& name : names)
            places << std::pair(name, key) << std::pair(section, name) << std::pair(name, name);
        for (qsizetype i = 0; i < places.size(); ++i)
            SaveSetting(application, places[i].first, places[i].second, QString::number(i));
        for (qsizetype i = 0; i < places.size(); ++i)
            QCOMPARE(GetSetting(application, places[i].first, places[i].second), QString::number(i));
    }

    void applications_are_kept_apart_and_stay_in_their_folder()
    {
        const QStringList names{u"a"_s,  u"a/b"_s,  u"../a"_s, u".."_s,  u".a"_s,   u"a%2Fb"_s,
                                u"/a"_s, QString(), u"a\\b"_s, u"%.a"_s, u"Ё: x"_s, u"general"_s};
        for (const QString& name : names)
            SaveSetting(name, section, key, u"<"_s + name);
        for (const QString& name : names)
            QCOMPARE(GetSetting(name, section, key), u"<"_s + name);
        QCOMPARE(QDir(home_->path()).entryList({u"*.ini"_s}, QDir::Files | QDir::Hidden).size(),
                 names.size());
    }

    void texts_come_back_as_they_are_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"0015",      "1.50",        "-0",         "true",   "a,b",
                                 "a, b",      " blanks ",    "\"quoted\"", "a\\b\\", "C:\\x",
                                 "a;b",       "@Point(1 2)", "@",          "@@",     "line\nend",
                                 "tab\there", "100%",        "Größe",      "Ёлка",   "\xF0\x9F\x9A\x97",
                                 "x=y",       "[s]",         "\\x41"})
            QTest::addRow("'%s'", text) << QString::fromUtf8(text);
        QTest::addRow("zero character") << u"a"_s + QChar(u'\0') + u"b"_s;
        QTest::addRow("long") << QString(100000, u'x');
    }
    void texts_come_back_as_they_are()
    {
        QFETCH(QString, text);
        SaveSetting(application, section, key, text);
        QCOMPARE(GetSetting(application, section, key), text);
    }

    void a_value_with_commas_that_a_person_wrote_is_one_text()
    {
        QFile file(home_->filePath(application + u".ini"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Settings]\nMainLeft=1,2\n");
        file.close();
        QCOMPARE(GetSetting(application, section, key), u"1,2"_s);
    }

    void a_change_by_another_program_is_seen()
    {
        SaveSetting(application, section, key, u"1"_s);
        QFile file(home_->filePath(application + u".ini"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Settings]\nMainLeft=changed\nMainTop=2\n");
        file.close();
        QCOMPARE(GetSetting(application, section, key), u"changed"_s);
        SaveSetting(application, section, u"MainWidth"_s, u"3"_s);
        QCOMPARE(GetSetting(application, section, u"MainTop"_s), u"2"_s);
    }

    void a_damaged_store_gives_what_can_be_read_and_can_be_written()
    {
        QFile file(home_->filePath(application + u".ini"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\x00\xFF garbage ]]\n[Settings\n=\nMainTop=2\n[Settings]\nMainLeft=4\n", 58);
        file.close();
        GetSetting(application, section, key);
        SaveSetting(application, section, key, u"5"_s);
        QCOMPARE(GetSetting(application, section, key), u"5"_s);
    }

    void a_store_whose_folder_cannot_be_made_is_an_access_error()
    {
        const QString path = home_->filePath(u"file"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(path));
        QCOMPARE(FailureOf([] { SaveSetting(application, section, key, u"1"_s); }), failure::pathFileAccess);
        QCOMPARE(GetSetting(application, section, key, u"absent"_s), u"absent"_s);
    }

    void a_store_that_is_no_file_is_an_access_error()
    {
        QVERIFY(QDir(home_->path()).mkdir(application + u".ini"_s));
        QCOMPARE(FailureOf([] { SaveSetting(application, section, key, u"1"_s); }), failure::pathFileAccess);
        QCOMPARE(GetSetting(application, section, key, u"absent"_s), u"absent"_s);
    }

    void a_setting_can_be_taken_out()
    {
        DeleteSetting(application, section, key);
        SaveSetting(application, section, key, u"1"_s);
        SaveSetting(application, section, u"Other"_s, u"2"_s);
        DeleteSetting(application, section, key);
        QCOMPARE(GetSetting(application, section, key, u"absent"_s), u"absent"_s);
        QCOMPARE(GetSetting(application, section, u"Other"_s), u"2"_s);
    }

    void a_store_on_a_full_disk_is_an_access_error_and_keeps_what_it_had()
    {
        SaveSetting(application, section, key, u"1"_s);
        // No file may grow: for the writer that is the same as no room.
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &none), 0);
        const int number = FailureOf([] { SaveSetting(application, section, key, u"2"_s); });
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        std::signal(SIGXFSZ, handler);
        QCOMPARE(number, failure::pathFileAccess);
        QFile file(home_->filePath(application + u".ini"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("[Settings]\nMainLeft=1\n"));
    }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

TORVIK_TEST(SettingsStoreTest)
#include "settings_store_test.moc"
