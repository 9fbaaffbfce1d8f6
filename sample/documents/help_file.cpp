#include "sample/documents/help_file.h"

#include "sample/documents/article_source.h"
#include "sample/documents/text_store.h"
#include "sample/files/jpeg_file.h"
#include "sample/files/rich_writer.h"

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
