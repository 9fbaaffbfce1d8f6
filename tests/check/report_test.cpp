#include "check/report.h"
#include "support/test_class.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace torvik;

namespace {

CheckResult SomeResult()
{
    CheckResult result;
    result.disc = u"/discs/torvik"_s;
    result.fileCount = 1234;
    result.bytes = 3'000'000;
    result.findings = {
        {FindingKind::Missing, u"wav\\taxi.wav"_s, u"is missing"_s, {u"Sound Effects > Taxi Horns"_s}},
        {FindingKind::Damaged,
         u"RichText\\72desc.rtf"_s,
         u"ends early"_s,
         {u"1972 > Description"_s, u"File > PrintBooklet"_s}},
        {FindingKind::NeverAsked, u"setup.exe"_s, u"is not asked for by any screen"_s, {}},
        {FindingKind::Remark, u"ads\\01brto00.jpg"_s, u"is missing"_s, {u"2001 > Advertisement"_s}}};
    return result;
}

bool IsOfType(const QJsonValue& value, const QString& type)
{
    if (type == u"integer"_s)
        return value.isDouble() && std::floor(value.toDouble()) == value.toDouble();
    return type == (value.isObject()   ? u"object"_s
                    : value.isArray()  ? u"array"_s
                    : value.isString() ? u"string"_s
                    : value.isBool()   ? u"boolean"_s
                                       : u"other"_s);
}

/// The first place at which a value is not as the schema has it; empty when there is none. Knows the words
/// that the schema of the report uses.
QString FaultIn(const QJsonValue& value, const QJsonObject& schema, const QString& place = u"report"_s)
{
    if (schema.contains(u"enum"_s) && !schema[u"enum"_s].toArray().contains(value))
        return place + u" is none of the known words"_s;
    if (schema.contains(u"type"_s) && !IsOfType(value, schema[u"type"_s].toString()))
        return place + u" is no "_s + schema[u"type"_s].toString();
    if (schema.contains(u"minimum"_s) && value.toDouble() < schema[u"minimum"_s].toDouble())
        return place + u" is too small"_s;
    const QJsonObject object = value.toObject();
    for (const QJsonValue name : schema[u"required"_s].toArray()) {
        if (!object.contains(name.toString()))
            return place + u" lacks "_s + name.toString();
    }
    const QJsonObject known = schema[u"properties"_s].toObject();
    for (auto field = object.begin(); field != object.end(); ++field) {
        const QJsonValue own =
            known.contains(field.key()) ? known[field.key()] : schema[u"additionalProperties"_s];
        if (QString fault = FaultIn(*field, own.toObject(), place + u'.' + field.key()); !fault.isEmpty())
            return fault;
    }
    for (const QJsonValue item : value.toArray()) {
        if (QString fault = FaultIn(item, schema[u"items"_s].toObject(), place + u" item"_s);
            !fault.isEmpty())
            return fault;
    }
    return {};
}

QJsonObject Schema()
{
    QFile file(QFINDTESTDATA("../../docs/check-report.schema.json"));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QJsonObject Report(const CheckResult& result)
{
    return QJsonDocument::fromJson(ReportJson(result)).object();
}

} // namespace

class ReportTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void people_read_aligned_columns_and_a_summary()
    {
        QCOMPARE(ReportText(SomeResult(), false),
                 u"missing      wav\\taxi.wav         is missing  [Sound Effects > Taxi Horns]\n"
                 "damaged      RichText\\72desc.rtf  ends early  [1972 > Description; File > PrintBooklet]\n"
                 "never-asked  setup.exe            is not asked for by any screen\n"
                 "remark       ads\\01brto00.jpg     is missing  [2001 > Advertisement]\n"
                 "\n"
                 "/discs/torvik: 1234 files, 2.86 MiB\n"
                 "1 missing, 1 damaged, 1 never-asked, 1 remark\n"_s);
    }

    void a_disc_with_remarks_alone_is_whole()
    {
        CheckResult result = SomeResult();
        result.findings = {result.findings.last()};
        QVERIFY(ReportText(result, false).endsWith(u"\nthe disc is whole, 1 remark\n"_s));
        result.findings.clear();
        QCOMPARE(ReportText(result, false), u"/discs/torvik: 1234 files, 2.86 MiB\nthe disc is whole\n"_s);
    }

    void colours_tell_what_costs_a_screen_from_what_is_strange()
    {
        const QStringList lines = ReportText(SomeResult(), true).split(u'\n');
        QVERIFY(lines[0].startsWith(u"\x1b[31mmissing    \x1b[0m  wav"_s));
        QVERIFY(lines[2].startsWith(u"\x1b[33mnever-asked\x1b[0m  setup.exe"_s));
        QVERIFY(lines[3].startsWith(u"remark       ads"_s));
        QVERIFY(!ReportText(SomeResult(), false).contains(u'\x1b'));
    }

    void names_cannot_draw_on_the_terminal()
    {
        CheckResult result = SomeResult();
        result.findings = {{FindingKind::NeverAsked, u"bad\x1b[2J\nname"_s, u"is odd"_s, {}}};
        QVERIFY(ReportText(result, false).startsWith(u"never-asked  bad?[2J?name  is odd\n"_s));
    }

    void programs_read_all_that_people_do()
    {
        const QJsonObject report = Report(SomeResult());
        QCOMPARE(report[u"version"_s].toInt(), 1);
        QCOMPARE(report[u"disc"_s].toString(), u"/discs/torvik"_s);
        QCOMPARE(report[u"files"_s].toInt(), 1234);
        QCOMPARE(report[u"bytes"_s].toInteger(), qint64{3'000'000});
        QCOMPARE(report[u"whole"_s].toBool(true), false);
        QCOMPARE(report[u"counts"_s][u"missing"_s].toInt(), 1);
        QCOMPARE(report[u"counts"_s][u"empty"_s].toInt(-1), 0);
        const QJsonObject second = report[u"findings"_s].toArray().at(1).toObject();
        QCOMPARE(second[u"kind"_s].toString(), u"damaged"_s);
        QCOMPARE(second[u"file"_s].toString(), u"RichText\\72desc.rtf"_s);
        QCOMPARE(second[u"what"_s].toString(), u"ends early"_s);
        QCOMPARE(second[u"screens"_s].toArray(),
                 (QJsonArray{u"1972 > Description"_s, u"File > PrintBooklet"_s}));
    }

    void the_report_for_programs_is_as_its_schema_has_it()
    {
        const QJsonObject schema = Schema();
        QVERIFY(!schema.isEmpty());
        QCOMPARE(FaultIn(Report(SomeResult()), schema), QString());
        QCOMPARE(FaultIn(Report(CheckResult()), schema), QString());
        // Each field is told of in the schema, and what is not as it says is seen.
        const QJsonObject whole = Report(SomeResult());
        for (auto field = whole.begin(); field != whole.end(); ++field) {
            QVERIFY2(schema[u"properties"_s].toObject().contains(field.key()), qPrintable(field.key()));
            QJsonObject lacking = whole;
            lacking.remove(field.key());
            QCOMPARE(FaultIn(lacking, schema), u"report lacks "_s + field.key());
        }
        QJsonObject other = whole;
        other[u"findings"_s] = QJsonArray{QJsonObject{
            {u"kind"_s, u"bad"_s}, {u"file"_s, u""_s}, {u"what"_s, u""_s}, {u"screens"_s, QJsonArray()}}};
        QCOMPARE(FaultIn(other, schema), u"report.findings item.kind is none of the known words"_s);
    }

    void the_schema_knows_every_kind()
    {
        const QJsonObject schema = Schema();
        const QJsonArray kinds =
            schema[u"properties"_s][u"findings"_s][u"items"_s][u"properties"_s][u"kind"_s][u"enum"_s]
                .toArray();
        QCOMPARE(kinds, schema[u"properties"_s][u"counts"_s][u"required"_s].toArray());
        QCOMPARE(kinds.size(), static_cast<int>(FindingKind::Remark) + 1);
        for (int kind = 0; kind < kinds.size(); ++kind)
            QCOMPARE(kinds[kind].toString(), KindWord(static_cast<FindingKind>(kind)));
    }

    void the_bar_grows_to_its_end()
    {
        QCOMPARE(ProgressLine(1, 2), u"\r["_s + QString(20, u'=') + QString(20, u' ') + u"] 1 of 2 files"_s);
        QCOMPARE(ProgressLine(0, 9), u"\r["_s + QString(40, u' ') + u"] 0 of 9 files"_s);
        QCOMPARE(ProgressLine(9, 9), u"\r["_s + QString(40, u'=') + u"] 9 of 9 files"_s);
    }
};

TORVIK_TEST(ReportTest)
#include "report_test.moc"
