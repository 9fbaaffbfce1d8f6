#include "rtf/fields/field_result.h"

#include "rtf/fields/calculation.h"
#include "rtf/fields/date_picture.h"
#include "rtf/fields/equation.h"
#include "rtf/model/number_words.h"

#include <algorithm>

namespace torvik::rtf {

using namespace Qt::StringLiterals;

namespace {

/// A number in the format that the switch "\*" names.
QString Formatted(int value, const FieldInstruction& instruction)
{
    const QString format = instruction.ValueOf(u"\\*"_s);
    if (format == QLatin1StringView("roman"))
        return NumberInFormat(value, 2);
    if (format == QLatin1StringView("ROMAN") || format == QLatin1StringView("Roman"))
        return NumberInFormat(value, 1);
    if (format == QLatin1StringView("alphabetic"))
        return NumberInFormat(value, 4);
    if (format == QLatin1StringView("ALPHABETIC"))
        return NumberInFormat(value, 3);
    if (format.compare(QLatin1StringView("ordinal"), Qt::CaseInsensitive) == 0)
        return NumberInFormat(value, 5);
    if (format.compare(QLatin1StringView("cardtext"), Qt::CaseInsensitive) == 0)
        return NumberInFormat(value, 6).toLower();
    if (format.compare(QLatin1StringView("ordtext"), Qt::CaseInsensitive) == 0)
        return NumberInFormat(value, 7).toLower();
    return QString::number(value);
}

QString Time(const FieldInstruction& instruction, const QDateTime& time, const QString& usual)
{
    if (!time.isValid())
        return {};
    const QString picture = instruction.ValueOf(u"\\@"_s);
    return DateByPicture(time, picture.isEmpty() ? usual : picture);
}

QString Told(const FieldInstruction& instruction, const FieldSurroundings& around, const QString& name)
{
    return Time(instruction, around.times.value(name).Value(), u"M/d/yyyy h:mm am/pm"_s);
}

QString Count(const FieldInstruction& instruction, const std::optional<int>& count)
{
    if (!count)
        return {};
    const QString picture = instruction.ValueOf(u"\\#"_s);
    return picture.isEmpty() ? Formatted(*count, instruction)
                             : CalculationText(QString::number(*count), picture);
}

QString Sequence(const FieldInstruction& instruction, FieldSurroundings& around)
{
    constexpr int largest = 1'000'000;
    constexpr qsizetype mostSequences = 1000;
    const QString name = instruction.pieces.value(1).toLower();
    if (around.sequences.size() >= mostSequences && !around.sequences.contains(name))
        return {};
    int& last = around.sequences[name];
    const QString first = instruction.ValueOf(u"\\r"_s);
    if (!first.isEmpty())
        last = std::clamp(first.toInt(), 0, largest);
    else if (!instruction.pieces.contains(u"\\c"_s))
        last = std::min(last + 1, largest);
    return instruction.pieces.contains(u"\\h"_s) ? QString() : Formatted(last, instruction);
}

bool Holds(const QString& left, const QString& sign, const QString& right)
{
    bool leftIsNumber = false;
    bool rightIsNumber = false;
    const double a = left.toDouble(&leftIsNumber);
    const double b = right.toDouble(&rightIsNumber);
    int order = left.compare(right, Qt::CaseInsensitive);
    if (leftIsNumber && rightIsNumber)
        order = a < b ? -1 : a > b ? 1 : 0;
    if (sign == QLatin1StringView("<>"))
        return order != 0;
    if (sign == QLatin1StringView("<"))
        return order < 0;
    if (sign == QLatin1StringView(">"))
        return order > 0;
    if (sign == QLatin1StringView("<="))
        return order <= 0;
    if (sign == QLatin1StringView(">="))
        return order >= 0;
    return order == 0;
}

QString Choice(const QStringList& pieces)
{
    if (pieces.size() < 5)
        return {};
    return pieces.value(Holds(pieces.at(1), pieces.at(2), pieces.at(3)) ? 4 : 5);
}

QString Quoted(const QStringList& pieces)
{
    QStringList texts;
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        if (pieces.at(i).startsWith(u'\\'))
            ++i; // a switch and its value
        else
            texts.append(pieces.at(i));
    }
    return texts.join(u' ');
}

QString Link(const FieldInstruction& instruction)
{
    const QString address = instruction.pieces.value(1);
    return address.startsWith(u'\\') ? QString() : address;
}

/// The text of a bookmark; nothing where a switch asks for the number or the place of its paragraph.
QString Reference(const FieldInstruction& instruction, FieldSurroundings& around)
{
    for (const QString& other : {u"\\n"_s, u"\\p"_s, u"\\r"_s, u"\\w"_s}) {
        if (instruction.pieces.contains(other, Qt::CaseInsensitive))
            return {};
    }
    return around.bookmarks.Repeat(instruction.pieces.value(1));
}

QString Calculated(const FieldInstruction& instruction)
{
    return CalculationText(instruction.rest.section(u'\\', 0, 0), instruction.ValueOf(u"\\#"_s));
}

using Maker = QString (*)(const FieldInstruction& instruction, FieldSurroundings& around);

QString Property(const FieldInstruction& instruction, FieldSurroundings& around);

const QHash<QString, Maker>& Makers()
{
    using Read = const FieldInstruction&;
    using Around = FieldSurroundings&;
    static const QHash<QString, Maker> makers{
        {u"DATE"_s, [](Read r, Around a) { return Time(r, a.now, u"M/d/yyyy"_s); }},
        {u"TIME"_s, [](Read r, Around a) { return Time(r, a.now, u"h:mm am/pm"_s); }},
        {u"CREATEDATE"_s, [](Read r, Around a) { return Told(r, a, u"creatim"_s); }},
        {u"SAVEDATE"_s, [](Read r, Around a) { return Told(r, a, u"revtim"_s); }},
        {u"PRINTDATE"_s, [](Read r, Around a) { return Told(r, a, u"printim"_s); }},
        {u"PAGE"_s, [](Read r, Around a) { return Formatted(a.page, r); }},
        {u"NUMPAGES"_s, [](Read r, Around a) { return Formatted(std::max(a.pages, a.page), r); }},
        {u"NUMWORDS"_s, [](Read r, Around a) { return Count(r, a.words); }},
        {u"NUMCHARS"_s, [](Read r, Around a) { return Count(r, a.characters); }},
        {u"SEQ"_s, Sequence},
        {u"AUTONUM"_s,
         [](Read, Around a) { return QString(QString::number(++a.sequences[QString()]) + u'.'); }},
        {u"AUTONUMLGL"_s,
         [](Read, Around a) { return QString(QString::number(++a.sequences[QString()]) + u'.'); }},
        {u"REF"_s, Reference},
        {u"="_s, [](Read r, Around) { return Calculated(r); }},
        {u"EQ"_s, [](Read r, Around) { return EquationText(r.rest); }},
        {u"IF"_s, [](Read r, Around) { return Choice(r.pieces); }},
        {u"QUOTE"_s, [](Read r, Around) { return Quoted(r.pieces); }},
        {u"HYPERLINK"_s, [](Read r, Around) { return Link(r); }},
        {u"MERGEFIELD"_s, [](Read r, Around) { return QString(u'«' + r.pieces.value(1) + u'»'); }},
        {u"MACROBUTTON"_s, [](Read r, Around) { return QString(r.pieces.mid(2).join(u' ')); }},
        {u"GOTOBUTTON"_s, [](Read r, Around) { return QString(r.pieces.mid(2).join(u' ')); }},
        {u"TITLE"_s, [](Read, Around a) { return a.information.value(u"title"_s); }},
        {u"SUBJECT"_s, [](Read, Around a) { return a.information.value(u"subject"_s); }},
        {u"AUTHOR"_s, [](Read, Around a) { return a.information.value(u"author"_s); }},
        {u"KEYWORDS"_s, [](Read, Around a) { return a.information.value(u"keywords"_s); }},
        {u"COMMENTS"_s, [](Read, Around a) { return a.information.value(u"doccomm"_s); }},
        {u"DOCPROPERTY"_s, Property},
    };
    return makers;
}

/// What most properties of a document tell has a field of its own.
QString Property(const FieldInstruction& instruction, FieldSurroundings& around)
{
    static const QHash<QString, QString> fields{
        {u"title"_s, u"TITLE"_s},
        {u"subject"_s, u"SUBJECT"_s},
        {u"author"_s, u"AUTHOR"_s},
        {u"keywords"_s, u"KEYWORDS"_s},
        {u"comments"_s, u"COMMENTS"_s},
        {u"createtime"_s, u"CREATEDATE"_s},
        {u"lastsavedtime"_s, u"SAVEDATE"_s},
        {u"lastprinted"_s, u"PRINTDATE"_s},
        {u"pages"_s, u"NUMPAGES"_s},
        {u"words"_s, u"NUMWORDS"_s},
        {u"characters"_s, u"NUMCHARS"_s},
    };
    const Maker maker = Makers().value(fields.value(instruction.pieces.value(1).toLower()), nullptr);
    return maker != nullptr ? maker(instruction, around) : QString();
}

} // namespace

QString ResultOf(const FieldInstruction& instruction, const FormField& form, FieldSurroundings& surroundings)
{
    if (form.kind != FormField::Kind::None)
        return form.Value();
    const Maker maker = Makers().value(instruction.keyword, nullptr);
    if (maker != nullptr)
        return maker(instruction, surroundings);
    // A field may consist of a bookmark's name alone.
    return surroundings.bookmarks.Repeat(instruction.pieces.value(0));
}

} // namespace torvik::rtf
