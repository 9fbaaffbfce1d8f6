#include "platform/system/settings_store.h"
#include "support/failure_of.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace torvik;

namespace {

const QString application = QStringLiteral("The Torvik Vollandry 2001");
const QString section = QStringLiteral("Settings");
const QString key = QStringLiteral("MainLeft");

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
        SaveSetting(application, section, key, QStringLiteral("-120"));
        QCOMPARE(GetSetting(application, section, key), QStringLiteral("-120"));
        SaveSetting(application, section, key, QStringLiteral("15"));
        QCOMPARE(GetSetting(application, section, key), QStringLiteral("15"));
    }

    void what_was_never_stored_is_the_given_text()
    {
        QCOMPARE(GetSetting(application, section, key), QString());
        QCOMPARE(GetSetting(application, section, key, QStringLiteral("12000")), QStringLiteral("12000"));
        SaveSetting(application, section, QStringLiteral("MainTop"), QStringLiteral("1"));
        QCOMPARE(GetSetting(application, section, key, QStringLiteral("7")), QStringLiteral("7"));
    }

    void an_empty_text_is_stored_and_not_absent()
    {
        SaveSetting(application, section, key, QString());
        QCOMPARE(GetSetting(application, section, key, QStringLiteral("absent")), QString());
    }

    void the_store_is_a_file_named_after_the_application()
    {
        SaveSetting(application, section, key, QStringLiteral("15"));
        QFile file(home_->filePath(QStringLiteral("The Torvik Vollandry 2001.ini")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("[Settings]\nMainLeft=15\n"));
    }

    void the_savers_application_has_a_file_of_its_own()
    {
        const QString saver = QStringLiteral("SCRNSAVE: The Torvik Vollandry 2001");
        SaveSetting(saver, section, QStringLiteral("TorviksDir"), QStringLiteral("C:\\my torvik\\ssTorviks"));
        QVERIFY(QFile::exists(home_->filePath(saver + QStringLiteral(".ini"))));
        QCOMPARE(GetSetting(saver, section, QStringLiteral("TorviksDir")),
                 QStringLiteral("C:\\my torvik\\ssTorviks"));
        QCOMPARE(GetSetting(application, section, QStringLiteral("TorviksDir")), QString());
    }

    void the_missing_configuration_folder_is_made()
    {
        const QString deep = home_->filePath(QStringLiteral("not/yet/there"));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(deep));
        SaveSetting(application, section, key, QStringLiteral("1"));
        QVERIFY(QDir(deep).exists());
        QCOMPARE(GetSetting(application, section, key), QStringLiteral("1"));
    }

    void names_are_kept_apart_exactly_as_they_are()
    {
        const QStringList names{QStringLiteral("a"),
                                QStringLiteral("A"),
                                QStringLiteral("a b"),
                                QStringLiteral(" a"),
                                QStringLiteral("a "),
                                QStringLiteral("a/b"),
                                QStringLiteral("a//b"),
                                QStringLiteral("/a"),
                                QStringLiteral("a/"),
                                QStringLiteral("a\\b"),
                                QStringLiteral("a:b"),
                                QStringLiteral("a=b"),
                                QStringLiteral("[a]"),
                                QStringLiteral("a;b"),
                                QStringLiteral("#a"),
                                QStringLiteral("a%2Fb"),
                                QStringLiteral("a%b"),
                                QStringLiteral("%"),
                                QStringLiteral("General"),
                                QStringLiteral("general"),
                                QStringLiteral("GENERAL"),
                                QStringLiteral("%General"),
                                QStringLiteral("General%"),
                                QStringLiteral("Größe"),
                                QStringLiteral("Ёлка"),
                                QStringLiteral("\"a\""),
                                QStringLiteral("a\nb"),
                                QStringLiteral("@a"),
                                QString(),
                                QStringLiteral("size"),
                                QStringLiteral("a,b"),
                                QStringLiteral("a\tb"),
                                QStringLiteral("..")};
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
        const QStringList names{QStringLiteral("a"),    QStringLiteral("a/b"),
                                QStringLiteral("../a"), QStringLiteral(".."),
                                QStringLiteral(".a"),   QStringLiteral("a%2Fb"),
                                QStringLiteral("/a"),   QString(),
                                QStringLiteral("a\\b"), QStringLiteral("%.a"),
                                QStringLiteral("Ё: x"), QStringLiteral("general")};
        for (const QString& name : names)
            SaveSetting(name, section, key, QStringLiteral("<") + name);
        for (const QString& name : names)
            QCOMPARE(GetSetting(name, section, key), QStringLiteral("<") + name);
        QCOMPARE(QDir(home_->path()).entryList({QStringLiteral("*.ini")}, QDir::Files | QDir::Hidden).size(),
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
        QTest::addRow("zero character") << QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b");
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
        QFile file(home_->filePath(application + QStringLiteral(".ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Settings]\nMainLeft=1,2\n");
        file.close();
        QCOMPARE(GetSetting(application, section, key), QStringLiteral("1,2"));
    }

    void a_change_by_another_program_is_seen()
    {
        SaveSetting(application, section, key, QStringLiteral("1"));
        QFile file(home_->filePath(application + QStringLiteral(".ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[Settings]\nMainLeft=changed\nMainTop=2\n");
        file.close();
        QCOMPARE(GetSetting(application, section, key), QStringLiteral("changed"));
        SaveSetting(application, section, QStringLiteral("MainWidth"), QStringLiteral("3"));
        QCOMPARE(GetSetting(application, section, QStringLiteral("MainTop")), QStringLiteral("2"));
    }

    void a_damaged_store_gives_what_can_be_read_and_can_be_written()
    {
        QFile file(home_->filePath(application + QStringLiteral(".ini")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("\x00\xFF garbage ]]\n[Settings\n=\nMainTop=2\n[Settings]\nMainLeft=4\n", 58);
        file.close();
        GetSetting(application, section, key);
        SaveSetting(application, section, key, QStringLiteral("5"));
        QCOMPARE(GetSetting(application, section, key), QStringLiteral("5"));
    }

    void a_store_whose_folder_cannot_be_made_is_an_access_error()
    {
        const QString path = home_->filePath(QStringLiteral("file"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(path));
        QCOMPARE(FailureOf([] { SaveSetting(application, section, key, QStringLiteral("1")); }),
                 failure::pathFileAccess);
        QCOMPARE(GetSetting(application, section, key, QStringLiteral("absent")), QStringLiteral("absent"));
    }

    void a_store_that_is_no_file_is_an_access_error()
    {
        QVERIFY(QDir(home_->path()).mkdir(application + QStringLiteral(".ini")));
        QCOMPARE(FailureOf([] { SaveSetting(application, section, key, QStringLiteral("1")); }),
                 failure::pathFileAccess);
        QCOMPARE(GetSetting(application, section, key, QStringLiteral("absent")), QStringLiteral("absent"));
    }

    void a_store_on_a_full_disk_is_an_access_error_and_keeps_what_it_had()
    {
        SaveSetting(application, section, key, QStringLiteral("1"));
        // No file may grow: for the writer that is the same as no room.
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        const rlimit none{0, before.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &none), 0);
        const int number = FailureOf([] { SaveSetting(application, section, key, QStringLiteral("2")); });
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
        std::signal(SIGXFSZ, handler);
        QCOMPARE(number, failure::pathFileAccess);
        QFile file(home_->filePath(application + QStringLiteral(".ini")));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("[Settings]\nMainLeft=1\n"));
    }

private:
    std::unique_ptr<QTemporaryDir> home_;
};

QTEST_MAIN(SettingsStoreTest)
#include "settings_store_test.moc"
