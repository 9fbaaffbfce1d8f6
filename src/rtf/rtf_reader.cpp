#include "rtf/rtf_reader.h"

#include "rtf/read/interpreter.h"
#include "rtf/read/plain_text.h"
#include "rtf/write/row_heights.h"

#include <QStringDecoder>
#include <QTextDocument>

#include <algorithm>

namespace torvik::rtf {

namespace {

constexpr qsizetype mostRubbish = 4096;

/// Blanks, and the mark that says how a text is encoded.
bool IsBlank(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) {
        return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\xef' || c == '\xbb' || c == '\xbf';
    });
}

/// Where rich text begins, -1 where it does not. In front of it rubbish is passed over: lines of a letter
/// that it came with, the header that another system keeps with a file.
qsizetype StartOf(const QByteArray& bytes)
{
    const QByteArrayView head = QByteArrayView(bytes).first(std::min(bytes.size(), mostRubbish));
    for (qsizetype at = head.indexOf("\\rtf"); at >= 0; at = head.indexOf("\\rtf", at + 1)) {
        constexpr qsizetype length = 4;
        const char next = at + length < bytes.size() ? bytes.at(at + length) : ' ';
        const bool hasVersion = next >= '0' && next <= '9';
        const bool isLongerWord = (next >= 'a' && next <= 'z') || (next >= 'A' && next <= 'Z');
        const bool hasBrace = at > 0 && bytes.at(at - 1) == '{';
        const qsizetype start = hasBrace ? at - 1 : at;
        // A text may speak of such a word; without rubbish or with brace and version it is the beginning.
        const bool isFirst = IsBlank(head.first(start));
        if (!isLongerWord && (isFirst || (hasBrace && hasVersion)))
            return start;
    }
    return -1;
}

/// Rich text that somebody stored as Unicode: bytes again, with escapes for what they cannot hold.
QByteArray FromUnicode(const QByteArray& bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes, u'{');
    if (!encoding || *encoding == QStringConverter::Utf8)
        return bytes;
    const QString text = QStringDecoder(*encoding).decode(bytes);
    QByteArray plain;
    for (const QChar c : text) {
        if (c.unicode() < 128)
            plain += static_cast<char>(c.unicode());
        else
            plain += "\\u" + QByteArray::number(static_cast<qint16>(c.unicode())) + "?";
    }
    return plain;
}

ReadResult ReadContent(const QByteArray& stored, QTextDocument& into, const std::stop_token& stop)
{
    into.clear();
    into.setUndoRedoEnabled(false);
    const QByteArray bytes = FromUnicode(stored);
    const qsizetype start = StartOf(bytes);
    if (start < 0)
        return ReadPlainText(stored, into, stop);
    if (bytes.at(start) == '{')
        return Interpreter(QByteArray::fromRawData(bytes.constData() + start, bytes.size() - start), into)
            .Read(stop);
    return Interpreter('{' + bytes.mid(start), into).Read(stop);
}

} // namespace

bool LooksLikeRtf(const QByteArray& bytes)
{
    return StartOf(FromUnicode(bytes.first(std::min(bytes.size(), 2 * mostRubbish)))) >= 0;
}

ReadResult ReadRichText(const QByteArray& bytes, QTextDocument& into)
{
    const ReadResult result = ReadContent(bytes, into, {});
    if (result.hasRowHeights)
        SetRowHeights(into);
    return result;
}

QString PlainText(const QByteArray& bytes, const std::stop_token& stop)
{
    QTextDocument document;
    ReadContent(bytes, document, stop);
    return document.toPlainText();
}

} // namespace torvik::rtf
