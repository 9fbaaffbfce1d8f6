#include "sample/artwork/ad_copy.h"

#include "sample/documents/engines.h"
#include "sample/documents/model_years.h"
#include "sample/documents/options.h"
#include "sample/documents/text_store.h"

#include <QRegularExpression>

#include <algorithm>
#include <stdexcept>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

QString OptionPrice(int year, const QString& word)
{
    for (const OptionGroup group :
         {OptionGroup::Drive, OptionGroup::Comfort, OptionGroup::Looks, OptionGroup::Sound}) {
        for (const Option& option : OptionsOf(year, group)) {
            if (QString::fromUtf8(option.name).contains(word))
                return Dollars(PriceIn(year, option.price));
        }
    }
    throw std::runtime_error("There was no such option: " + word.toStdString());
}

QString FigureOf(int year, const QString& name)
{
    const ModelYear& model = ModelYearOf(year);
    const std::vector<Engine> engines = EnginesOf(year);
    const Engine& strongest = *std::max_element(
        engines.begin(), engines.end(), [](const Engine& a, const Engine& b) { return a.power < b.power; });
    if (name == "price"_L1)
        return Dollars(model.price);
    if (name == "power"_L1)
        return QString::number(strongest.power);
    if (name == "engine"_L1)
        return EngineName(strongest);
    if (name == "standard"_L1)
        return EngineName(engines.front());
    if (name == "sixty"_L1)
        return QString::number(SecondsToSixty(strongest, model.weight), 'f', 1);
    if (name == "speed"_L1)
        return QString::number(TopSpeed(strongest));
    if (name == "weight"_L1)
        return Grouped(model.weight);
    if (name.startsWith("option "_L1))
        return OptionPrice(year, name.mid(7));
    throw std::runtime_error("There is no such figure: " + name.toStdString());
}

QString WithFigures(int year, QString text)
{
    static const QRegularExpression figure(u"\\{([^}]*)\\}"_s);
    for (QRegularExpressionMatch match = figure.match(text); match.hasMatch(); match = figure.match(text))
        text.replace(match.capturedStart(), match.capturedLength(), FigureOf(year, match.captured(1)));
    return text.replace(u'\'', QChar(0x2019));
}

} // namespace

AdCopy AdCopyOf(int year)
{
    const TextSection section = StoredSections(u"ad_copy"_s).at(QString::number(year));
    QStringList lines = section.body.split(u'\n', Qt::SkipEmptyParts);
    AdCopy copy;
    copy.headline = section.title;
    copy.lead = WithFigures(year, lines.takeFirst());
    for (const QString& line : lines)
        copy.paragraphs.append(WithFigures(year, line));
    return copy;
}

} // namespace torvik::sample
