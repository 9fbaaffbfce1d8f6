#include "sample/documents/document_plan.h"

#include "sample/documents/article_source.h"
#include "sample/documents/figures.h"
#include "sample/documents/year_articles.h"
#include "sample/files/jpeg_file.h"
#include "sample/files/rich_document.h"
#include "sample/files/text_store.h"

#include <QStringList>

#include <algorithm>

namespace torvik::sample {

using namespace Qt::StringLiterals;

namespace {

/// "67" to "99", then "a0" and "a1": how the names of the articles of a year begin.
QString ArticlePrefix(int year)
{
    return year < 2000 ? QString::number(year - 1900) : u"a%1"_s.arg(year - 2000);
}

} // namespace

QByteArray HelpText()
{
    return WriteRichText(ArticleOfSource(StoredText(u"help"_s)));
}

void MakeHelpFile(const QString& program)
{
    WriteFile(program + u"/Torvik2001.HLP"_s, HelpText());
}

std::vector<PlannedDocument> PlanDocuments()
{
    std::vector<PlannedDocument> documents;
    const auto add = [&documents](const QString& file, const RichDocument& document) {
        documents.push_back({file, WriteRichText(document)});
    };
    for (const ModelYear& figures : ModelYears()) {
        const int year = figures.year;
        const QString prefix = ArticlePrefix(year);
        add(prefix + u"desc.rtf"_s, YearDescription(year));
        add(prefix + u"stats.rtf"_s, YearStatistics(year));
        add(prefix + u"colors.rtf"_s, YearColours(year));
        add(prefix + (year < 2000 ? u"opts.rtf"_s : u"OPTS.rtf"_s), YearOptions(year));
        add(u"nostalgia%1.rtf"_s.arg(year % 100, 2, 10, '0'_L1), YearNostalgia(year));
    }
    // Each line: the file, and the stored text that it is.
    const QStringList library = StoredText(u"library"_s).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : library)
        add(line.section(u' ', 0, 0), ArticleOfSource(StoredText(line.section(u' ', 1))));
    add(u"stats.rtf"_s, LibraryStatistics());
    std::sort(documents.begin(), documents.end(),
              [](const PlannedDocument& a, const PlannedDocument& b) { return a.file < b.file; });
    return documents;
}

void MakeDocuments(const QString& disc)
{
    for (const PlannedDocument& document : PlanDocuments())
        WriteFile(disc + u"/RichText/"_s + document.file, document.text);
}

} // namespace torvik::sample
