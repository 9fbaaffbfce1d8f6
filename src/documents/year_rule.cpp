#include "documents/year_rule.h"

#include "platform/files/files.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/main_window.h"

namespace torvik {

QString FindArticleOfYear(const YearRule& rule)
{
    const QString caption = Form1->panYear.Caption();
    const QString year = Mid(caption, 3, 2);
    const QString ending = QLatin1String(rule.Ending);
    if (Left(caption, 2) == QStringLiteral("20")) {
        FindArticle(QStringLiteral("\\RichText\\a") + Mid(caption, 4, 1) + QLatin1String(rule.File20));
        return QStringLiteral("The Torvik Vollandry     20") + year + ending;
    }
    FindArticle(QLatin1String(rule.Folder19) + year + QLatin1String(rule.File19));
    return QStringLiteral("The Torvik Vollandry       19") + year + ending;
}

void FindArticle(const QString& file)
{
    state.DocumentFile = FindFile(state.DiscRoot + file);
}

void CompleteArticlePath(const QString& folder)
{
    state.DocumentFile = state.DiscRoot + folder + state.DocumentFile;
}

} // namespace torvik
