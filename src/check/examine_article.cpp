#include "check/examine_article.h"

#include "rtf/rtf_reader.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace torvik {

Examination ExamineArticle(const QByteArray& bytes)
{
    QTextDocument document;
    const rtf::ReadResult read = rtf::ReadRichText(bytes, document);
    const bool hasText = read.pictures > 0 || !document.toPlainText().trimmed().isEmpty();
    if (!hasText)
        return Damaged(u"has no readable text"_s);
    if (!read.wasRtf)
        return Damaged(u"is no rich text"_s);
    if (read.lostPictures > 0)
        return Damaged(read.lostPictures == 1 ? u"has lost a picture"_s
                                              : u"has lost %1 pictures"_s.arg(read.lostPictures));
    if (read.wasDamaged)
        return Damaged(u"ends early"_s);
    if (read.wasCut)
        return Damaged(u"grows out of all proportion, so not all of it is shown"_s);
    return {};
}

} // namespace torvik
