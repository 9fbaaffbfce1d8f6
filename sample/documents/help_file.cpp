#include "help_file.h"

#include "article_source.h"
#include "rich_writer.h"
#include "sample/jpeg_file.h"
#include "text_store.h"

namespace torvik::sample {

QByteArray HelpText()
{
    return WriteRichText(ArticleOfSource(StoredText(QStringLiteral("help"))));
}

void MakeHelpFile(const QString& program)
{
    WriteFile(program + QStringLiteral("/Torvik2001.HLP"), HelpText());
}

} // namespace torvik::sample
