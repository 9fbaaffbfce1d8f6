#include "rtf/documents.h"
#include "support/test_class.h"

#include <QDir>
#include <QFile>

using namespace torvik::rtf;
using namespace Qt::StringLiterals;

/// The documents of tests/rtf/documents, each in the dialect of one of four writers of the time.
class DialectsTest : public QObject {
    Q_OBJECT

    static QString Folder() { return QFINDTESTDATA("../documents"); }

private Q_SLOTS:
    void every_document_is_read_whole_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(Folder());
        const QStringList names = folder.entryList({u"*.rtf"_s});
        QVERIFY(names.size() >= 30);
        for (const QString& name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }
    void every_document_is_read_whole()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const Reading read = ReadBytes(file.readAll());
        QVERIFY(read.result.wasRtf);
        QVERIFY(!read.result.wasDamaged);
        QVERIFY(!read.result.wasCut);
        QCOMPARE(read.result.lostPictures, 0);
        QVERIFY(read.Text().simplified().size() > 30);
        QVERIFY(!read.Text().contains(QChar(QChar::ReplacementCharacter)));
    }

    void what_is_particular_to_a_dialect_is_there_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QString& text) {
            QTest::newRow(name) << QString::fromLatin1(name) << text;
        };
        row("editor_cyrillic", u"Автомобиль с открытым верхом"_s);
        row("editor_brace_missing", u"Nothing else was."_s);
        row("older_text_box", u"The hood opens forwards."_s);
        row("older_frame", u"In short"_s);
        row("older_footnotes", u"2 Nobody was hurt."_s);
        row("older_fields", u"warm colours sold best."_s);
        row("older_fields", u"1/2"_s);
        row("newer_text_boxes", u"with two paragraphs in it."_s);
        row("newer_nested_table", u"in two"_s);
        row("newer_numbers_of_asia", u"(ア)\ta"_s);
        row("newer_numbers_of_asia", u"三\tthird"_s);
        row("newer_numbers_of_asia", u"日本語 and 日本"_s);
        row("newer_form", u"Hard top: ☒  Radio: ☐"_s);
        row("newer_form", u"Paint: blue"_s);
        row("newer_right_to_left", u"שלום 1967 עולם"_s);
        row("newer_ruby", u"車(くるま)"_s);
        row("newer_ruby", u"3√(x)"_s);
        row("suite_borders", u"A box with a double line and a ground."_s);
    }
    void what_is_particular_to_a_dialect_is_there()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFile file(QDir(Folder()).filePath(name + u".rtf"_s));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString whole = PlainText(file.readAll());
        QVERIFY2(whole.contains(text), qPrintable(whole));
    }
};

TORVIK_TEST(DialectsTest)
#include "dialects_test.moc"
