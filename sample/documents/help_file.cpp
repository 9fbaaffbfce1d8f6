#include "sample/documents/help_file.h"

#include "sample/documents/article_source.h"
#include "sample/documents/text_store.h"
#include "sample/files/jpeg_file.h"
#include "sample/files/rich_writer.h"

namespace torvik::sample {

using namespace Qt::StringLiterals;

QByteArray HelpText()
{
    return WriteRichText(ArticleOfSource(StoredText(u"help"_s)));
}

void MakeHelpFile(const QString& program)
{
    WriteFile(program + u"/Torvik2001.HLP"_s, HelpText());
}

} // namespace torvik::sample
