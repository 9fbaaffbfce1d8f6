#include "check/report.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

constexpr int formatVersion = 1;
constexpr int barLength = 40;
constexpr FindingKind kinds[] = {FindingKind::Missing, FindingKind::Empty,      FindingKind::Unreadable,
                                 FindingKind::Damaged, FindingKind::NeverAsked, FindingKind::Odd,
                                 FindingKind::Remark};

/// Red for what costs a screen, yellow for what is strange, nothing for a remark.
QString ColourOf(FindingKind kind)
{
    switch (kind) {
    case FindingKind::NeverAsked:
    case FindingKind::Odd:
        return u"\x1b[33m"_s;
    case FindingKind::Remark:
        return {};
    default:
        return u"\x1b[31m"_s;
    }
}

/// A name may hold any character, but the report's lines are of its own making.
QString Printable(const QString& text)
{
    QString printable = text;
    for (QChar& character : printable) {
        if (!character.isPrint() && !character.isSurrogate())
            character = u'?';
    }
    return printable;
}

QString Line(const Finding& finding, qsizetype kindWidth, qsizetype fileWidth, bool inColour)
{
    const QString colour = inColour ? ColourOf(finding.kind) : QString();
    QString line = colour + KindWord(finding.kind).leftJustified(kindWidth) +
                   (colour.isEmpty() ? QString() : u"\x1b[0m"_s);
    line += u"  "_s + Printable(finding.file).leftJustified(fileWidth) + u"  "_s + Printable(finding.what);
    if (!finding.screens.isEmpty())
        line += u"  ["_s + finding.screens.join(u"; "_s) + u']';
    return line + u'\n';
}

QString Summary(const CheckResult& result)
{
    const QLocale plain = QLocale::c();
    QString text = u"%1: %2 files, %3\n"_s.arg(Printable(result.disc), plain.toString(result.fileCount),
                                               plain.formattedDataSize(result.bytes));
    QStringList counts;
    for (const FindingKind kind : kinds) {
        if (const int count = result.CountOf(kind); count > 0)
            counts.append(u"%1 %2"_s.arg(count).arg(KindWord(kind)));
    }
    if (result.IsWhole())
        counts.prepend(u"the disc is whole"_s);
    return text + counts.join(u", "_s) + u'\n';
}

} // namespace

QString ReportText(const CheckResult& result, bool inColour)
{
    constexpr qsizetype widestFile = 40;
    qsizetype kindWidth = 0;
    qsizetype fileWidth = 0;
    for (const Finding& finding : result.findings) {
        kindWidth = std::max(kindWidth, KindWord(finding.kind).size());
        fileWidth = std::max(fileWidth, std::min(finding.file.size(), widestFile));
    }
    QString text;
    for (const Finding& finding : result.findings)
        text += Line(finding, kindWidth, fileWidth, inColour);
    if (!text.isEmpty())
        text += u'\n';
    return text + Summary(result);
}

QByteArray ReportJson(const CheckResult& result)
{
    QJsonArray findings;
    for (const Finding& finding : result.findings)
        findings.append(QJsonObject{{u"kind"_s, KindWord(finding.kind)},
                                    {u"file"_s, finding.file},
                                    {u"what"_s, finding.what},
                                    {u"screens"_s, QJsonArray::fromStringList(finding.screens)}});
    QJsonObject counts;
    for (const FindingKind kind : kinds)
        counts.insert(KindWord(kind), result.CountOf(kind));
    const QJsonObject report{{u"version"_s, formatVersion},  {u"disc"_s, result.disc},
                             {u"files"_s, result.fileCount}, {u"bytes"_s, result.bytes},
                             {u"whole"_s, result.IsWhole()}, {u"counts"_s, counts},
                             {u"findings"_s, findings}};
    return QJsonDocument(report).toJson(QJsonDocument::Indented);
}

QString ProgressLine(int done, int all)
{
    const int filled = all > 0 ? done * barLength / all : barLength;
    return u"\r[%1%2] %3 of %4 files"_s.arg(QString(filled, u'='), QString(barLength - filled, u' '))
        .arg(done)
        .arg(all);
}

} // namespace torvik
