#include "documents/year_rule.h"

#include "platform/files/files.h"
#include "program/program_state.h"
#include "runtime/text.h"
#include "windows/main_window.h"

using namespace Qt::StringLiterals;

namespace torvik {

QString FindArticleOfYear(const YearRule& rule)
{
    const QString caption = Form1->panYear.Caption();
    const QString year = Mid(caption, 3, 2);
    const QString ending = QLatin1String(rule.Ending);
    if (Left(caption, 2) == u"20"_s) {
        FindArticle(u"\\RichText\\a"_s + Mid(caption, 4, 1) + QLatin1String(rule.File20));
        return u"The Torvik Vollandry     20"_s + year + ending;
    }
    FindArticle(QLatin1String(rule.Folder19) + year + QLatin1String(rule.File19));
    return u"The Torvik Vollandry       19"_s + year + ending;
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
