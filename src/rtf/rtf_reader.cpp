#include "rtf/rtf_reader.h"

#include "rtf/read/interpreter.h"
#include "rtf/read/plain_text.h"

#include <QTextDocument>

namespace torvik::rtf {

bool LooksLikeRtf(const QByteArray& bytes)
{
    qsizetype start = bytes.startsWith("\xef\xbb\xbf") ? 3 : 0;
    while (start < bytes.size() && (bytes.at(start) == ' ' || bytes.at(start) == '\t' ||
                                    bytes.at(start) == '\r' || bytes.at(start) == '\n'))
        ++start;
    return QByteArrayView(bytes).sliced(start).startsWith("{\\rtf");
}

ReadResult ReadRichText(const QByteArray& bytes, QTextDocument& into)
{
    into.clear();
    into.setUndoRedoEnabled(false);
    if (!LooksLikeRtf(bytes))
        return ReadPlainText(bytes, into);
    return Interpreter(bytes, into).Read();
}

QString PlainText(const QByteArray& bytes)
{
    QTextDocument document;
    ReadRichText(bytes, document);
    return document.toPlainText();
}

} // namespace torvik::rtf
