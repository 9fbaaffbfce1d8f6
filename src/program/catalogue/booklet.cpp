#include "program/catalogue/booklet.h"

using namespace Qt::StringLiterals;

namespace torvik {

namespace {

const QString textFolder = u"\\RichText\\"_s;

} // namespace

QString BookletIntroduction()
{
    return textFolder + u"introduction.rtf"_s;
}

QString BookletPrefix(int year)
{
    return year < 100 ? QString::number(year) : u"A%1"_s.arg(year - 100);
}

QString BookletDescription(const QString& prefix)
{
    return textFolder + prefix + u"desc.rtf"_s;
}

QStringList BookletDetails(const QString& prefix)
{
    return {textFolder + prefix + u"opts.rtf"_s, textFolder + prefix + u"stats.rtf"_s,
            textFolder + prefix + u"colors.rtf"_s};
}

} // namespace torvik
